#pragma once

// The stream between a file and what reads it: the loop in value_loop.h, and RapidJSON's reader. Reading one value of
// long texts through it takes less than a sixth of the instructions of RapidJSON's parse.

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>

#include "json/tuning/character_runs.h"

namespace kovalt {

/// The bytes of a file, of which it holds 8,192 at a time. After them stand NUL bytes, at which every run of characters
/// ends.
class InputBuffer {
 public:
  /// `file` must stay open as long as the buffer is read.
  explicit InputBuffer(std::FILE* file);

  /// The first byte.
  [[nodiscard]] const char* begin() const { return bytes_; }

  /// To be called at a NUL byte. Returns `place` if the byte is one of the file; after the last byte held, reads the
  /// next ones and returns the first of them. At the end of the file, that is one of the NUL bytes after its last byte.
  const char* settle(const char* place);

  /// The first character from `place` on that is no blank.
  const char* skipBlanks(const char* place);

  /// Whether nothing is left of the file at `place`, to which `settle` came.
  [[nodiscard]] bool isEnd(const char* place) const { return place == end_; }

  /// How many bytes of the file stand before `place`.
  [[nodiscard]] std::size_t offset(const char* place) const {
    return before_ + static_cast<std::size_t>(place - bytes_);
  }

 private:
  static constexpr std::size_t kSize = 8192;

  void fill();

  // Clearing it would take longer than a small file. It begins where a page does, because the system copies to there
  // fastest, which takes a thirtieth off the time of reading records.
  alignas(4096) char bytes_[kSize + CharacterBlock::kSize];
  std::FILE* file_;
  std::size_t before_ = 0;     ///< How many bytes of the file stand before the ones held.
  const char* end_ = nullptr;  ///< After the last byte held.
};

/// An input stream of RapidJSON. Its copies are meant to be used one after the other.
class InputStream {
 public:
  using Ch = char;

  explicit InputStream(InputBuffer& buffer) : next_(buffer.begin()), buffer_(&buffer) { settle(); }

  /// The next character; NUL at the end of the file.
  [[nodiscard]] char Peek() const { return *next_; }

  /// Takes the next character.
  char Take() {
    const char taken = *next_++;
    settle();
    return taken;
  }

  /// How many characters were taken.
  [[nodiscard]] std::size_t Tell() const { return buffer_->offset(next_); }

  /// Takes all blanks that come next. Returns whether nothing is left; a NUL character is content like any other.
  bool takeEnd() {
    settle();
    skipBlanks();
    return buffer_->isEnd(next_);
  }

  /// Takes all blanks that come next.
  void skipBlanks() {
    if (isBlank(*next_)) {
      // Most often it is a single one.
      next_ = next_[1] > ' ' ? next_ + 1 : buffer_->skipBlanks(next_ + 1);
    }
  }

  /// Takes `separator`, with the blanks before and after it. Where something else comes next, takes only the blanks
  /// before it and returns false.
  bool takeSeparator(char separator) {
    if (*next_ != separator) {
      settle();
      skipBlanks();
    }
    if (*next_ != separator) {
      return false;
    }
    ++next_;
    if (*next_ <= ' ') {
      settle();
      skipBlanks();
    }
    return true;
  }

  /// The characters that come next and stand for themselves in a string: up to one that does not, or as many as the
  /// buffer holds. They are valid until something is taken.
  [[nodiscard]] std::string_view peekPlain() const {
    return {next_, static_cast<std::size_t>(endOfPlain<CharacterBlock>(next_) - next_)};
  }

  /// The characters that come next, which end with a NUL character in the buffer.
  [[nodiscard]] const char* peekText() const { return next_; }

  /// Takes `count` characters that the buffer holds.
  void skip(std::size_t count) {
    next_ += count;
    settle();
  }

  /// The text between the quote that comes next and the one at the end of a string, if the buffer holds it all and all
  /// of it stands for itself. It is valid until something is taken.
  [[nodiscard]] std::optional<std::string_view> peekString() const {
    return textUpTo(endOfPlain<CharacterBlock>(next_ + 1));
  }

  /// The same, where the string is short as names are.
  [[nodiscard]] std::optional<std::string_view> peekName() const {
    return textUpTo(endOfShortPlain<CharacterBlock>(next_ + 1));
  }

  /// Takes the string whose text was peeked at. A separator must be taken next.
  void takeString(std::string_view text) { next_ = text.data() + text.size() + 1; }

  /// Takes the string that comes next, of any length, and keeps none of it. Returns false where there is none. A
  /// separator must be taken then.
  bool passString() { return passRest(endOfPlain<CharacterBlock>(next_ + 1)); }

  /// The same, where the string is short as names are.
  bool passName() { return passRest(endOfShortPlain<CharacterBlock>(next_ + 1)); }

  /// Takes the number that comes next, but not if only the reader can tell how long it is: because it is none, has an
  /// exponent, is very long or goes on after the buffer. Returns whether it was taken; a separator must be taken then.
  bool passNumber() {
    const char* const begin = next_ + (*next_ == '-' ? 1 : 0);
    const char* end = *begin == '0' ? begin + 1 : endOfDigits(begin);
    if (end == begin) {
      return false;
    }
    if (*end == '.') {
      const char* const fraction = end + 1;
      end = endOfDigits(fraction);
      if (end == fraction) {
        return false;
      }
    }
    if (*end == '\0' || (*end | 0x20) == 'e' || end - next_ >= kLongNumber) {
      return false;
    }
    next_ = end;
    return true;
  }

  /// Takes true, false or null if the buffer holds it next, and returns whether it does. A separator must be taken
  /// then. Which one it is decides no branch, as no processor foresees it.
  bool takeLiteral() {
    const std::size_t before = *next_ == 'f' ? 1 : 0;
    const char* const rest = *next_ == 'f' ? "alse" : *next_ == 't' ? "true" : "null";
    if (std::memcmp(next_ + before, rest, 4) != 0) {
      return false;
    }
    next_ += before + 4;
    return true;
  }

  /// Named by the reader, but never called.
  static char* PutBegin() { return nullptr; }
  static std::size_t PutEnd(char* /*begin*/) { return 0; }
  static void Put(char /*character*/) {}

 private:
  /// No number with fewer characters and without an exponent is too large for a double.
  static constexpr std::ptrdiff_t kLongNumber = 300;

  [[nodiscard]] std::optional<std::string_view> textUpTo(const char* end) const {
    return *end == '"' ? std::optional(std::string_view(next_ + 1, static_cast<std::size_t>(end - next_ - 1)))
                       : std::nullopt;
  }

  /// Takes the rest of a string, of which the characters before `end` stand for themselves.
  bool passRest(const char* end) {
    next_ = end;
    if (*end != '"') {
      return passHardRest();
    }
    ++next_;
    return true;
  }

  /// The same, where an escape or the end of the buffer may come before the end of the string.
  bool passHardRest();

  /// Takes an escape, whose backslash was taken. Returns whether it is one.
  bool passEscape();

  /// Takes four hexadecimal digits. Returns what they mean, and more than that where there are none.
  unsigned takeUnit();

  static const char* endOfDigits(const char* text) {
    // Four in a row without a jump back take a tenth off the time of reading coordinates.
    while (true) {
      for (const char* const block = text + 4; text != block; ++text) {
        if (!isDigit(*text)) {
          return text;
        }
      }
    }
  }

  void settle() {
    if (*next_ == '\0') {
      next_ = buffer_->settle(next_);
    }
  }

  const char* next_;
  InputBuffer* buffer_;
};

}  // namespace kovalt
