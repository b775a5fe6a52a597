#pragma once

// Where the chunks of a document's memory pool come from.

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <vector>

namespace kovalt {

/// The base allocator of a pool. Cuts the chunks of a large document out of blocks that the kernel is asked to back by
/// huge pages: handing out small pages one by one takes a fifth of the time of a load. A small document gets its chunks
/// one by one.
class ChunkAllocator {
 public:
  /// Returns `size` bytes, aligned for every type, which live as long as this object. Ends the process by std::abort if
  /// there is no memory.
  void* Malloc(std::size_t size);

  /// Does nothing: the chunks are freed together with this object.
  static void Free(void* /*chunk*/) {}

 private:
  struct FreeBlock {
    void operator()(void* block) const { std::free(block); }
  };

  void addBlock(std::size_t size);

  std::vector<std::unique_ptr<void, FreeBlock>> blocks_;
  /// What is left of the last block.
  char* left_ = nullptr;
  std::size_t leftSize_ = 0;
  /// The bytes of all blocks.
  std::size_t totalSize_ = 0;
};

}  // namespace kovalt
