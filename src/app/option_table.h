#pragma once

// All options of the tool, one row each. The parser, and everything that lists options, reads this table.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "app/tool_context.h"

namespace kovalt {

/// The arguments that follow an option.
enum class ArgumentShape {
  keyPath,
  keyPathAndValue,
  keyPathAndFile,
  keyPathAndList,              ///< The list may be empty.
  keyPathAndFields,            ///< A list too, but at least one argument must stand behind the key path.
  keyPathFieldsAndSeparators,  ///< As before; the last value of the list holds the separators.
  file,
  workFile,  ///< The file to work on, given once at most.
};

/// The arguments of one option on the command line. A shape leaves empty what it does not have.
struct OptionArguments {
  std::string first;   ///< The key path, or the file of an option without one.
  std::string second;  ///< The value or the file behind a key path.
  std::vector<std::string> list;
  std::string separators;
};

/// A row of the table.
struct Option {
  std::string_view longForm;
  std::string_view shortForm;
  ArgumentShape shape;
  /// Adds to the context what the option with these arguments asks for.
  void (*addTo)(ToolContext& context, OptionArguments&& arguments);
};

/// The number of options.
inline constexpr std::size_t kOptionCount = 21;

/// The whole table.
const std::array<Option, kOptionCount>& optionTable();

/// The row whose long or short form is exactly `form`, or nullptr.
const Option* findOption(std::string_view form);

}  // namespace kovalt
