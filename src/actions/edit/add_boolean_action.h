#pragma once

#include <string>
#include <string_view>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets a boolean.
class AddBooleanAction : public EditAction {
 public:
  AddBooleanAction(std::string_view keyPath, std::string_view value);

  /// Makes `target` true or false. Returns false for a null target, and for a word that means neither, which is
  /// reported on standard error.
  bool apply(Value* target, Allocator& allocator) const override;

 private:
  std::string value_;
};

}  // namespace kovalt
