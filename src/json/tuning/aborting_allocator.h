#pragma once

// The memory of the JSON library, which uses what it is given without a look whether it was given any.

#include <rapidjson/allocators.h>

#include <cstddef>

namespace kovalt {

/// The library's own allocator, but for the end of the memory: that ends the process by std::abort. For the stacks of
/// the library, which only ever reallocate. The operation is not inline, because the library's loops are faster without
/// it.
class AbortingAllocator : public rapidjson::CrtAllocator {
 public:
  void* Realloc(void* memory, std::size_t size, std::size_t newSize);
};

}  // namespace kovalt
