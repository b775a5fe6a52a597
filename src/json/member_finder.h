#pragma once

// Finding the members of objects by name, once and for the many options of one call.

#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

#include "json/document.h"
#include "json/index_budget.h"
#include "json/text_hash.h"

namespace kovalt {

/// Returns the value of the first member of `value` whose name equals `name` byte for byte, or nullptr if there is none
/// or `value` is not an object. The document owns the result, which stays valid until the object changes.
const Value* findMember(const Value& value, std::string_view name);

/// Finds, appends and removes members by name, in a time that does not grow with the object once it was scanned often
/// enough. One finder serves one document.
///
/// DESCRIPTION. The first member of a name is found, as a scan finds it. Between two calls, an object that was looked
/// up may only get members by `append` and lose them by `remove`, or be replaced as a whole, even by an empty object.
/// The values of members may change at will.
///
/// IMPLEMENTATION. An index contains the members at the front of one object; the members after them are scanned. It is
/// found by the address of the first member, not of the object, which may move.
class MemberFinder {
 public:
  /// `hash` is for tests; by default its key is secret.
  explicit MemberFinder(TextHash hash = {}) : hash_(hash) {}

  /// As `findMember(value, name)`.
  const Value* find(const Value& value, std::string_view name);
  Value* find(Value& value, std::string_view name);

  /// Appends a member to `object`, moving `name` and `value` into it. If `object` is not an object, an assertion
  /// of RapidJSON aborts the process.
  void append(Value& object, Value& name, Value& value, Allocator& allocator);

  /// Removes the first member with that name from `object`; its last member moves into the gap. Returns whether there
  /// was one. If `object` is not an object, an assertion of RapidJSON aborts the process.
  bool remove(Value& object, std::string_view name);

 private:
  /// A hash table of the members at the front of an object. Each chain contains positions in ascending order.
  class Index {
   public:
    /// The number of members in the index.
    [[nodiscard]] rapidjson::SizeType size() const { return static_cast<rapidjson::SizeType>(places_.size()); }
    /// The first member with that name; `size()` if the index has none. Requires that the index is not empty.
    [[nodiscard]] rapidjson::SizeType find(const Value& object, std::string_view name, std::uint32_t hash) const;
    /// Adds the member at position `size()`, whose name has that hash, to the index of an object with `count` members.
    void add(std::uint32_t hash, rapidjson::SizeType count);
    /// Updates the index for a removal that moves the member at `last` to `position`, which must be in the index.
    void remove(rapidjson::SizeType position, rapidjson::SizeType last, std::uint32_t hashOfLast);

    IndexBudget budget;

   private:
    struct Place {
      std::uint32_t hash;
      rapidjson::SizeType previous;  ///< For the first of a chain, the last of it.
      rapidjson::SizeType next;
    };

    void insert(rapidjson::SizeType position);
    void erase(rapidjson::SizeType position);
    /// In builds that check contracts, checks that a chain is linked in both directions and ascends.
    void checkChain(std::uint32_t hash) const;
    rapidjson::SizeType& chainOf(std::uint32_t hash) { return chains_[hash % chains_.size()]; }

    std::vector<rapidjson::SizeType> chains_;  ///< The first position of each.
    std::vector<Place> places_;                ///< By position.
  };

  [[nodiscard]] rapidjson::SizeType positionOf(const Value& object, std::string_view name);
  [[nodiscard]] std::uint32_t hashOf(std::string_view name) const { return static_cast<std::uint32_t>(hash_(name)); }

  TextHash hash_;
  std::map<const Value::Member*, Index> indexes_;
};

}  // namespace kovalt
