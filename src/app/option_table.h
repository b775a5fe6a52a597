#pragma once

// All options of the tool, one row each. The parser, the completion and everything that lists options reads the columns
// of this table.

#include <string>
#include <string_view>
#include <vector>

#include "app/tool_context.h"

namespace kovalt {

/// What an argument of an option is.
enum class ArgumentKind {
  none,
  keyPath,
  field,  ///< A key path that starts at each object of the array that the first argument names.
  value,
  booleanWord,
  file,
};

/// What follows the first argument of an option.
struct FurtherArguments {
  ArgumentKind kind = ArgumentKind::none;
  bool isList = false;            ///< Any number of them; otherwise there is exactly one.
  bool endsInSeparators = false;  ///< The last value of the list is not one of them, but holds the separators.
};

/// What an option adds to a call.
enum class OptionEffect {
  edit,
  removal,
  read,
  workFile,  ///< The file to work on, given once at most.
};

/// The arguments of one option on the command line. What an option does not have stays empty.
struct OptionArguments {
  std::string first;   ///< The key path, or the file of an option without one.
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
  int requiredArguments;  ///< How many arguments must follow, whatever they look like.
  OptionEffect effect;
  std::string_view description;  ///< In a few words, for people who choose from a list.
  /// Adds to the context what the option with these arguments asks for.
  void (*addTo)(ToolContext& context, OptionArguments&& arguments);
};

/// The whole table, a range of rows.
struct OptionTable {
  static const Option* begin();
  static const Option* end();
};

/// The row whose long or short form is exactly `form`, or nullptr.
const Option* findOption(std::string_view form);

}  // namespace kovalt
