#pragma once

// The selection of one object of an array by the value of one of its members.

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "json/document.h"
#include "json/index_budget.h"
#include "json/text_hash.h"

namespace kovalt {

/// Returns the first object of `array` whose member `refKey` matches `refValue`, or nullptr. A boolean matches as the
/// word true or false, a number as the text that it is written as, a string by its bytes up to the first NUL, an array
/// by any of its numbers and strings. The search ends without a match at the first element that is not an object or
/// whose member is null or an object.
///
/// Without a match, or if `array` is nullptr or not an array, prints the not-found message on standard error; and after
/// it the advice on the path argument if an element was not an object, its member was null or an object, or an array
/// that did not match contained anything but numbers and strings.
const Value* findObjectByRef(const Value* array, std::string_view refKey, std::string_view refValue);

/// Selects for the many options of one call, in a time that does not grow with the array once it was scanned often
/// enough. One finder serves one document.
///
/// DESCRIPTION. `find` does what `findObjectByRef` does, messages included. Between two calls, elements may be appended
/// to an array; whatever else changes an element must be announced by `willChange`.
///
/// IMPLEMENTATION. An index belongs to one array of elements and one `refKey`. It contains the elements at the front of
/// the array, under each text that selects them, except the elements that changed since they were added. Those, and the
/// elements after the front, are compared one by one. An index is found by the address of the first element, not of the
/// array value, which may move.
class ElementFinder {
 public:
  const Value* find(const Value* array, std::string_view refKey, std::string_view refValue);

  /// Announces, before it happens, that the member `*name` of `element` of `array` will change, or anything inside it;
  /// with a null `name`, the whole element.
  void willChange(const Value& array, const Value& element, const std::string* name);

 private:
  using Positions = std::set<rapidjson::SizeType>;

  struct Index {
    std::unordered_map<std::string, Positions, TextHash> elementsWith;  ///< By the text that selects them.
    Positions stops;               ///< The elements in the index that stop a selection.
    Positions badItems;            ///< The elements in the index with items that never select.
    Positions changed;             ///< The elements at the front that are not in the index.
    rapidjson::SizeType size = 0;  ///< The number of elements at the front.
    IndexBudget budget;

    void add(const Value& element, std::string_view refKey, rapidjson::SizeType position);
    void remove(const Value& element, std::string_view refKey, rapidjson::SizeType position);
    /// Adds the elements that are paid for.
    void grow(const Value& array, std::string_view refKey);
  };

  std::map<std::pair<const Value*, std::string>, Index> indexes_;
};

}  // namespace kovalt
