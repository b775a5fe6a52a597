#pragma once

// The values of an option that takes a list.

#include <string>
#include <string_view>
#include <vector>

namespace kovalt {

/// The values of a list: all arguments after `position` up to the first that is empty or begins with "-", so that a
/// negative number ends the list too. A single value is cut at its commas. `position` moves on to the last value taken.
std::vector<std::string> collectValues(int& position, int argumentCount, const char* const* arguments);

/// Cuts `text` at every `separator`, as reading it line by line with that delimiter does: empty pieces are kept, but
/// there is none after a trailing separator, and an empty text has no piece.
std::vector<std::string> splitAt(std::string_view text, char separator);

}  // namespace kovalt
