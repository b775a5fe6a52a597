#include "json/tuning/chunk_allocator.h"

#include <sys/mman.h>

#include <algorithm>

namespace kovalt {
namespace {

constexpr std::size_t kHugePageSize = std::size_t{2} << 20;
constexpr std::size_t kBlockSize = 2 * kHugePageSize;
/// A document that holds less is small: clearing a huge page for it would take longer than what it saves.
constexpr std::size_t kLargeDocumentSize = kHugePageSize / 4;

constexpr std::size_t roundUp(std::size_t size, std::size_t unit) { return (size + unit - 1) / unit * unit; }

}  // namespace

void* ChunkAllocator::Malloc(std::size_t size) {
  const std::size_t alignedSize = roundUp(size, alignof(std::max_align_t));
  if (alignedSize > leftSize_) {
    addBlock(alignedSize);
  }
  void* chunk = left_;
  left_ += alignedSize;
  leftSize_ -= alignedSize;
  return chunk;
}

void ChunkAllocator::addBlock(std::size_t size) {
  const bool large = totalSize_ >= kLargeDocumentSize;
  leftSize_ = large ? roundUp(std::max(size, kBlockSize), kHugePageSize) : size;
  void* block = large ? std::aligned_alloc(kHugePageSize, leftSize_) : std::malloc(leftSize_);
  if (block == nullptr) {
    std::abort();
  }
  if (large) {
    // Where the kernel knows no huge pages, small ones do as well.
    madvise(block, leftSize_, MADV_HUGEPAGE);
  }
  blocks_.emplace_back(block);
  left_ = static_cast<char*>(block);
  totalSize_ += leftSize_;
}

}  // namespace kovalt
