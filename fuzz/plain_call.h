#pragma once

// A call on one file, implemented in the most obvious way: one option after another, on plain lists.

#include <optional>
#include <string>
#include <vector>

#include "fuzz/early_exits.h"
#include "fuzz/plain_value.h"

namespace kovalt::fuzz {

/// An option with its arguments.
struct PlainOption {
  std::string name;
  std::string keyPath;
  std::string value;
};

/// The result of a call. After an early exit only the messages are valid.
struct PlainCall {
  std::optional<Exit> earlyExit;
  bool modified = false;
  PlainValue document;
  std::string output;
  std::string errors;
};

/// Returns the value in `root` that `keyPath` names, or nullptr. Adds the messages of the walk to `errors`: a selection
/// that finds nothing, and with `reportsMissing` a missing member.
PlainValue* walkPlain(PlainValue& root, const std::string& keyPath, bool reportsMissing, std::string& errors);

/// Applies `options` to `document`: the additions -as, -an, -ab, -ao and -afat, the removals -rm and -rmc, and the
/// reads -r. The value of -an must be a number as Kovalt prints it. -afat merges `merged`, whatever file it names.
PlainCall callPlainly(const std::vector<PlainOption>& options, PlainValue document, const PlainValue& merged);

/// Returns the text of `value`, indented by `indent` spaces per level; for 0, without any whitespace.
std::string plainText(const PlainValue& value, std::size_t indent);

}  // namespace kovalt::fuzz
