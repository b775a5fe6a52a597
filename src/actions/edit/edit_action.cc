#include "actions/edit/edit_action.h"

#include <utility>

#include "json/wrap_in_path.h"

namespace kovalt {

EditAction::EditAction(std::string_view keyPath) : keyPath_(keyPath) {}

EditAction::~EditAction() = default;

bool EditAction::apply(Value* /*target*/, Allocator& /*allocator*/, MemberFinder& /*members*/) const { return true; }

bool applyAtPath(const EditAction& action, Document& document, Lookups& lookups) {
  Value* target = resolveExisting(action.keyPath(), document, lookups);
  return target != nullptr && action.apply(target, document.GetAllocator(), lookups.members);
}

Value buildPathChain(const EditAction& action, Allocator& allocator, MemberFinder& members) {
  Value leaf;
  // What was refused has been reported; the leaf then stays null.
  action.apply(&leaf, allocator, members);
  return wrapInPath(action.keyPath(), std::move(leaf), allocator);
}

}  // namespace kovalt
