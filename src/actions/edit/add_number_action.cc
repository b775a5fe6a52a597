#include "actions/edit/add_number_action.h"

namespace kovalt {

AddNumberAction::AddNumberAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(value) {}

bool AddNumberAction::apply(Value* target, Allocator& /*allocator*/) const {
  if (target == nullptr) {
    return false;
  }
  target->SetInt(std::stoi(value_));
  return true;
}

}  // namespace kovalt
