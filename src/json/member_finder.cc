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

std::uint32_t hashOf(std::string_view name) { return static_cast<std::uint32_t>(std::hash<std::string_view>()(name)); }

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
  const Value::Member* before = membersOf(object);
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
  if (known != indexes_.end() && known->second.places.erase({hashOf(name), position}) > 0) {
    const SizeType last = object.MemberCount() - 1;
    const std::uint32_t lastHash = hashOf(textOf(membersOf(object)[last].name));
    known->second.places.erase({lastHash, last});
    if (position != last) {
      known->second.places.emplace(lastHash, position);
    }
  }
  object.RemoveMember(object.MemberBegin() + static_cast<std::ptrdiff_t>(position));
  return true;
}

SizeType MemberFinder::positionOf(const Value& object, std::string_view name) {
  const SizeType size = object.MemberCount();
  if (size > kScannedSize) {
    const Value::Member* members = membersOf(object);
    Index& index = indexes_[members];
    if (index.scans == kScans) {
      auto& places = index.places;
      for (auto next = static_cast<SizeType>(places.size()); next < size; ++next) {
        places.emplace(hashOf(textOf(members[next].name)), next);
      }
      const std::uint32_t hash = hashOf(name);
      auto place = places.lower_bound({hash, 0});
      while (place != places.end() && place->first == hash && textOf(members[place->second].name) != name) {
        ++place;
      }
      return place != places.end() && place->first == hash ? place->second : size;
    }
    ++index.scans;
  }
  return static_cast<SizeType>(object.FindMember(referToText(name)) - object.MemberBegin());
}

}  // namespace kovalt
