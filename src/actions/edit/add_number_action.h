#pragma once

#include <string>
#include <string_view>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets a signed 32-bit integer.
class AddNumberAction : public EditAction {
 public:
  AddNumberAction(std::string_view keyPath, std::string_view value);

  /// Makes `target` an integer, converted as std::stoi does; false only for a null target. A text without leading
  /// digits or out of range throws what std::stoi throws, which nobody catches: the call ends there, before any output.
  bool apply(Value* target, Allocator& allocator) const override;

 private:
  std::string value_;
};

}  // namespace kovalt
