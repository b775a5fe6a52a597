#pragma once

// The words that stand for a boolean on the command line.

#include <optional>
#include <string>
#include <string_view>

namespace kovalt {

/// `text` with the letters A to Z in lower case.
std::string toLower(std::string_view text);

/// The boolean that a lower-case word means: true or 1, false or 0; nothing for any other text.
std::optional<bool> booleanFromWord(std::string_view word);

/// Reports on standard error that `rejected`, a word or a list of words, is not accepted.
void reportRejectedBoolean(std::string_view rejected);

}  // namespace kovalt
