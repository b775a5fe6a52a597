#include "actions/edit/remove_action.h"

#include <string>
#include <vector>

#include "json/process_exit.h"

namespace kovalt {
namespace {

/// The objects on the path to a removed member.
struct Walk {
  /// The root, then the object of each step but the last; nullptr for a step that was skipped.
  std::vector<Value*> ancestors;
  /// The innermost of them.
  Value* parent;
};

/// A step that does not name an object is not an error: it is skipped, and the next one is looked up in the same
/// object.
Walk walkToParent(const std::vector<std::string>& steps, Value& root, MemberFinder& members) {
  Walk walk = {{&root}, &root};
  for (auto step = steps.begin(); step + 1 != steps.end(); ++step) {
    Value* const member = members.find(*walk.parent, *step);
    const bool isSkipped = member == nullptr || !member->IsObject();
    walk.ancestors.push_back(isSkipped ? nullptr : member);
    walk.parent = isSkipped ? walk.parent : member;
  }
  return walk;
}

/// Removes the empty ancestors, from the innermost outwards. The others stay, and so does the root.
void removeEmptyAncestors(const std::vector<std::string>& steps, const std::vector<Value*>& ancestors,
                          MemberFinder& members) {
  for (std::size_t i = ancestors.size() - 1; i > 0; --i) {
    if (ancestors[i] == nullptr || ancestors[i - 1] == nullptr) {
      // A path with a skipped step does not say which objects to clear: abort before anything is displayed or saved.
      abortProcess();
    }
    if (ancestors[i]->ObjectEmpty()) {
      members.remove(*ancestors[i - 1], steps[i - 1]);
    }
  }
}

}  // namespace

bool RemoveAction::execute(EditedDocument& document) const {
  MemberFinder& members = document.lookups.members;
  if (steps().empty()) {
    return true;
  }
  if (steps().size() == 1) {
    return members.remove(document.root, steps().front());
  }
  const Walk walk = walkToParent(steps(), document.root, members);
  // Unlike a single missing step, a missing last step succeeds, so that the file is rewritten.
  if (walk.parent->IsObject() && members.remove(*walk.parent, steps().back()) && emptyParents_ == EmptyParents::clear) {
    removeEmptyAncestors(steps(), walk.ancestors, members);
  }
  return true;
}

}  // namespace kovalt
