#include "json/member_finder.h"

#include <cstddef>
#include <functional>

#include "json/text_value.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

// Up to this size an object is scanned, and so is a greater one for its first questions: its index costs as much.
constexpr SizeType kScannedSize = 32;
constexpr unsigned kScans = 32;

const Value::Member* membersOf(const Value& object) { return object.MemberBegin().operator->(); }

/// The place of a member in an index.
std::uint64_t placeOf(std::string_view name, SizeType position) {
  return std::uint64_t{std::hash<std::string_view>()(name)} << 32 | position;
}

}  // namespace

const Value* MemberFinder::find(const Value& value, std::string_view name) {
  if (!value.IsObject()) {
    return nullptr;
  }
  const SizeType position = positionOf(value, name);
  return position == value.MemberCount() ? nullptr : &membersOf(value)[position].value;
}

Value* MemberFinder::find(Value& value, std::string_view name) {
  return const_cast<Value*>(find(static_cast<const Value&>(value), name));
}

void MemberFinder::append(Value& object, Value& name, Value& value, Allocator& allocator) {
  const Value::Member* before = object.MemberBegin().operator->();
  object.AddMember(name, value, allocator);
  if (membersOf(object) != before) {
    // The members were moved to a larger array, and their index goes with them.
    auto index = indexes_.extract(before);
    if (!index.empty()) {
      index.key() = membersOf(object);
      indexes_.insert(std::move(index));
    }
  }
}

bool MemberFinder::remove(Value& object, std::string_view name) {
  const SizeType position = positionOf(object, name);
  if (position == object.MemberCount()) {
    return false;
  }
  const auto known = indexes_.find(membersOf(object));
  if (known != indexes_.end() && known->second.places.erase(placeOf(name, position)) > 0) {
    const SizeType last = object.MemberCount() - 1;
    const std::string_view lastName = textOf(membersOf(object)[last].name);
    known->second.places.erase(placeOf(lastName, last));
    if (position != last) {
      known->second.places.insert(placeOf(lastName, position));
    }
  }
  object.RemoveMember(object.MemberBegin() + static_cast<std::ptrdiff_t>(position));
  return true;
}

SizeType MemberFinder::positionOf(const Value& object, std::string_view name) {
  // What is no object is left to the assertion of the search.
  const SizeType size = object.IsObject() ? object.MemberCount() : 0;
  if (size > kScannedSize) {
    const Value::Member* members = membersOf(object);
    Index& index = indexes_[members];
    if (index.scans == kScans) {
      auto& places = index.places;
      for (auto next = static_cast<SizeType>(places.size()); next < size; ++next) {
        places.insert(placeOf(textOf(members[next].name), next));
      }
      const std::uint64_t first = placeOf(name, 0);
      for (auto place = places.lower_bound(first); place != places.end() && *place >> 32 == first >> 32; ++place) {
        const auto position = static_cast<SizeType>(*place);
        if (textOf(members[position].name) == name) {
          return position;
        }
      }
      return size;
    }
    ++index.scans;
  }
  const auto found = object.FindMember(referToText(name));
  return static_cast<SizeType>(found - object.MemberBegin());
}

}  // namespace kovalt
