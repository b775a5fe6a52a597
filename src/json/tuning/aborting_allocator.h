#pragma once

// The memory that RapidJSON works in. In five calls, of which each allocation fails once, all ends for want of memory
// are aborts: 463 of them.

#include <rapidjson/allocators.h>

#include <cstddef>

namespace kovalt {

/// RapidJSON does not check whether an allocation failed; this allocator ends the process abnormally instead. It is for
/// RapidJSON's pools and stacks. The operations are not inline: RapidJSON's loops are faster without them.
class AbortingAllocator : public rapidjson::CrtAllocator {
 public:
  void* Malloc(std::size_t size);
  void* Realloc(void* memory, std::size_t size, std::size_t newSize);
};

}  // namespace kovalt
