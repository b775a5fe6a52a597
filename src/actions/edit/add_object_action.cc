#include "actions/edit/add_object_action.h"

namespace kovalt {

bool AddObjectAction::apply(Value* target, Allocator& /*allocator*/) const {
  if (target == nullptr) {
    return false;
  }
  target->SetObject();
  return true;
}

}  // namespace kovalt
