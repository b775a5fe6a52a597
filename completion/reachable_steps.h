#pragma once

// The steps by which a key path goes on from a value. Not offered: what no step reaches, what holds a ".", and what a
// terminal cannot show.

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "json/document.h"

namespace kovalt {

/// What an option does with its key path.
struct KeyPathUse {
  bool selects = true;      ///< False where a step with "=" is a member name like any other, as it is for removals.
  bool namesArray = false;  ///< The path ends at an array, so arrays that can be entered are offered by name, too.
};

/// The members of `object` that a step names: of those with the same name, the first.
std::vector<const Value::Member*> reachableMembers(const Value& object, KeyPathUse use);

/// A step that finds an object of an array.
struct Selection {
  std::string_view refKey;  ///< Belongs to the document.
  std::string refValue;
};

/// Walks an array and hands out the selections that find its objects, an object at a time.
class SelectionReader {
 public:
  /// Only selections whose key fits to `typed`, the start of a step, are handed out. `array` must outlive the reader.
  SelectionReader(const Value& array, std::string_view typed);

  /// The selections by the members of the next object. Nothing after the last object that a selection reaches: it stops
  /// at an element that is no object.
  std::optional<std::vector<Selection>> nextObject();

 private:
  const Value* next_;
  const Value* end_;
  std::string_view typed_;
  /// The keys by which no selection gets beyond an object that was walked over.
  std::set<std::string_view> endedKeys_;
};

/// Whether any step goes on from `value`.
bool canGoOn(const Value& value, KeyPathUse use);

}  // namespace kovalt
