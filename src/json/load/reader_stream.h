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

/// An input stream of RapidJSON's kind. Holds the cursor of a buffer, which must outlive it, while RapidJSON's reader
/// runs. The cursor is ready between operations, and must be ready at the start.
class ReaderStream {
 public:
  using Ch = char;

  explicit ReaderStream(InputBuffer& buffer) : buffer_(buffer), next_(buffer.takeCursor()) {
    require(buffer.isReady(next_));
  }
  ReaderStream(const ReaderStream&) = delete;
  ~ReaderStream() { buffer_.returnCursor(next_); }

  /// The next character; NUL at the end of the file.
  [[nodiscard]] char Peek() const { return *next_; }

  /// Returns and skips the next character. At the end of the file returns NUL and stays there.
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

  /// Skips `count` characters, which must be in the buffer; or one at the end of the file, which skips nothing.
  void skip(std::size_t count) {
    next_ += count;
    if (*next_ == '\0') {
      next_ = buffer_.refill(next_);
    }
  }

  /// Where the reader puts the characters of a string when it parses in situ: nowhere, so that it skips strings of any
  /// length without keeping them. It subtracts the terminating NUL, so 1 means an empty string.
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

/// Replaces the reader's function that copies the unescaped characters of a string, for strings that are kept. It may
/// stop early: the reader copies the next character itself and calls it again.
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
