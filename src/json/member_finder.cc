#include "json/member_finder.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>

#include "json/text_value.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

// Up to this size an object is scanned, and so is a greater one for its first questions: its index costs as much.
constexpr SizeType kScannedSize = 32;
constexpr unsigned kScans = 32;

constexpr SizeType kEnd = std::numeric_limits<SizeType>::max();  // Of a chain.

std::size_t hashOf(std::string_view name) { return std::hash<std::string_view>()(name); }

const Value::Member* membersOf(const Value& object) { return object.MemberBegin().operator->(); }

std::string_view nameAt(const Value& object, SizeType position) { return textOf(membersOf(object)[position].name); }

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
  if (object.MemberCount() <= kScannedSize) {
    indexes_.erase(membersOf(object));
  } else if (Index& index = indexes_[membersOf(object)]; !index.places.empty()) {
    const SizeType last = object.MemberCount() - 1;
    index.unlink(position);
    if (position != last) {
      index.unlink(last);
      index.places[position].hash = index.places[last].hash;
      index.link(position);
    }
    index.places.pop_back();
  }
  object.RemoveMember(object.MemberBegin() + static_cast<std::ptrdiff_t>(position));
  return true;
}

void MemberFinder::Index::link(SizeType position) {
  SizeType& first = chainOf(places[position].hash);
  places[position].next = first;
  first = position;
}

void MemberFinder::Index::unlink(SizeType position) {
  SizeType* link = &chainOf(places[position].hash);
  while (*link != position) {
    link = &places[*link].next;
  }
  *link = places[position].next;
}

SizeType MemberFinder::positionOf(const Value& object, std::string_view name) {
  const SizeType size = object.MemberCount();
  if (size > kScannedSize) {
    Index& index = indexes_[membersOf(object)];
    if (index.scans == kScans) {
      if (size > index.chains.size()) {
        index = {std::vector<SizeType>(std::size_t{size} * 4, kEnd), {}, kScans};
      }
      for (auto next = static_cast<SizeType>(index.places.size()); next < size; ++next) {
        index.places.push_back({hashOf(nameAt(object, next)), kEnd});
        index.link(next);
      }
      const std::size_t hash = hashOf(name);
      SizeType first = size;
      for (SizeType at = index.chainOf(hash); at != kEnd; at = index.places[at].next) {
        if (index.places[at].hash == hash && nameAt(object, at) == name) {
          first = std::min(first, at);
        }
      }
      return first;
    }
    ++index.scans;
  }
  return static_cast<SizeType>(object.FindMember(referToText(name)) - object.MemberBegin());
}

}  // namespace kovalt
