#pragma once

// The selection of one object inside an array of objects, by the value of one of its members.

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

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
/// is never taken for that of another array. What is appended is taken in by the next question. Values inside the
/// elements change after a call of `forget` only, which drops the indexes that may know them.
class ObjectFinder {
 public:
  /// As `findObjectByRef`, with its messages.
  const Value* find(const Value* array, std::string_view refKey, std::string_view refValue);

  /// To be called before the member `name` of an element of `array`, or anything inside it, changes.
  void forget(const Value& array, const std::string& name);
  /// To be called before a whole element of `array` changes.
  void forget(const Value& array);

 private:
  struct Index {
    std::unordered_map<std::string, rapidjson::SizeType> firstWith;  ///< The first element that matches a text.
    rapidjson::SizeType size = 0;                                    ///< How many elements have been taken in.
    bool stopped = false;                                            ///< The next element ends every search.
    bool badItemSeen = false;
    unsigned scans = 0;  ///< How many questions were answered without it.
  };

  const Index* indexFor(const Value& array, std::string_view refKey);

  std::map<std::pair<const Value*, std::string>, Index> indexes_;
};

}  // namespace kovalt
