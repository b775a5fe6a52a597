#include "actions/edit/add_array_action.h"

#include <utility>

#include "actions/edit/start_array.h"

namespace kovalt {

AddArrayAction::AddArrayAction(std::string_view keyPath, std::vector<std::string> values)
    : EditAction(keyPath), values_(std::move(values)) {}

bool AddArrayAction::apply(Value* target, Allocator& allocator) const {
  if (target == nullptr) {
    return false;
  }
  startArray(*target, values_.size(), allocator);
  for (const std::string& value : values_) {
    target->PushBack(Value(value.c_str(), allocator), allocator);
  }
  return true;
}

}  // namespace kovalt
