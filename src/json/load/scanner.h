#pragma once

// The scanner over the bytes of a JSON text.

#include <cstddef>
#include <cstring>
#include <optional>
#include <string_view>

#include "json/character_block.h"
#include "json/contract.h"
#include "json/load/input_buffer.h"
#include "json/load/number.h"

namespace kovalt {

/// Peeks at, reads or skips the next token of a JSON text.
///
/// DESCRIPTION. The scanner holds the cursor of a buffer. Each operation requires the cursor to be ready, unless it
/// says that a refill may be pending, and leaves it ready, unless it says that a refill is pending: then only the
/// operations that accept that may follow. The comment of an operation says where a failure leaves the cursor. If it
/// does not, the text is not JSON after a failure, and the scanner must not be used any more. Texts that are returned
/// are part of the buffer and valid until the next operation that leaves the cursor ready.
///
/// IMPLEMENTATION. Tokens are recognised in the buffer alone, whose NUL bytes end every run of characters; a token that
/// may continue after them is left to RapidJSON's reader. No function that is defined out of line gets the address of
/// the scanner, so that a loop which owns one can keep the cursor in a register.
class Scanner {
 public:
  /// `buffer` must outlive the scanner. If a refill is pending, the first operation must accept that.
  explicit Scanner(InputBuffer& buffer) : buffer_(buffer), next_(buffer.takeCursor()) {}
  Scanner(const Scanner&) = delete;
  ~Scanner() { buffer_.returnCursor(next_); }

  /// The next character; NUL at the end of the file.
  [[nodiscard]] char peek() const {
    requireReady();
    return *next_;
  }

  /// Skips the next character, which must be part of the file. A refill is then pending.
  void skipCharacter() {
    requireReady();
    moveTo(next_ + 1);
  }

  /// Skips whitespace.
  void skipWhitespace() {
    requireReady();
    static_assert(InputBuffer::kLookAhead >= 2,
                  "a single whitespace character is skipped after a look at the next one");
    if (isWhitespace(*next_)) {
      // Most often it is a single one.
      next_ = next_[1] > ' ' ? next_ + 1 : buffer_.skipWhitespace(next_ + 1);
    }
  }

  /// Skips `separator`, which must not be NUL or whitespace, and the whitespace around it. A refill may be pending. If
  /// something else follows, skips only the whitespace before it and returns false.
  bool skipSeparator(char separator) {
    if (*next_ != separator) {
      refill();
      skipWhitespace();
    }
    if (*next_ != separator) {
      return false;
    }
    moveTo(next_ + 1);
    if (*next_ <= ' ') {
      refill();
      skipWhitespace();
    }
    setRefillPending(false);
    return true;
  }

  /// Skips whitespace and returns whether the file ends after it. A refill may be pending.
  bool skipToEnd() {
    refill();
    skipWhitespace();
    return buffer_.isEndOfFile(next_);
  }

  /// Reads the string that begins here and returns its characters. A refill is then pending. Returns nothing, with the
  /// cursor where it was, for a string with an escape or an error, and for one that is not in the buffer as a whole.
  std::optional<std::string_view> readString() {
    requireQuote();
    return readStringTo(endOfUnescaped<CharacterBlock>(next_ + 1));
  }

  /// As `readString`, for strings that are usually short.
  std::optional<std::string_view> readName() {
    requireQuote();
    return readStringTo(endOfShortUnescaped<CharacterBlock>(next_ + 1));
  }

  /// Reads a number that `kovalt::readNumber` accepts. A refill is then pending. Returns nothing, with the cursor
  /// where it was, for all other numbers and for what is not a number.
  std::optional<Number> readNumber() {
    requireReady();
    static_assert(InputBuffer::kLookAhead >= WordBlock::kSize, "digits are read in blocks");
    Number number;
    const char* const end = kovalt::readNumber(next_, number);
    if (end == nullptr) {
      return std::nullopt;
    }
    moveTo(end);
    return number;
  }

  /// Skips a number without an exponent. A refill is then pending. Returns false, with the cursor where it was, for a
  /// number that may be too large for a double and for what `endOfNumber` leaves to RapidJSON's reader.
  bool skipNumber() {
    requireReady();
    std::ptrdiff_t decimals = 0;
    const char* const end = endOfNumber(next_, skipDigits, decimals);
    if (end == nullptr || end - next_ >= kSurelyFinite) {
      return false;
    }
    moveTo(end);
    return true;
  }

  /// Skips true, false or null. A refill is then pending. Returns false, with the cursor where it was, if none of them
  /// is here or it is not in the buffer as a whole.
  bool skipLiteral() {
    requireReady();
    constexpr std::size_t kLongest = 5;
    static_assert(InputBuffer::kLookAhead >= kLongest, "a literal is compared as a whole");
    // Branch-free: which literal comes next is unpredictable.
    const std::size_t before = *next_ == 'f' ? 1 : 0;
    const char* const rest = *next_ == 'f' ? "alse" : *next_ == 't' ? "true" : "null";
    if (std::memcmp(next_ + before, rest, kLongest - 1) != 0) {
      return false;
    }
    moveTo(next_ + before + kLongest - 1);
    return true;
  }

  /// Calls `use` with the buffer, which holds the cursor meanwhile, so that another scanner or reader can take it. That
  /// one must have returned it when `use` returns. Returns what `use` returns. A refill is then pending.
  template <typename Use>
  bool lendCursor(Use use) {
    requireReady();
    buffer_.returnCursor(next_);
    const bool succeeded = use(buffer_);
    moveTo(buffer_.takeCursor());
    return succeeded;
  }

 private:
  static_assert(InputBuffer::kLookAhead >= CharacterBlock::kSize, "runs of characters are scanned in blocks");

  /// A number with fewer characters and without an exponent is not too large for a double.
  static constexpr std::ptrdiff_t kSurelyFinite = 300;

  /// As `readString`. `end` must be the first character after the opening quote that a string cannot contain unescaped.
  std::optional<std::string_view> readStringTo(const char* end) {
    if (*end != '"') {
      return std::nullopt;
    }
    const std::string_view text(next_ + 1, static_cast<std::size_t>(end - next_ - 1));
    moveTo(end + 1);
    return text;
  }

  void refill() {
    if (*next_ == '\0') {
      next_ = buffer_.refill(next_);
    }
    setRefillPending(false);
  }

  /// Moves the cursor over a token.
  void moveTo(const char* next) {
    next_ = next;
    setRefillPending(true);
  }

  void setRefillPending(bool isPending) { refillIsPending_ = kChecksContracts && isPending; }

  void requireReady() const { require(!refillIsPending_ && buffer_.isReady(next_)); }
  void requireQuote() const { require(!refillIsPending_ && *next_ == '"'); }

  InputBuffer& buffer_;
  const char* next_;
  bool refillIsPending_ = false;  ///< Maintained only where contracts are checked.
};

}  // namespace kovalt
