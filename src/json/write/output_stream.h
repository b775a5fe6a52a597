#pragma once

// The text of a value on its way to a file or to standard output.

#include <rapidjson/internal/itoa.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "json/aborting_allocator.h"
#include "json/character_block.h"
#include "json/contract.h"
#include "json/write/double_text.h"

namespace kovalt {

/// An output stream of RapidJSON's kind that collects a text and writes it in pieces of 65,536 bytes.
///
/// DESCRIPTION. Strings, starts of lines and most numbers are added as a whole, where RapidJSON's writers add them to
/// other streams character by character. Write errors are not noticed. Nothing is written unless a piece is full or
/// `Flush` is called.
///
/// IMPLEMENTATION. Each operation makes room for `kRoom` characters before it adds any, and again before it adds more
/// than that. Only long strings fill the rest of the buffer. What is beyond a full piece moves to the front of the next
/// one.
class OutputStream {
 public:
  using Ch = char;

  /// What one call of `Push` or `putShort` can add.
  static constexpr std::size_t kShort = 32;

  /// `file` must stay open while the stream is used.
  // cppcheck-suppress uninitMemberVar
  explicit OutputStream(std::FILE* file) : file_(file) {}
  OutputStream(const OutputStream&) = delete;
  OutputStream& operator=(const OutputStream&) = delete;

  /// Adds one character.
  void Put(char character) {
    makeRoom();
    *end_++ = character;
  }

  /// Adds `count` characters, at most `kShort`, and returns where the caller must put them before the next operation.
  char* Push(std::size_t count) {
    require(count <= kShort);
    makeRoom();
    char* const added = end_;
    end_ += count;
    return added;
  }

  /// Adds the characters, at most `kShort`, that `write` puts to the place it is given. `write` returns their end.
  template <typename Write>
  void putShort(Write write) {
    makeRoom();
    char* const end = write(end_);
    require(end <= end_ + kShort);
    end_ = end;
  }

  /// Adds a comma if `comma`, a line end, and `spaces` spaces.
  void startLine(bool comma, std::size_t spaces) {
    makeRoom();
    *end_ = ',';
    end_ += comma ? 1 : 0;
    *end_++ = '\n';
    putSpaces(spaces);
  }

  /// Adds `count` spaces. Sets `kShort` characters at a time, because a fixed size compiles to plain stores. The excess
  /// is overwritten later.
  void putSpaces(std::size_t count) {
    while (true) {
      makeRoom();
      std::memset(end_, ' ', kShort);
      end_ += std::min(count, kShort);
      if (count <= kShort) {
        return;
      }
      count -= kShort;
    }
  }

  /// Adds `text` as a JSON string.
  void putString(std::string_view text) {
    makeRoom();
    *end_ = '"';
    if (text.size() <= kShort && copyUnescaped(text.data(), text.size(), end_ + 1) == text.size()) {
      end_ += text.size() + 1;
      *end_++ = '"';
    } else {
      ++end_;
      putRestOfString(text);
    }
  }

  /// Writes the collected text. Without it, the last piece is lost.
  void Flush() {
    makeRoom();
    write(static_cast<std::size_t>(end_ - buffer_));
  }

 private:
  static constexpr std::size_t kPiece = 65536;
  static constexpr std::size_t kRoom = 2 * kShort;
  static_assert(kRoom >= kShort + 2, "a short string has two quotes, the start of a line a comma and a line end");

  /// Adds the characters of a JSON string and the closing quote.
  void putRestOfString(std::string_view text);

  /// Adds a character that must be escaped in a JSON string.
  void putEscaped(char character);

  /// Makes room for `kRoom` characters.
  void makeRoom() {
    if (end_ > buffer_ + kPiece) {
      write(kPiece);
    }
    require(end_ + kRoom <= buffer_ + sizeof(buffer_));
  }

  /// Writes the first `size` characters.
  void write(std::size_t size) {
    std::fwrite(buffer_, 1, size, file_);
    end_ = std::copy(buffer_ + size, end_, buffer_);
  }

  std::FILE* file_;
  char* end_ = buffer_;
  // Not initialised: that would cost more than writing a small text.
  char buffer_[kPiece + kRoom];
};

static_assert(kLongestDouble <= OutputStream::kShort, "a number is added as a whole");

}  // namespace kovalt

namespace rapidjson {

// What follows replaces functions of RapidJSON's writers for an `OutputStream`.

/// How the pretty writer indents the end of a container, always with spaces.
template <>
inline void PutN(kovalt::OutputStream& stream, char /*c*/, std::size_t n) {
  stream.putSpaces(n);
}

/// What the pretty writer puts before a name or value.
template <>
inline void PrettyWriter<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::PrettyPrefix(Type type) {
  if (level_stack_.Empty()) {
    RAPIDJSON_ASSERT(!hasRoot_);
    hasRoot_ = true;
    return;
  }
  Level& level = *level_stack_.Top<Level>();
  if (!level.inArray && level.valueCount % 2 != 0) {
    std::memcpy(os_->Push(2), ": ", 2);
  } else {
    RAPIDJSON_ASSERT(level.inArray || type == kStringType);
    os_->startLine(level.valueCount > 0, level_stack_.GetSize() / sizeof(Level) * indentCharCount_);
  }
  ++level.valueCount;
}

template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteInt64(int64_t number) {
  os_->putShort([=](char* text) { return internal::i64toa(number, text); });
  return true;
}
template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteDouble(double number) {
  os_->putShort([=](char* text) { return kovalt::writeDouble(number, text); });
  return true;
}
template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteString(const char* text,
                                                                                                 SizeType length) {
  os_->putString({text, length});
  return true;
}

}  // namespace rapidjson
