#pragma once

// Files in memory.

#include <sys/mman.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace kovalt::test {

/// A file in memory with a path in this process. Aborts if a system call fails.
class MemoryFile {
 public:
  MemoryFile() : descriptor_(memfd_create("kovalt", 0)) { require(descriptor_ >= 0); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() { close(descriptor_); }

  [[nodiscard]] int descriptor() const { return descriptor_; }
  [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

  /// Replaces the content.
  void write(const std::string& content) const {
    require(ftruncate(descriptor_, 0) == 0);
    require(pwrite(descriptor_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()));
  }

  [[nodiscard]] std::string read() const {
    std::string content(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_END)), '\0');
    require(pread(descriptor_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()));
    return content;
  }

 private:
  static void require(bool works) {
    if (!works) {
      std::abort();
    }
  }

  int descriptor_;
};

}  // namespace kovalt::test
