#include "actions/edit/add_string_action.h"

namespace kovalt {

AddStringAction::AddStringAction(std::string_view keyPath, std::string_view value)
    : EditAction(keyPath), value_(value) {}

bool AddStringAction::apply(Value* target, Allocator& allocator) const {
  if (target == nullptr) {
    return false;
  }
  target->SetString(value_.data(), static_cast<rapidjson::SizeType>(value_.size()), allocator);
  return true;
}

}  // namespace kovalt
