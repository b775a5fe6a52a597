#include "fuzz/input.h"

#include <algorithm>

namespace kovalt::fuzz {

std::string inputText(const std::uint8_t* data, std::size_t size) { return {data, data + size}; }

std::string takeUpTo(const std::string& end, std::string& text) {
  const std::size_t length = std::min(text.find(end), text.size());
  std::string front = text.substr(0, length);
  text.erase(0, length + end.size());
  return front;
}

std::vector<std::string> linesOf(std::string text) {
  std::vector<std::string> lines;
  if (text.empty()) {
    return lines;
  }
  text += '\n';
  while (!text.empty()) {
    lines.push_back(takeUpTo("\n", text));
  }
  return lines;
}

std::size_t numberIn(const std::string& text, std::size_t limit) {
  std::size_t number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9' || number > limit) {
      break;
    }
    number = number * 10 + static_cast<std::size_t>(digit - '0');
  }
  return std::min(number, limit);
}

}  // namespace kovalt::fuzz
