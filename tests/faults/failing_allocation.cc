// Counts the allocations of the program and makes them fail. The linker redirects every call of the four functions to
// this file (--wrap), including those in the C and C++ libraries.

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" {
// Names that the linker gives.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* memory, std::size_t size);
void* __real_aligned_alloc(std::size_t alignment, std::size_t size);
void* __wrap_malloc(std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size);
void* __wrap_realloc(void* memory, std::size_t size);
void* __wrap_aligned_alloc(std::size_t alignment, std::size_t size);
}

namespace {

/// Returns the number in an environment variable, or 0.
std::int64_t numberIn(const char* variable) {
  const char* text = std::getenv(variable);
  return text == nullptr ? 0 : std::strtoll(text, nullptr, 10);
}

/// The number of calls since the program itself started. The start of the C library is not tested.
std::int64_t calls = 0;
bool started = false;

/// Counts a call, and returns whether it fails. KOVALT_TEST_FAIL_FROM is the number of the first call that fails,
/// counted from 1. KOVALT_TEST_FAIL_COUNT is the number of consecutive calls that fail; 0 means all.
bool fails() {
  static const std::int64_t first = numberIn("KOVALT_TEST_FAIL_FROM");
  static const std::int64_t count = numberIn("KOVALT_TEST_FAIL_COUNT");
  if (!started) {
    return false;
  }
  const std::int64_t call = ++calls;
  const bool failing = first > 0 && call >= first && (count == 0 || call < first + count);
  if (failing) {
    errno = ENOMEM;
  }
  return failing;
}

/// Starts the count, and writes it to the file KOVALT_TEST_COUNT_FILE when the program exits.
struct Counter {
  Counter() noexcept { started = true; }
  Counter(const Counter&) = delete;
  Counter& operator=(const Counter&) = delete;
  ~Counter() {
    const std::int64_t counted = calls;
    const char* path = std::getenv("KOVALT_TEST_COUNT_FILE");
    std::FILE* file = path == nullptr ? nullptr : std::fopen(path, "w");
    if (file != nullptr) {
      std::fputs(std::to_string(counted).c_str(), file);
      std::fclose(file);
    }
  }
};

const Counter counter;

}  // namespace

void* __wrap_malloc(std::size_t size) { return fails() ? nullptr : __real_malloc(size); }

void* __wrap_calloc(std::size_t count, std::size_t size) { return fails() ? nullptr : __real_calloc(count, size); }

void* __wrap_realloc(void* memory, std::size_t size) { return fails() ? nullptr : __real_realloc(memory, size); }

void* __wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
  return fails() ? nullptr : __real_aligned_alloc(alignment, size);
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
