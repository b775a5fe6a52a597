#pragma once

// The tokens that the scanner leaves to RapidJSON's reader: strings with escapes, numbers with exponents or many
// digits, whatever continues after the buffer, and errors.

#include <rapidjson/reader.h>

#include <cstddef>
#include <cstring>
#include <string_view>

#include "json/aborting_allocator.h"
#include "json/character_block.h"
#include "json/load/input_buffer.h"

namespace kovalt {

/// An input stream of RapidJSON's kind. Holds the cursor of a buffer, which is always ready here, while the reader
/// runs.
class ReaderStream {
 public:
  using Ch = char;

  explicit ReaderStream(InputBuffer& buffer) : buffer_(buffer), next_(buffer.takeCursor()) {
    require(buffer.isReady(next_));
  }
  ReaderStream(const ReaderStream&) = delete;
  ReaderStream& operator=(const ReaderStream&) = delete;
  ~ReaderStream() { buffer_.returnCursor(next_); }

  /// The next character; NUL at the end of the file.
  [[nodiscard]] char Peek() const { return *next_; }

  /// Returns and skips the next character.
  char Take() {
    const char taken = *next_;
    skip(1);
    return taken;
  }

  /// The number of characters before the next one.
  [[nodiscard]] std::size_t Tell() const { return buffer_.offsetOf(next_); }

  /// The unescaped characters that come next, as far as they are in the buffer. Valid until something is skipped.
  [[nodiscard]] std::string_view unescapedRun() const {
    return {next_, static_cast<std::size_t>(endOfUnescaped<CharacterBlock>(next_) - next_)};
  }

  /// Skips `count` characters of the buffer.
  void skip(std::size_t count) {
    next_ += count;
    if (*next_ == '\0') {
      next_ = buffer_.refill(next_);
    }
  }

  /// Where the reader puts the characters of a string when it parses in situ: nowhere, so that it skips strings of any
  /// length without keeping them.
  static char* PutBegin() { return nullptr; }
  static void Put(char /*character*/) {}
  static std::size_t PutEnd(char* /*begin*/) { return 1; }

 private:
  static_assert(InputBuffer::kLookAhead >= CharacterBlock::kSize, "runs of characters are scanned in blocks");

  InputBuffer& buffer_;
  const char* next_;
};

/// RapidJSON's reader of single tokens.
using TokenReader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator>;

}  // namespace kovalt

namespace rapidjson {

/// Replaces the reader's step for characters of a string that need no look at each of them, for strings that are kept.
/// It may leave any number of them to the reader.
template <>
template <>
inline void kovalt::TokenReader::ScanCopyUnescapedString(kovalt::ReaderStream& stream, StackStream<char>& text) {
  const std::string_view run = stream.unescapedRun();
  if (!run.empty()) {
    std::memcpy(text.Push(static_cast<SizeType>(run.size())), run.data(), run.size());
  }
  stream.skip(run.size());
}

/// The same for strings that are skipped.
template <>
template <>
inline void kovalt::TokenReader::ScanCopyUnescapedString(kovalt::ReaderStream& stream, kovalt::ReaderStream& /*text*/) {
  stream.skip(stream.unescapedRun().size());
}

}  // namespace rapidjson
