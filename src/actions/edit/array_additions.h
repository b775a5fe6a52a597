#pragma once

// The additions of a whole array, built from the values of a list. All of them replace what stood at the target, an
// array too, and return false only for a null target, silently.

#include <string>
#include <string_view>
#include <vector>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets an array of strings.
class AddArrayAction : public EditAction {
 public:
  AddArrayAction(std::string_view keyPath, std::vector<std::string> values);

  /// Takes each value up to its first NUL byte.
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::vector<std::string> values_;
};

/// Sets an array of signed 32-bit integers.
class AddArrayNumberAction : public EditAction {
 public:
  AddArrayNumberAction(std::string_view keyPath, std::vector<std::string> values);

  /// Converts each value as std::stoi does. One that is no number throws what std::stoi throws, which nobody catches:
  /// the call ends there, before any output.
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::vector<std::string> values_;
};

/// Sets an array of booleans.
class AddArrayBooleanAction : public EditAction {
 public:
  AddArrayBooleanAction(std::string_view keyPath, const std::vector<std::string>& values);

  /// A word that means no boolean becomes null, and one line on standard error then lists all the words.
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::vector<std::string> values_;  ///< In lower case.
};

}  // namespace kovalt
