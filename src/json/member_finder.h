#pragma once

// The members of objects that many options of one call ask for.

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "json/document.h"

namespace kovalt {

/// Finds and removes members by name, in a time that hardly grows with the object: one of many members that is asked
/// again and again gets an index of its names. One finder serves one document.
///
/// An index belongs to an array of members, not to a value, and a document's pool never uses memory twice, so an index
/// is never taken for that of another object. Names are only ever appended, which the next question makes up for, or
/// removed, which `remove` makes up for; values change as they like, as no index knows them. Names are compared in
/// ascending order of their places, so that the first member of a name is found, whatever its hash.
class MemberFinder {
 public:
  /// As `findMember(value, name)`.
  const Value* find(const Value& value, std::string_view name);
  Value* find(Value& value, std::string_view name);

  /// Appends a member to `object`, moving `name` and `value` into it.
  void append(Value& object, Value& name, Value& value, Allocator& allocator);

  /// Removes the first member of that name from `object`, whose last member takes its place. Returns whether there was
  /// one. An `object` that is none ends the process through RapidJSON's assertion.
  bool remove(Value& object, std::string_view name);

 private:
  /// The members by the hashes of their names: chains of ascending positions.
  struct Index {
    struct Place {
      std::uint32_t hash;
      rapidjson::SizeType previous;  ///< In the first place of a chain its last one.
      rapidjson::SizeType next;
    };
    std::vector<rapidjson::SizeType> chains;  ///< The first position of each.
    std::vector<Place> places;                ///< By the position of a member.
    unsigned scans = 0;                       ///< How many questions were answered without it.

    rapidjson::SizeType& chainOf(std::uint32_t hash) { return chains[hash % chains.size()]; }
    void insert(rapidjson::SizeType position);
    void erase(rapidjson::SizeType position);
  };

  [[nodiscard]] rapidjson::SizeType positionOf(const Value& object, std::string_view name);

  std::unordered_map<const Value::Member*, Index> indexes_;
};

}  // namespace kovalt
