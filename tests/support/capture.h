#pragma once

// Captures what a test prints.

#include <unistd.h>

#include <cstdio>
#include <string>

#include "support/memory_file.h"

namespace kovalt::test {

/// Redirects a standard stream to a file in memory while the object exists.
class StreamCapture {
 public:
  StreamCapture(std::FILE* stream, int descriptor)
      : stream_(stream), descriptor_(descriptor), original_(dup(descriptor)) {
    std::fflush(stream_);
    dup2(file_.descriptor(), descriptor_);
  }
  StreamCapture(const StreamCapture&) = delete;
  StreamCapture& operator=(const StreamCapture&) = delete;
  ~StreamCapture() {
    dup2(original_, descriptor_);
    close(original_);
  }

  [[nodiscard]] std::string text() const {
    std::fflush(stream_);
    return file_.read();
  }

 private:
  std::FILE* stream_;
  int descriptor_;
  int original_;
  MemoryFile file_;
};

/// The bytes that were written to both standard streams.
struct Printed {
  std::string output;
  std::string errors;
};

/// Calls `function` and returns what it prints.
template <typename Function>
Printed capture(Function&& function) {
  const StreamCapture output(stdout, STDOUT_FILENO);
  const StreamCapture errors(stderr, STDERR_FILENO);
  function();
  return {output.text(), errors.text()};
}

}  // namespace kovalt::test
