#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets an array of booleans.
class AddArrayBooleanAction : public EditAction {
 public:
  AddArrayBooleanAction(std::string_view keyPath, const std::vector<std::string>& values);

  /// Makes `target` an array of the values. An array that was there is replaced. A word that means no boolean becomes
  /// null, and one line on standard error then lists all the words. Returns false only for a null target.
  bool apply(Value* target, Allocator& allocator) const override;

 private:
  std::vector<std::string> values_;
};

}  // namespace kovalt
