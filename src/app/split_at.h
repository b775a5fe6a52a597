#pragma once

// The splitting of a comma list.

#include <string>
#include <string_view>
#include <vector>

namespace kovalt {

/// Cuts `text` at every `separator`, as reading it line by line with that delimiter does: empty pieces are kept, but
/// none stands behind a trailing separator, and an empty text has no piece.
std::vector<std::string> splitAt(std::string_view text, char separator);

}  // namespace kovalt
