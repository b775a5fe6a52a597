#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets an array of signed 32-bit integers.
class AddArrayNumberAction : public EditAction {
 public:
  AddArrayNumberAction(std::string_view keyPath, std::vector<std::string> values);

  /// Makes `target` an array of the values, each converted as std::stoi does. An array that was there is replaced.
  /// Returns false only for a null target. A value that is no number throws what std::stoi throws, which nobody
  /// catches: the call ends there, before any output.
  bool apply(Value* target, Allocator& allocator) const override;

 private:
  std::vector<std::string> values_;
};

}  // namespace kovalt
