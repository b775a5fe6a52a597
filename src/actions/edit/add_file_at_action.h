#pragma once

#include <string>
#include <string_view>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Merges a JSON file into an object; with an empty key path, into the root.
class AddFileAtAction : public EditAction {
 public:
  AddFileAtAction(std::string_view keyPath, std::string_view filePath) : EditAction(keyPath), filePath_(filePath) {}

  /// Merges the file into `target`, which first becomes an empty object if it is not an object. Returns false only for
  /// a null target. A file that cannot be opened or parsed is reported on standard error and treated as an empty
  /// object. If its root is not an object, or types clash, the process exits or aborts as `mergeValue` says.
  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::string filePath_;
};

}  // namespace kovalt
