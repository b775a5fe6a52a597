#pragma once

// All options of the tool, one row each. The parser, the completion and the tests read the columns of this table.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "app/tool_context.h"

namespace kovalt {

/// The kind of an argument.
enum class ArgumentKind {
  none,
  keyPath,
  field,  ///< A key path inside each element of the array that the first argument names.
  value,
  booleanWord,
  file,
};

/// What follows the first argument of an option.
struct FurtherArguments {
  ArgumentKind kind = ArgumentKind::none;
  bool isList = false;  ///< Whether any number may follow; otherwise exactly one does, or none if `kind` is `none`.
  bool endsInSeparators = false;  ///< Whether the last value of the list contains the separators.
};

/// What an option adds to a call.
enum class OptionEffect {
  edit,
  removal,
  read,
  workFile,  ///< The file to work on. None may follow one whose path is not empty.
};

/// The arguments of one option on the command line. Those that the option does not have are empty.
struct OptionArguments {
  std::string first;   ///< The key path; the file of an option without a key path.
  std::string second;  ///< The value or the file after a key path.
  std::vector<std::string> list;
  std::string separators;
};

/// A row of the table.
struct Option {
  std::string_view longForm;
  std::string_view shortForm;
  ArgumentKind first;
  FurtherArguments further;
  int requiredArguments;  ///< How many arguments must follow, whatever they begin with.
  OptionEffect effect;
  std::string_view description;  ///< In a few words, for a list of completions.
  /// Adds the option with these arguments to the context.
  void (*addTo)(ToolContext& context, OptionArguments&& arguments);
};

/// The whole table.
extern const std::array<Option, 21> kOptionTable;

/// Returns the row whose long or short form is `form`, or nullptr.
const Option* findOption(std::string_view form);

}  // namespace kovalt
