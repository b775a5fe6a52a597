#pragma once

// Which values of an element select it, and by which text.

#include <cstddef>
#include <string>
#include <string_view>

#include "json/document.h"
#include "json/member_finder.h"
#include "json/write/write_value.h"

namespace kovalt {

/// Whether a member can select the object that has it: booleans, numbers, strings and arrays can. A selection stops at
/// an object whose member is null or an object.
inline bool canSelect(const Value& member) { return !member.IsNull() && !member.IsObject(); }

/// Whether an item of a member that is an array can select: numbers and strings can, others are skipped.
inline bool itemCanSelect(const Value& item) { return item.IsNumber() || item.IsString(); }

/// The text by which a boolean, number or string selects: the word, the compact text, or the bytes up to the first NUL.
inline std::string refValueOf(const Value& scalar) {
  return scalar.IsString() ? std::string(scalar.GetString()) : valueToText(scalar, false);
}

/// How an element that does not match affects the selection.
enum class Obstacle {
  none,
  badItems,  ///< An array with items that never select. The selection goes on.
  stop,      ///< Not an object, or its member cannot select. The selection ends here.
};

/// Calls `visit` with each boolean, number or string of the member `refKey` that selects `element`. Returns how the
/// element affects a selection that matches none of them.
template <typename Visit>
Obstacle visitSelecting(const Value& element, std::string_view refKey, Visit visit) {
  if (!element.IsObject()) {
    return Obstacle::stop;
  }
  const Value* const member = findMember(element, refKey);
  if (member == nullptr) {
    return Obstacle::none;
  }
  if (!canSelect(*member)) {
    return Obstacle::stop;
  }
  if (!member->IsArray()) {
    visit(*member);
    return Obstacle::none;
  }
  Obstacle obstacle = Obstacle::none;
  for (const Value& item : member->GetArray()) {
    if (itemCanSelect(item)) {
      visit(item);
    } else {
      obstacle = Obstacle::badItems;
    }
  }
  return obstacle;
}

/// The number of entries that the element can need in an index: one, and one more for each item of an array.
inline std::size_t countEntries(const Value& element, std::string_view refKey) {
  const Value* const member = findMember(element, refKey);
  return member != nullptr && member->IsArray() ? std::size_t{1} + member->Size() : 1;
}

}  // namespace kovalt
