#pragma once

// The memory that RapidJSON works in.

#include <rapidjson/allocators.h>

#include <cstddef>

namespace kovalt {

/// RapidJSON does not check whether an allocation failed; this allocator ends the process abnormally instead. It is for
/// RapidJSON's stacks, which only ever reallocate. The operation is not inline: RapidJSON's loops are faster without
/// it.
class AbortingAllocator : public rapidjson::CrtAllocator {
 public:
  void* Realloc(void* memory, std::size_t size, std::size_t newSize);
};

}  // namespace kovalt
