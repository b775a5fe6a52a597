#include "json/aborting_allocator.h"

#include "json/process_exit.h"

namespace kovalt {

void* AbortingAllocator::Malloc(std::size_t size) { return Realloc(nullptr, 0, size); }

void* AbortingAllocator::Realloc(void* memory, std::size_t size, std::size_t newSize) {
  void* moved = CrtAllocator::Realloc(memory, size, newSize);
  if (moved == nullptr && newSize != 0) {
    abortProcess();
  }
  return moved;
}

}  // namespace kovalt
