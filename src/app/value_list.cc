#include "app/value_list.h"

#include <algorithm>

namespace kovalt {

std::vector<std::string> collectValues(int& position, int argumentCount, const char* const* arguments) {
  std::vector<std::string> values;
  while (position + 1 < argumentCount) {
    const std::string_view next = arguments[position + 1];
    if (next.empty() || next.front() == '-') {
      break;
    }
    values.emplace_back(next);
    ++position;
  }
  return values.size() == 1 ? splitAt(values.front(), ',') : values;
}

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
