#include "app/split_at.h"

#include <algorithm>

namespace kovalt {

std::vector<std::string> splitAt(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(separator), text.size());
    pieces.emplace_back(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return pieces;
}

}  // namespace kovalt
