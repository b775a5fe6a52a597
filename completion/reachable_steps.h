#pragma once

// The steps by which a key path can continue from a value. The empty step, which would name a member with an empty
// name, and steps that contain a "." or that a terminal cannot show are left out.

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "json/document.h"

namespace kovalt {

/// What an option does with its key path.
struct KeyPathUse {
  bool selects = true;      ///< False for removals, where a step with "=" is an ordinary member name.
  bool namesArray = false;  ///< For concatenations: arrays are also offered without a step into them.
};

/// Returns the members of `object` that a step can name. Of members with the same name, that is the first.
std::vector<const Value::Member*> reachableMembers(const Value& object, KeyPathUse use);

/// A step that selects an object of an array.
struct Selection {
  std::string_view refKey;  ///< Refers to the document.
  std::string refValue;
};

/// Walks an array and returns the selections that find its objects, one object at a time.
class SelectionReader {
 public:
  /// Restricts the selections to those whose key matches `typed`, the start of a step. `array` and the characters of
  /// `typed` must outlive the reader.
  SelectionReader(const Value& array, std::string_view typed);

  /// Returns the selections of the next object, or nothing at the end of the array or at an element that is not an
  /// object, where every selection stops.
  std::optional<std::vector<Selection>> nextObject();

 private:
  const Value* next_;
  const Value* end_;
  std::string_view typed_;
  /// The keys whose selections stop at an earlier object.
  std::set<std::string_view> stoppedKeys_;
};

/// Whether a key path can continue from `value`.
bool hasNextStep(const Value& value, KeyPathUse use);

}  // namespace kovalt
