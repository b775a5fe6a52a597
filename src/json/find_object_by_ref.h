#pragma once

// The selection of one object inside an array of objects, by the value of one of its members.

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "json/document.h"

namespace kovalt {

/// The first object of `array` whose member `refKey` matches `refValue`, or nullptr. A boolean matches as the word true
/// or false, a number as the text that it is written with, a string by its bytes up to the first NUL, an array by any
/// of its numbers and strings.
///
/// Without a match, or where `array` is nullptr or no array, prints the not-found message on standard error; after it
/// the advice on the path argument if an element was no object, its member was null or an object, or an array without a
/// match held anything but numbers and strings.
const Value* findObjectByRef(const Value* array, std::string_view refKey, std::string_view refValue);

/// Selects for the many options of one call, in a time that does not grow with the array: one of many elements that is
/// asked for the same member again and again gets an index of the texts that its elements match. One finder serves one
/// document.
///
/// An index belongs to an array of elements, not to a value, and a document's pool never uses memory twice, so an index
/// is never taken for that of another array. It holds each element under every text that selects it: what is appended
/// is taken in by the next question, and what `willChange` names is taken in again. Under a text it may hold elements
/// that have changed since; they are compared when their turn comes, and dropped.
class ObjectFinder {
 public:
  /// As `findObjectByRef`, with its messages.
  const Value* find(const Value* array, std::string_view refKey, std::string_view refValue);

  /// To be called before the member `*name` of `element` of `array` changes, or anything inside it; with a null `name`,
  /// before the whole element does.
  void willChange(const Value& array, const Value& element, const std::string* name);

 private:
  struct Index {
    std::unordered_map<std::string, std::set<rapidjson::SizeType>> elementsWith;  ///< By the text that selects them.
    std::set<rapidjson::SizeType> badItems;    ///< The elements with an array that holds what never matches.
    std::vector<rapidjson::SizeType> changed;  ///< The elements to take in again.
    rapidjson::SizeType size = 0;              ///< Up to here the elements can match; the next one ends a search.
    unsigned scans = 0;                        ///< How many questions were answered without it.
  };

  Index* indexFor(const Value& array, std::string_view refKey);

  std::map<std::pair<const Value*, std::string>, Index> indexes_;
};

}  // namespace kovalt
