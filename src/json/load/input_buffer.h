#pragma once

// The bytes of a file while it is loaded.

#include <cstddef>
#include <cstdio>
#include <utility>

#include "json/contract.h"

namespace kovalt {

/// Holds 8,192 bytes of a file at a time, and the cursor into them.
///
/// DESCRIPTION. The cursor points to the next byte to read. It has one holder at a time: a `Scanner` or `ReaderStream`
/// takes it from the buffer and returns it when it is destroyed; a scanner can also lend it. A cursor is ready when it
/// points to a byte of the file, or to the end of the file once a read has found that end. After it was moved over a
/// token, a refill is said to be pending: the cursor may have reached the end of the buffer, so a NUL byte there means
/// nothing until `refill` was called.
///
/// IMPLEMENTATION. The bytes are followed by `kLookAhead` NUL bytes, so that every run of characters of one kind ends
/// at the end of the buffer without a check, and blocks may be read there. A NUL byte can also be a byte of the file;
/// only `refill` distinguishes the two.
class InputBuffer {
 public:
  /// How many characters can be read from any cursor on, also from one at the end of the buffer.
  static constexpr std::size_t kLookAhead = 16;

  /// Reads the first bytes. `file` must stay open while the buffer is used.
  explicit InputBuffer(std::FILE* file);
  InputBuffer(const InputBuffer&) = delete;
  InputBuffer& operator=(const InputBuffer&) = delete;

  /// Gives the cursor to the caller. Requires that nobody holds it.
  const char* takeCursor() {
    require(cursor_ != nullptr);
    return std::exchange(cursor_, nullptr);
  }

  /// Takes the cursor back from its holder. Requires that somebody holds it. A refill may be pending.
  void returnCursor(const char* cursor) {
    require(cursor_ == nullptr);
    cursor_ = cursor;
  }

  /// Makes `cursor` ready. Requires that it points to a NUL byte: one of the file, the one at the end of the buffer,
  /// or, if the file ends there, any of the look-ahead. At the end of the buffer, reads the next bytes and returns a
  /// cursor to the first of them; at the end of the file, returns the end, where there is a NUL byte too; otherwise
  /// returns `cursor`.
  const char* refill(const char* cursor);

  /// Returns the first place from `cursor` on that is not whitespace, across the ends of the buffer. A refill may be
  /// pending; the result is ready.
  const char* skipWhitespace(const char* cursor);

  /// Whether the file ends at `cursor`, which must be ready.
  [[nodiscard]] bool isEndOfFile(const char* cursor) const {
    require(isReady(cursor));
    return cursor == end_;
  }

  /// Whether `cursor` is ready.
  [[nodiscard]] bool isReady(const char* cursor) const { return cursor < end_ || (cursor == end_ && holdsLastBytes()); }

  /// The number of bytes of the file before `cursor`, which must be ready.
  [[nodiscard]] std::size_t offsetOf(const char* cursor) const {
    require(isReady(cursor));
    return before_ + static_cast<std::size_t>(cursor - bytes_);
  }

 private:
  static constexpr std::size_t kSize = 8192;

  void fill();
  /// A read that does not fill the buffer has reached the end of the file or failed; nothing may be read after it.
  [[nodiscard]] bool holdsLastBytes() const { return end_ != bytes_ + kSize; }

  // Not initialised: that would cost more than reading a small file. Aligned to a page, where the system copies
  // fastest.
  alignas(4096) char bytes_[kSize + kLookAhead];
  std::FILE* file_;
  std::size_t before_ = 0;       ///< The number of bytes of the file before those in the buffer.
  const char* end_ = nullptr;    ///< The end of the bytes in the buffer.
  const char* cursor_ = bytes_;  ///< nullptr while somebody holds it.
};

}  // namespace kovalt
