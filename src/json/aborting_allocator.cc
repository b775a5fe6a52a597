#include "json/aborting_allocator.h"

#include <cstdlib>

namespace kovalt {
namespace {

void* orAbort(void* memory, std::size_t size) {
  if (memory == nullptr && size != 0) {
    std::abort();
  }
  return memory;
}

}  // namespace

void* AbortingAllocator::Malloc(std::size_t size) { return orAbort(CrtAllocator::Malloc(size), size); }

void* AbortingAllocator::Realloc(void* memory, std::size_t size, std::size_t newSize) {
  return orAbort(CrtAllocator::Realloc(memory, size, newSize), newSize);
}

}  // namespace kovalt
