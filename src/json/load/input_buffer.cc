#include "json/load/input_buffer.h"

#include <cstring>

#include "json/character_block.h"

namespace kovalt {

InputBuffer::InputBuffer(std::FILE* file) : file_(file) { fill(); }

const char* InputBuffer::refill(const char* cursor) {
  require(*cursor == '\0' && (cursor <= end_ || (holdsLastBytes() && cursor < end_ + kLookAhead)));
  if (cursor < end_) {
    return cursor;
  }
  if (holdsLastBytes()) {
    return end_;
  }
  before_ += kSize;
  fill();
  return bytes_;
}

const char* InputBuffer::skipWhitespace(const char* cursor) {
  do {
    cursor = endOfWhitespace<CharacterBlock>(cursor);
    if (*cursor != '\0') {
      return cursor;
    }
    cursor = refill(cursor);
  } while (isWhitespace(*cursor));
  return cursor;
}

void InputBuffer::fill() {
  const std::size_t size = std::fread(bytes_, 1, kSize, file_);
  std::memset(bytes_ + size, '\0', kLookAhead);
  end_ = bytes_ + size;
}

}  // namespace kovalt
