#pragma once

#include <string>
#include <string_view>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets a string.
class AddStringAction : public EditAction {
 public:
  AddStringAction(std::string_view keyPath, std::string_view value);

  /// Makes `target` a string; false only for a null target.
  bool apply(Value* target, Allocator& allocator) const override;

 private:
  std::string value_;
};

}  // namespace kovalt
