#pragma once

// What the tool prints inside of a target.

#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "fuzz/property.h"

namespace kovalt::fuzz {

/// One standard stream of the tool, caught in memory.
class CaughtStream {
 public:
  explicit CaughtStream(int descriptor)
      : descriptor_(descriptor), original_(dup(descriptor)), caught_(memfd_create("stream", 0)) {
    expect(dup2(caught_, descriptor_) >= 0, "a stream can be caught");
  }
  CaughtStream(const CaughtStream&) = delete;
  CaughtStream& operator=(const CaughtStream&) = delete;
  ~CaughtStream() {
    dup2(original_, descriptor_);
    close(original_);
    close(caught_);
  }

  [[nodiscard]] std::string text() const {
    std::string bytes(static_cast<std::size_t>(lseek(caught_, 0, SEEK_END)), '\0');
    expect(pread(caught_, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()), "all is read back");
    return bytes;
  }

 private:
  int descriptor_;
  int original_;
  int caught_;
};

}  // namespace kovalt::fuzz
