#include "fuzz/property.h"

#include <unistd.h>

#include <cstdlib>
#include <string>

#include "fuzz/target.h"

namespace kovalt::fuzz {
namespace {

/// A copy of standard error, made before the output of the tool is redirected.
int reportDescriptor() {
  static const int descriptor = dup(STDERR_FILENO);
  return descriptor;
}

}  // namespace

void expect(bool holds, std::string_view property) {
  if (holds) {
    return;
  }
  const std::string line = "Does not hold: " + std::string(property) + '\n';
  if (write(reportDescriptor(), line.data(), line.size()) < 0) {
    _exit(EXIT_FAILURE);
  }
  std::abort();
}

}  // namespace kovalt::fuzz

int LLVMFuzzerInitialize(int* /*argumentCount*/, char*** /*arguments*/) {
  kovalt::fuzz::reportDescriptor();
  return 0;
}
