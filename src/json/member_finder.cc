#include "json/member_finder.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <utility>

#include "json/text_value.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

// Up to this size an object is scanned, and so is a greater one for its first questions: its index costs as much.
constexpr SizeType kScannedSize = 32;
constexpr unsigned kScans = 32;
constexpr SizeType kNone = std::numeric_limits<SizeType>::max();

const Value::Member* membersOf(const Value& object) { return object.MemberBegin().operator->(); }

std::uint32_t hashOf(std::string_view name) { return static_cast<std::uint32_t>(std::hash<std::string_view>()(name)); }

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
  if (object.MemberCount() <= kScannedSize) {
    indexes_.erase(membersOf(object));
  } else if (Index& index = indexes_[membersOf(object)]; !index.places.empty()) {
    const SizeType last = object.MemberCount() - 1;
    index.erase(position);
    if (position != last) {
      index.erase(last);
      index.places[position].hash = index.places[last].hash;
      index.insert(position);
    }
    index.places.pop_back();
  }
  object.RemoveMember(object.MemberBegin() + static_cast<std::ptrdiff_t>(position));
  return true;
}

void MemberFinder::Index::insert(SizeType position) {
  Place& place = places[position];
  SizeType& first = chainOf(place.hash);
  if (first == kNone || position < first) {
    place.previous = first == kNone ? position : std::exchange(places[first].previous, position);
    place.next = std::exchange(first, position);
    return;
  }
  SizeType before = places[first].previous;
  if (position < before) {
    for (before = first; places[before].next < position; before = places[before].next) {
    }
  }
  place.previous = before;
  place.next = std::exchange(places[before].next, position);
  places[place.next == kNone ? first : place.next].previous = position;
}

void MemberFinder::Index::erase(SizeType position) {
  const Place& place = places[position];
  SizeType& first = chainOf(place.hash);
  places[place.next == kNone ? first : place.next].previous = place.previous;
  (position == first ? first : places[place.previous].next) = place.next;
}

SizeType MemberFinder::positionOf(const Value& object, std::string_view name) {
  // What is no object is left to the assertion of the search.
  const SizeType size = object.IsObject() ? object.MemberCount() : 0;
  if (size > kScannedSize) {
    Index& index = indexes_[membersOf(object)];
    if (index.scans == kScans) {
      if (size > index.chains.size()) {
        index = {std::vector<SizeType>(std::size_t{size} * 4, kNone), {}, kScans};
      }
      for (auto next = static_cast<SizeType>(index.places.size()); next < size; ++next) {
        index.places.push_back({hashOf(nameAt(object, next)), kNone, kNone});
        index.insert(next);
      }
      const std::uint32_t hash = hashOf(name);
      SizeType at = index.chainOf(hash);
      while (at != kNone && !(index.places[at].hash == hash && nameAt(object, at) == name)) {
        at = index.places[at].next;
      }
      return std::min(at, size);
    }
    ++index.scans;
  }
  const auto found = object.FindMember(referToText(name));
  return static_cast<SizeType>(found - object.MemberBegin());
}

}  // namespace kovalt
