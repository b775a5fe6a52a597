#include "json/tuning/input_stream.h"

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

bool InputStream::passHardRest() {
  settle();
  while (*next_ != '"') {
    const bool isEscape = *next_ == '\\';
    if (!isEscape && !isPlain(*next_)) {
      return false;
    }
    Take();
    if (isEscape && !passEscape()) {
      return false;
    }
    next_ = endOfPlain<CharacterBlock>(next_);
    settle();
  }
  ++next_;
  return true;
}

bool InputStream::passEscape() {
  const char kind = Take();
  if (kind != 'u') {
    return std::string_view("\"\\/bfnrt").find(kind) != std::string_view::npos;
  }
  const unsigned unit = takeUnit();
  if (unit < 0xD800 || unit > 0xDBFF) {
    return unit <= 0xFFFF;
  }
  // Two of them stand for one character.
  if (Take() != '\\' || Take() != 'u') {
    return false;
  }
  const unsigned low = takeUnit();
  return low >= 0xDC00 && low <= 0xDFFF;
}

unsigned InputStream::takeUnit() {
  unsigned unit = 0;
  for (int i = 0; i < 4; ++i) {
    const std::size_t digit = std::string_view("0123456789abcdefABCDEF").find(Take());
    if (digit == std::string_view::npos) {
      return 0x10000;
    }
    unit = unit * 16 + static_cast<unsigned>(digit < 16 ? digit : digit - 6);
  }
  return unit;
}

}  // namespace kovalt
