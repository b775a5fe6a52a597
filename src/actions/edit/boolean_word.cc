#include "actions/edit/boolean_word.h"

#include <algorithm>
#include <cctype>

#include "json/standard_streams.h"

namespace kovalt {

std::string toLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return lower;
}

std::optional<bool> booleanFromWord(std::string_view word) {
  if (word == "true" || word == "1") {
    return true;
  }
  if (word == "false" || word == "0") {
    return false;
  }
  return std::nullopt;
}

void reportRejectedBoolean(std::string_view rejected) {
  std::string message = "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, ";
  message.append(rejected).append(" rejected.");
  reportLine(message);
}

}  // namespace kovalt
