#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets an array of strings.
class AddArrayAction : public EditAction {
 public:
  AddArrayAction(std::string_view keyPath, std::vector<std::string> values);

  /// Makes `target` an array of the values, each up to its first NUL byte. An array that was there is replaced. Returns
  /// false only for a null target.
  bool apply(Value* target, Allocator& allocator) const override;

 private:
  std::vector<std::string> values_;
};

}  // namespace kovalt
