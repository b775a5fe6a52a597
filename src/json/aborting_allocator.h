#pragma once

// The base allocator of RapidJSON's pools, stacks and buffers.

#include <rapidjson/allocators.h>

#include <cstddef>

namespace kovalt {

/// Aborts the process when an allocation fails, because RapidJSON does not check. The operations are defined out of
/// line, because they are called rarely and, if inlined, would keep RapidJSON's loops from being inlined.
class AbortingAllocator : public rapidjson::CrtAllocator {
 public:
  void* Malloc(std::size_t size);
  void* Realloc(void* memory, std::size_t size, std::size_t newSize);
};

}  // namespace kovalt
