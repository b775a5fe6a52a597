#pragma once

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets an empty object.
class AddObjectAction : public EditAction {
 public:
  using EditAction::EditAction;

  /// Makes `target` an empty object, also where it was an object with members; false only for a null target.
  bool apply(Value* target, Allocator& allocator) const override;
};

}  // namespace kovalt
