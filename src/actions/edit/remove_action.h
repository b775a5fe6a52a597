#pragma once

#include <string_view>

#include "actions/edit/edited_document.h"
#include "json/path/key_path.h"

namespace kovalt {

/// What happens to objects that a removal leaves empty.
enum class EmptyParents { keep, clear };

/// Removes the member that its key path names. All steps are plain member names here, even with "=".
class RemoveAction : public KeyPath {
 public:
  RemoveAction(std::string_view keyPath, EmptyParents emptyParents) : KeyPath(keyPath), emptyParents_(emptyParents) {}

  /// Removes the member from `document`, and with `EmptyParents::clear` also every object on the way that is then
  /// empty, except the root. The last member of an object moves into the gap. Prints nothing.
  ///
  /// Returns whether it succeeded. A path without steps and a path of several steps always do, even if nothing is
  /// removed; a path of a single missing step does not. Aborts the process in two cases: the path has a single step and
  /// the root is not an object; or, with `EmptyParents::clear`, the member was removed after a step was skipped because
  /// it does not name an object.
  virtual bool execute(EditedDocument& document) const;

 private:
  EmptyParents emptyParents_;
};

}  // namespace kovalt
