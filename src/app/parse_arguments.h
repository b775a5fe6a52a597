#pragma once

// The command-line parser, and the values of options that have a list.

#include <string>
#include <string_view>
#include <vector>

#include "app/tool_context.h"

namespace kovalt {

/// Fills `context` from the arguments after the first one, which is the program's own name. Does not touch any file.
/// Returns false at the first error, after one line on standard output. Also returns false, silently, if the only
/// argument is the program's name, and true if there is not even that.
bool parseArguments(ToolContext& context, int argumentCount, const char* const* arguments);

/// Returns the values of a list: all arguments after `position` up to the first that is empty or begins with "-", so
/// that a negative number ends the list too. A single value is split at its commas. Moves `position` to the last value
/// consumed.
std::vector<std::string> collectValues(int& position, int argumentCount, const char* const* arguments);

/// Splits `text` at every `separator`, as `std::getline` with that delimiter does: empty pieces are kept, but there is
/// none after a trailing separator, and an empty text has no piece.
std::vector<std::string> splitAt(std::string_view text, char separator);

}  // namespace kovalt
