#include "actions/edit/add_boolean_action.h"

#include "actions/edit/boolean_word.h"

namespace kovalt {

AddBooleanAction::AddBooleanAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(toLower(value)) {}

bool AddBooleanAction::apply(Value* target, Allocator& /*allocator*/) const {
  if (target == nullptr) {
    return false;
  }
  const std::optional<bool> boolean = booleanFromWord(value_);
  if (!boolean) {
    reportRejectedBoolean(value_);
    return false;
  }
  target->SetBool(*boolean);
  return true;
}

}  // namespace kovalt
