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

}  // namespace kovalt
