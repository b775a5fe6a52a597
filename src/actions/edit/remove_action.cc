#include "actions/edit/remove_action.h"

#include <cstdlib>
#include <string>
#include <vector>

#include "json/find_member.h"

namespace kovalt {
namespace {

bool removeMember(Value& object, const std::string& name) {
  return object.RemoveMember(Value(rapidjson::StringRef(name.data(), static_cast<rapidjson::SizeType>(name.size()))));
}

/// The way to the object that holds the last step of a path.
struct Walk {
  /// The object of each step but the last, behind the root; nullptr for a step that was skipped.
  std::vector<Value*> ancestors;
  /// The innermost of them.
  Value* parent;
};

/// A step that names no object is no error: it is skipped, and the next one is looked up in the same object.
Walk walkToParent(const std::vector<std::string>& steps, Value& root) {
  Walk walk = {{&root}, &root};
  for (auto step = steps.begin(); step + 1 != steps.end(); ++step) {
    Value* member = findMember(*walk.parent, *step);
    if (member != nullptr && member->IsObject()) {
      walk.ancestors.push_back(member);
      walk.parent = member;
    } else {
      walk.ancestors.push_back(nullptr);
    }
  }
  return walk;
}

/// Removes the ancestors that hold nothing, from the innermost outwards. Those that hold something stay, and so does
/// the root.
bool removeEmptyAncestors(const std::vector<std::string>& steps, const std::vector<Value*>& ancestors) {
  bool removed = true;
  for (std::size_t i = ancestors.size() - 1; i > 0; --i) {
    if (ancestors[i] == nullptr || ancestors[i - 1] == nullptr) {
      // Along a path with a skipped step it is not known what to clear: end before anything is printed or saved.
      std::abort();
    }
    if (ancestors[i]->ObjectEmpty()) {
      removed &= removeMember(*ancestors[i - 1], steps[i - 1]);
    }
  }
  return removed;
}

}  // namespace

RemoveAction::RemoveAction(std::string_view keyPath, EmptyParents emptyParents)
    : KeyPath(keyPath, kStepSeparator), emptyParents_(emptyParents) {}

bool RemoveAction::execute(Document& document) const {
  if (steps().empty()) {
    return true;
  }
  if (steps().size() == 1) {
    return removeMember(document, steps().front());
  }
  const Walk walk = walkToParent(steps(), document);
  if (findMember(*walk.parent, steps().back()) == nullptr) {
    // Unlike a single missing step this counts as done, so the file is rewritten.
    return true;
  }
  const bool removed = removeMember(*walk.parent, steps().back());
  return emptyParents_ == EmptyParents::keep ? removed : removeEmptyAncestors(steps(), walk.ancestors) && removed;
}

}  // namespace kovalt
