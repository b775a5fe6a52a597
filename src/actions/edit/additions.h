#pragma once

// The additions of values that are given on the command line. All of them replace the target without looking at what it
// is, and return false for a null target, silently.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "actions/edit/edit_action.h"

namespace kovalt {

/// Sets a string.
class AddStringAction : public EditAction {
 public:
  AddStringAction(std::string_view keyPath, std::string_view value) : EditAction(keyPath), value_(value) {}

  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::string value_;
};

/// Sets a signed 32-bit integer.
class AddNumberAction : public EditAction {
 public:
  AddNumberAction(std::string_view keyPath, std::string_view value) : EditAction(keyPath), value_(value) {}

  /// Converts the value as std::stoi does. That throws if the text does not begin with an integer, or if the integer is
  /// out of range. Nothing catches the exception: the call aborts before it displays, saves or reads the
  /// edited document.
  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::string value_;
};

/// Sets a boolean: true or 1, false or 0, in any mix of upper and lower case.
class AddBooleanAction : public EditAction {
 public:
  AddBooleanAction(std::string_view keyPath, std::string_view value);

  /// Returns false with `target` unchanged for any other word, which is reported on standard error.
  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::string value_;  ///< In lower case.
};

/// Sets an empty object, and empties an object that has members.
class AddObjectAction : public EditAction {
 public:
  using EditAction::EditAction;

  bool apply(Value* target, EditedDocument& document) const override;
};

/// Sets an array of strings.
class AddArrayAction : public EditAction {
 public:
  AddArrayAction(std::string_view keyPath, std::vector<std::string> values)
      : EditAction(keyPath), values_(std::move(values)) {}

  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::vector<std::string> values_;
};

/// Sets an array of signed 32-bit integers.
class AddArrayNumberAction : public EditAction {
 public:
  AddArrayNumberAction(std::string_view keyPath, std::vector<std::string> values)
      : EditAction(keyPath), values_(std::move(values)) {}

  /// Converts each value as `AddNumberAction` does.
  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::vector<std::string> values_;
};

/// Sets an array of booleans.
class AddArrayBooleanAction : public EditAction {
 public:
  AddArrayBooleanAction(std::string_view keyPath, const std::vector<std::string>& values);

  /// A word that is not a boolean becomes null, and one line on standard error then lists all words. That
  /// still returns true.
  bool apply(Value* target, EditedDocument& document) const override;

 private:
  std::vector<std::string> values_;  ///< In lower case.
};

}  // namespace kovalt
