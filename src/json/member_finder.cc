#include "json/member_finder.h"

#include <cstddef>
#include <utility>

#include "json/contract.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

constexpr SizeType kNone = static_cast<SizeType>(-1);

const Value::Member* membersOf(const Value& object) { return object.MemberBegin().operator->(); }

std::string_view nameAt(const Value& object, SizeType position) { return textOf(membersOf(object)[position].name); }

}  // namespace

const Value* findMember(const Value& value, std::string_view name) {
  if (!value.IsObject()) {
    return nullptr;
  }
  const auto member = value.FindMember(referToText(name));
  return member == value.MemberEnd() ? nullptr : &member->value;
}

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
    // The members have moved to a larger array, and their index with them.
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
  const SizeType last = object.MemberCount() - 1;
  if (object.MemberCount() <= IndexBudget::kEntryCost) {
    // It may have had an index when it was larger.
    indexes_.erase(membersOf(object));
  } else if (Index& index = indexes_[membersOf(object)]; position < index.size()) {
    index.remove(position, last, hashOf(nameAt(object, last)));
  }
  object.RemoveMember(object.MemberBegin() + static_cast<std::ptrdiff_t>(position));
  return true;
}

SizeType MemberFinder::positionOf(const Value& object, std::string_view name) {
  // For a value that is not an object, an assertion of `FindMember` aborts.
  const SizeType count = object.IsObject() ? object.MemberCount() : 0;
  if (count <= IndexBudget::kEntryCost) {
    return static_cast<SizeType>(object.FindMember(referToText(name)) - object.MemberBegin());
  }
  Index& index = indexes_[membersOf(object)];
  require(index.size() <= count);
  while (index.size() < count && index.budget.pay(1)) {
    index.add(hashOf(nameAt(object, index.size())), count);
  }
  SizeType position = index.size() == 0 ? 0 : index.find(object, name, hashOf(name));
  if (position == index.size()) {
    while (position < count && nameAt(object, position) != name) {
      ++position;
    }
  }
  index.budget.earn(position);
  return position;
}

SizeType MemberFinder::Index::find(const Value& object, std::string_view name, std::uint32_t hash) const {
  require(size() > 0);
  SizeType position = chains_[hash % chains_.size()];
  while (position != kNone && !(places_[position].hash == hash && nameAt(object, position) == name)) {
    position = places_[position].next;
  }
  return position == kNone ? size() : position;
}

void MemberFinder::Index::add(std::uint32_t hash, SizeType count) {
  if (chains_.size() < count) {
    // Four chains for each member, which leaves room for more members.
    chains_.assign(std::size_t{count} * 4, kNone);
    for (SizeType position = 0; position < size(); ++position) {
      insert(position);
    }
  }
  places_.push_back({hash, kNone, kNone});
  insert(size() - 1);
}

void MemberFinder::Index::remove(SizeType position, SizeType last, std::uint32_t hashOfLast) {
  const bool hasLast = last < size();
  if (hasLast && position != last) {
    erase(last);
  }
  erase(position);
  if (position != last) {
    places_[position].hash = hashOfLast;
    insert(position);
  }
  if (hasLast) {
    places_.pop_back();
  }
}

void MemberFinder::Index::insert(SizeType position) {
  Place& place = places_[position];
  SizeType& first = chainOf(place.hash);
  if (first == kNone || position < first) {
    place.previous = first == kNone ? position : std::exchange(places_[first].previous, position);
    place.next = std::exchange(first, position);
  } else {
    SizeType before = places_[first].previous;
    if (position < before) {
      for (before = first; places_[before].next < position; before = places_[before].next) {
      }
    }
    place.previous = before;
    place.next = std::exchange(places_[before].next, position);
    places_[place.next == kNone ? first : place.next].previous = position;
  }
  checkChain(place.hash);
}

void MemberFinder::Index::erase(SizeType position) {
  const Place place = places_[position];
  SizeType& first = chainOf(place.hash);
  places_[place.next == kNone ? first : place.next].previous = place.previous;
  (position == first ? first : places_[place.previous].next) = place.next;
  checkChain(place.hash);
}

void MemberFinder::Index::checkChain(std::uint32_t hash) const {
  if constexpr (kChecksContracts) {
    const SizeType first = chains_[hash % chains_.size()];
    for (SizeType position = first; position != kNone; position = places_[position].next) {
      const Place& place = places_[position];
      require(position < size() && place.hash % chains_.size() == hash % chains_.size());
      require(place.next == kNone ? places_[first].previous == position
                                  : place.next > position && places_[place.next].previous == position);
    }
  }
}

}  // namespace kovalt
