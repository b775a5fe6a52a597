#include "actions/edit/edit_action.h"

#include <utility>

#include "json/path/wrap_in_path.h"

namespace kovalt {

bool EditAction::apply(Value* /*target*/, EditedDocument& /*document*/) const { return true; }

bool applyAtPath(const EditAction& action, EditedDocument& document) {
  Value* target = resolveExisting(action.keyPath(), document.root, document.lookups);
  return target != nullptr && action.apply(target, document);
}

Value buildPathChain(const EditAction& action, EditedDocument& document) {
  Value leaf;
  // A value that is not accepted is reported here even if `applyAtPath` has already reported it. The leaf stays null.
  action.apply(&leaf, document);
  return wrapInPath(action.keyPath(), std::move(leaf), document.allocator);
}

}  // namespace kovalt
