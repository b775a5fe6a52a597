#include "json/tuning/input_stream.h"

#include <charconv>
#include <cstring>

namespace kovalt {
InputBuffer::InputBuffer(std::FILE* file) : file_(file) { fill(); }

const char* InputBuffer::settle(const char* place) {
  if (place < end_) {
    return place;
  }
  // Less than the whole buffer was read at the end of the file, after which nothing may be read again.
  if (end_ == bytes_ + kSize) {
    before_ += kSize;
    fill();
    return bytes_;
  }
  return end_;
}

const char* InputBuffer::skipBlanks(const char* place) {
  do {
    place = endOfBlanks<CharacterBlock>(place);
    if (*place != '\0') {
      return place;
    }
    place = settle(place);
  } while (isBlank(*place));
  return place;
}

void InputBuffer::fill() {
  const std::size_t size = std::fread(bytes_, 1, kSize, file_);
  std::memset(bytes_ + size, '\0', CharacterBlock::kSize);
  end_ = bytes_ + size;
}

std::size_t InputStream::unicodeEscapeLength(const char* text) {
  const auto readUnit = [](const char* escape, unsigned& unit) {
    return escape[0] == '\\' && escape[1] == 'u' && std::from_chars(escape + 2, escape + 6, unit, 16).ptr == escape + 6;
  };
  unsigned unit = 0;
  unsigned low = 0;
  if (!readUnit(text, unit)) {
    return 0;
  }
  if (unit < 0xD800 || unit > 0xDBFF) {
    return 6;
  }
  return readUnit(text + 6, low) && low >= 0xDC00 && low <= 0xDFFF ? 12 : 0;
}

}  // namespace kovalt
