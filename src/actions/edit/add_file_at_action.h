#pragma once

#include <string>
#include <string_view>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Merges a JSON file into an object; with an empty key path, into the root.
class AddFileAtAction : public EditAction {
 public:
  AddFileAtAction(std::string_view keyPath, std::string_view filePath);

  /// Merges the file into `target`, which first becomes an empty object if it was none. Returns false only for a null
  /// target. A file that cannot be opened or parsed is reported on standard error and counts as an empty object; one
  /// whose root is no object ends the process through RapidJSON's assertion, and one whose types clash with those of
  /// `target` as mergeValue says.
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::string value_;
};

}  // namespace kovalt
