#pragma once

// The additions of one value that holds no others, and of the empty object. All of them replace what stood at the
// target, without a look at its type, and return false for a null target, silently.

#include <string>
#include <string_view>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets a string.
class AddStringAction : public EditAction {
 public:
  AddStringAction(std::string_view keyPath, std::string_view value);
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::string value_;
};

/// Sets a signed 32-bit integer.
class AddNumberAction : public EditAction {
 public:
  AddNumberAction(std::string_view keyPath, std::string_view value);

  /// Converts the value as std::stoi does. A text without leading digits or out of range throws what std::stoi throws,
  /// which nobody catches: the call ends there, before any output.
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::string value_;
};

/// Sets a boolean.
class AddBooleanAction : public EditAction {
 public:
  AddBooleanAction(std::string_view keyPath, std::string_view value);

  /// Returns false with `target` as it was for a word that means no boolean, which is reported on standard error.
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;

 private:
  std::string value_;  ///< In lower case.
};

/// Sets an empty object, also where an object with members was.
class AddObjectAction : public EditAction {
 public:
  using EditAction::EditAction;
  bool apply(Value* target, Allocator& allocator, MemberFinder& members) const override;
};

}  // namespace kovalt
