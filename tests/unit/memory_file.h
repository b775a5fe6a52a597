#pragma once

// A file that is not on any disk.

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace kovalt::test {

/// A file in memory, which has a path in this process.
class MemoryFile {
 public:
  MemoryFile() = default;
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() { close(descriptor_); }

  [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

  /// Replaces the content.
  void write(const std::string& content) const {
    EXPECT_EQ(ftruncate(descriptor_, 0), 0);
    EXPECT_EQ(pwrite(descriptor_, content.data(), content.size(), 0), static_cast<ssize_t>(content.size()));
  }

 private:
  int descriptor_ = memfd_create("kovalt", 0);
};

}  // namespace kovalt::test
