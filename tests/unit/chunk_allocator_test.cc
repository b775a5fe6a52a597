#include "json/tuning/chunk_allocator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace kovalt::test {
namespace {

constexpr std::size_t kChunk = 65560;
constexpr std::size_t kLarge = std::size_t{10} << 20;

TEST(ChunkAllocator, GivesChunksOfAnySizeThatAreAlignedAndDoNotOverlap) {
  // Up to and beyond the size of small documents, with chunks larger than a block in both.
  std::vector<std::size_t> sizes(20, kChunk);
  sizes.insert(sizes.end(), {1, 17, kLarge, 1});
  sizes.insert(sizes.end(), 100, kChunk);
  sizes.insert(sizes.begin() + 2, {kLarge, 3});
  ChunkAllocator allocator;
  std::vector<std::pair<char*, std::size_t>> chunks;
  for (const std::size_t size : sizes) {
    auto* chunk = static_cast<char*>(allocator.Malloc(size));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(chunk) % alignof(std::max_align_t), 0U) << chunks.size();
    std::memset(chunk, static_cast<int>(chunks.size()), size);
    chunks.emplace_back(chunk, size);
  }
  for (std::size_t i = 0; i < chunks.size(); ++i) {
    const auto [chunk, size] = chunks[i];
    const auto mark = static_cast<char>(i);
    EXPECT_EQ(chunk[0], mark) << i;
    EXPECT_EQ(chunk[size / 2], mark) << i;
    EXPECT_EQ(chunk[size - 1], mark) << i;
  }
}

TEST(ChunkAllocator, TakesABlockForEachChunkOfASmallDocument) {
  ChunkAllocator allocator;
  auto* first = static_cast<char*>(allocator.Malloc(112));
  EXPECT_NE(allocator.Malloc(16), first + 112);
}

TEST(ChunkAllocator, KeepsWhatIsGivenBack) {
  ChunkAllocator allocator;
  auto* chunk = static_cast<char*>(allocator.Malloc(kChunk));
  std::memset(chunk, 'x', kChunk);
  ChunkAllocator::Free(chunk);
  EXPECT_NE(allocator.Malloc(kChunk), chunk);
  EXPECT_EQ(chunk[kChunk - 1], 'x');
}

TEST(ChunkAllocator, CutsTheChunksOfALargeDocumentOutOfHugePages) {
  constexpr std::uintptr_t kHugePage = std::uintptr_t{2} << 20;
  ChunkAllocator allocator;
  allocator.Malloc(kHugePage / 4);
  auto* first = static_cast<char*>(allocator.Malloc(kChunk));
  auto* second = static_cast<char*>(allocator.Malloc(kChunk));
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(first) % kHugePage, 0U);
  EXPECT_EQ(second - first, 65568);
}

}  // namespace
}  // namespace kovalt::test
