#pragma once

#include <string_view>

#include "json/document.h"
#include "json/key_path.h"
#include "json/member_finder.h"

namespace kovalt {

/// What happens to the objects that a removal leaves empty.
enum class EmptyParents { keep, clear };

/// Removes the member that its key path names. All steps are plain member names here, selections included.
class RemoveAction : public KeyPath {
 public:
  RemoveAction(std::string_view keyPath, EmptyParents emptyParents);

  /// Removes the member from `document`, and with `EmptyParents::clear` also every object on the way that is then
  /// empty. The last member of an object takes the place of the removed one. Prints nothing.
  ///
  /// Returns whether it succeeded: a path without steps and a path of several steps whose last is missing count as
  /// success, a path of a single missing step does not. Ends the process where a single step meets a root that is no
  /// object, and where objects are to be cleared along a path that skipped a step.
  ///
  /// `members` is the finder of all removals from `document`.
  virtual bool execute(Document& document, MemberFinder& members) const;

 private:
  EmptyParents emptyParents_;
};

}  // namespace kovalt
