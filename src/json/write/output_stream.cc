#include "json/write/output_stream.h"

namespace kovalt {

void OutputStream::putRestOfString(std::string_view text) {
  while (!text.empty()) {
    makeRoom();
    const auto room = static_cast<std::size_t>(buffer_ + sizeof(buffer_) - end_);
    const std::size_t unescaped = copyUnescaped(text.data(), std::min(text.size(), room), end_);
    end_ += unescaped;
    text.remove_prefix(unescaped);
    if (!text.empty() && !isUnescaped(text.front())) {
      putEscaped(text.front());
      text.remove_prefix(1);
    }
  }
  Put('"');
}

void OutputStream::putEscaped(char character) {
  constexpr std::string_view kNamed = "\"\\\b\f\n\r\t";
  constexpr std::string_view kNames = "\"\\bfnrt";
  const std::size_t position = kNamed.find(character);
  Put('\\');
  if (position != std::string_view::npos) {
    Put(kNames[position]);
    return;
  }
  char* const digits = Push(5);
  std::string_view(character < '\x10' ? "u000" : "u001").copy(digits, 4);
  digits[4] = "0123456789ABCDEF"[character % 16];
}

}  // namespace kovalt
