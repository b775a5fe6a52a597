#pragma once

// The stream between the library's writer and standard output.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "json/tuning/unescaped.h"

namespace kovalt {

/// An output stream of the library that collects a text and writes it to standard output in pieces of at most 65,536
/// bytes. Unlike the library's own streams it takes runs of characters at once, which makes a display faster.
class DisplayStream {
 public:
  using Ch = char;

  /// Adds one character.
  void Put(char character) {
    if (end_ == buffer_ + sizeof(buffer_)) {
      Flush();
    }
    *end_++ = character;
  }

  /// Adds `character` `count` times.
  void putRepeated(char character, std::size_t count) {
    // Fills a fixed length, of which the next character overwrites what is too much: that takes no call.
    constexpr std::size_t kFill = 32;
    while (count > 0) {
      if (room() < kFill) {
        Flush();
      }
      std::memset(end_, character, kFill);
      const std::size_t added = std::min(count, kFill);
      end_ += added;
      count -= added;
    }
  }

  /// Adds the first characters of `text`, up to one that JSON strings escape or as many as there is room for. Returns
  /// how many.
  std::size_t putUnescaped(std::string_view text) {
    const char* const from = text.data();
    const std::size_t limit = std::min(text.size(), room());
    // A member would be read again after each character, which might have changed it.
    char* const end = end_;
    std::size_t added = 0;
    while (added + 4 <= limit && fourUnescaped(from + added)) {
      std::memcpy(end + added, from + added, 4);
      added += 4;
    }
    while (added < limit && unescaped(from[added]) != 0) {
      end[added] = from[added];
      ++added;
    }
    end_ += added;
    return added;
  }

  /// Writes what is collected. A failure goes unnoticed.
  void Flush() {
    std::fwrite(buffer_, 1, static_cast<std::size_t>(end_ - buffer_), stdout);
    end_ = buffer_;
  }

 private:
  [[nodiscard]] std::size_t room() const { return static_cast<std::size_t>(buffer_ + sizeof(buffer_) - end_); }

  char* end_ = buffer_;
  // Clearing it would take longer than a small display; only what was put in is written.
  // cppcheck-suppress uninitMemberVarPrivate
  char buffer_[65536];
};

}  // namespace kovalt
