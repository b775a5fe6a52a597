#pragma once

// The loop that parses a value. Every file is parsed by it.

#include <rapidjson/rapidjson.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "json/load/scanner.h"

namespace kovalt {

/// The containers that are open at a place in a text, one bit each: a hostile text may open one with every byte.
class ContainerStack {
 public:
  /// Opens a container, with `{` or `[`.
  void open(char bracket) {
    if (used_ % kWordSize == 0) {
      outer_.push_back(innermost_);
    }
    ++used_;
    innermost_ = innermost_ << 1 | (bracket == '{' ? 1 : 0);
  }

  /// Closes the innermost container. Requires that one is open.
  void close() {
    require(used_ > kSkippedBits);
    --used_;
    innermost_ >>= 1;
    if (used_ % kWordSize == 0) {
      innermost_ = outer_.back();
      outer_.pop_back();
    }
  }

  /// The bracket that closes the innermost container; NUL if none is open.
  [[nodiscard]] char closingBracket() const { return used_ == kSkippedBits ? '\0' : (innermost_ & 1) != 0 ? '}' : ']'; }

 private:
  static constexpr std::size_t kWordSize = 64;
  /// Bits of the first word that are skipped. Counting them as used makes the first 63 containers need no allocation.
  static constexpr std::size_t kSkippedBits = 1;

  std::size_t used_ = kSkippedBits;   ///< The number of bits in all words.
  std::uint64_t innermost_ = 0;       ///< The innermost containers; the lowest bit is the innermost one.
  std::vector<std::uint64_t> outer_;  ///< The containers around them, in full words.
};

/// Parses the value at the cursor of `buffer`, which must be ready, and accepts what RapidJSON's reader accepts. No
/// whitespace may precede the value. Returns false if it is not JSON or `handler` rejected it; the buffer must not be
/// used any more then. On success a refill is pending at the cursor. The handler has these operations. Those with a
/// scanner get it with the cursor ready, and may leave a refill pending.
/// - `bool name(Scanner&)`, `bool string(Scanner&)`, `bool other(Scanner&)` consume a name, a string or another value,
///   and return false if it is not JSON.
/// - `bool open(char bracket, SizeType outerCount)`: an array or object starts. `outerCount` is the number of elements
///   or members of the container around it so far, this one included. If it returns false, `other` must consume the
///   whole value.
/// - `SizeType close(char bracket, SizeType count)`: a container for which `open` returned true ends, with `count`
///   elements or members. It must return the `outerCount` of that `open`, unless the handler ignores all counts.
template <typename Handler>
bool parseValue(InputBuffer& buffer, Handler& handler) {
  Scanner scanner(buffer);
  ContainerStack containers;
  char closing = '\0';
  rapidjson::SizeType count = 0;
  while (true) {
    if (closing == '}' && !(scanner.peek() == '"' && handler.name(scanner) && scanner.skipSeparator(':'))) {
      return false;
    }
    ++count;
    const char first = scanner.peek();
    if (first == '"') {
      if (!handler.string(scanner)) {
        return false;
      }
    } else if ((first == '{' || first == '[') && handler.open(first, count)) {
      containers.open(first);
      closing = containers.closingBracket();
      count = 0;
      scanner.skipSeparator(first);
      if (scanner.peek() != closing) {
        continue;
      }
    } else if (!handler.other(scanner)) {
      return false;
    }
    // What ends here may be the last element or member of several containers.
    while (closing != '\0' && !scanner.skipSeparator(',')) {
      if (scanner.peek() != closing) {
        return false;
      }
      scanner.skipCharacter();
      count = handler.close(closing, count);
      containers.close();
      closing = containers.closingBracket();
    }
    if (closing == '\0') {
      return true;
    }
  }
}

}  // namespace kovalt
