#pragma once

// A call on one file, done option by option on plain lists in the most obvious way.

#include <optional>
#include <string>
#include <vector>

#include "fuzz/ends.h"
#include "fuzz/plain_value.h"

namespace kovalt::fuzz {

/// An option with its arguments.
struct PlainOption {
  std::string name;
  std::string keyPath;
  std::string value;
};

/// What a call leaves; after an early end, only its messages.
struct PlainCall {
  std::optional<End> end;
  bool modified = false;
  PlainValue document;
  std::string output;
  std::string errors;
};

/// The value of `root` that `keyPath` names, or nullptr. Adds to `errors` what the walk reports: a selection that finds
/// nothing, and with `reportsMissing` a missing member.
PlainValue* walkPlain(PlainValue& root, const std::string& keyPath, bool reportsMissing, std::string& errors);

/// Does what the additions -as, -an, -ab, -ao and -afat, the removals -rm and -rmc and the reads -r of `options` do to
/// `document`. The value of -an has to be a number in the form in which it is printed; -afat merges `merged`, whatever
/// file it names.
PlainCall callPlainly(const std::vector<PlainOption>& options, PlainValue document, const PlainValue& merged);

/// The text of `value`, indented by `indent` spaces a level; without any white space for 0.
std::string plainText(const PlainValue& value, std::size_t indent);

}  // namespace kovalt::fuzz
