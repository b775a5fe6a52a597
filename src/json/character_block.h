#pragma once

// Which characters need no escape in a JSON string, which are whitespace, and how far runs of them extend. Runs are
// scanned and copied in blocks of 8 or 16 characters.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kovalt {

/// Whether `character` is whitespace between two tokens of a JSON text.
inline bool isWhitespace(char character) {
  return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

/// For each byte whether it needs no escape in a JSON string.
constexpr std::array<bool, 256> unescapedBytes() {
  std::array<bool, 256> unescaped{};
  for (std::size_t i = ' '; i < unescaped.size(); ++i) {
    unescaped[i] = i != '"' && i != '\\';
  }
  return unescaped;
}

inline constexpr std::array<bool, 256> kIsUnescaped = unescapedBytes();

/// Whether `character` needs no escape in a JSON string: it is not a quote, a backslash or a control character.
inline bool isUnescaped(char character) { return kIsUnescaped[static_cast<unsigned char>(character)]; }

/// Eight characters in a word, on every processor.
struct WordBlock {
  static constexpr std::size_t kSize = 8;

  /// Counts the unescaped characters at the front of the block.
  static std::size_t countUnescaped(const char* block) {
    std::size_t count = areUnescaped(load(block)) ? kSize : 0;
    while (count < kSize && isUnescaped(block[count])) {
      ++count;
    }
    return count;
  }

  /// Counts the whitespace characters at the front of the block.
  static std::size_t countWhitespace(const char* block) {
    std::size_t count = load(block) == repeated(' ') ? kSize : 0;
    while (count < kSize && isWhitespace(block[count])) {
      ++count;
    }
    return count;
  }

  /// The block as a word in the byte order of the processor.
  static std::uint64_t load(const char* block) {
    std::uint64_t word = 0;
    std::memcpy(&word, block, sizeof(word));
    return word;
  }

  /// The block as a word whose lowest byte is the first character.
  static std::uint64_t loadLittleEndian(const char* block) {
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    return __builtin_bswap64(load(block));
#else
    return load(block);
#endif
  }

  /// A word with `byte` in each of its bytes.
  static constexpr std::uint64_t repeated(std::uint64_t byte) { return byte * 0x0101010101010101; }

 private:
  /// Whether all eight characters of `word` are unescaped.
  static bool areUnescaped(std::uint64_t word) {
    const std::uint64_t quotes = word ^ repeated('"');
    const std::uint64_t backslashes = word ^ repeated('\\');
    // Has a high bit set exactly if a byte of `word` is below a space or a byte of the other two is zero: a borrow sets
    // further high bits only above such a byte.
    const std::uint64_t others = ((word - repeated(' ')) & ~word) | ((quotes - repeated(1)) & ~quotes) |
                                 ((backslashes - repeated(1)) & ~backslashes);
    return (others & repeated(0x80)) == 0;
  }
};

#ifdef __SSE2__
/// Sixteen characters in a vector register.
struct Sse2Block {
  static constexpr std::size_t kSize = 16;

  /// Counts the unescaped characters at the front of the block.
  static std::size_t countUnescaped(const char* block) {
    const __m128i characters = load(block);
    const __m128i lastControl = _mm_set1_epi8(0x1F);
    const __m128i controls = _mm_cmpeq_epi8(_mm_max_epu8(characters, lastControl), lastControl);
    return countZeros(_mm_or_si128(controls, _mm_or_si128(equal(characters, '"'), equal(characters, '\\'))));
  }

  /// Counts the whitespace characters at the front of the block.
  static std::size_t countWhitespace(const char* block) {
    const __m128i characters = load(block);
    const __m128i lineEnds = _mm_or_si128(equal(characters, '\n'), equal(characters, '\r'));
    const __m128i whitespace = _mm_or_si128(_mm_or_si128(equal(characters, ' '), equal(characters, '\t')), lineEnds);
    return countZeros(_mm_cmpeq_epi8(whitespace, _mm_setzero_si128()));
  }

 private:
  static __m128i load(const char* block) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(block)); }

  static __m128i equal(__m128i characters, char wanted) { return _mm_cmpeq_epi8(characters, _mm_set1_epi8(wanted)); }

  /// Counts the zero bytes at the front, where every other byte is 0xFF.
  static std::size_t countZeros(__m128i bytes) {
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(bytes));
    // A branch, so that the processor starts on the next block before it knows how this one ends.
    return mask == 0 ? kSize : static_cast<unsigned>(__builtin_ctz(mask));
  }
};

using CharacterBlock = Sse2Block;
#else
using CharacterBlock = WordBlock;
#endif

/// Copies the unescaped characters at the front of the `size` characters at `from`, and returns their number. Requires
/// `size` to be at least `Block::kSize`, and the `size` characters at `to` not to overlap those at `from`. May
/// overwrite all of them, but nothing after.
template <typename Block>
std::size_t copyUnescapedBlocks(const char* from, std::size_t size, char* to) {
  std::size_t copied = 0;
  std::size_t unescaped = Block::kSize;
  while (copied < size && unescaped == Block::kSize) {
    // The last block overlaps the one before it, because nothing after it may be read.
    const std::size_t place = std::min(copied, size - Block::kSize);
    std::memcpy(to + place, from + place, Block::kSize);
    unescaped = Block::countUnescaped(from + place);
    copied = place + unescaped;
  }
  return copied;
}

/// The same for any size.
inline std::size_t copyUnescaped(const char* from, std::size_t size, char* to) {
  if (size >= CharacterBlock::kSize) {
    return copyUnescapedBlocks<CharacterBlock>(from, size, to);
  }
  if (size >= WordBlock::kSize) {
    return copyUnescapedBlocks<WordBlock>(from, size, to);
  }
  std::size_t copied = 0;
  for (; copied < size && isUnescaped(from[copied]); ++copied) {
    to[copied] = from[copied];
  }
  return copied;
}

/// Returns the first character from `text` on that must be escaped. Requires that there is one, and that
/// `Block::kSize` characters are readable from each position up to it.
template <typename Block>
const char* endOfUnescaped(const char* text) {
  std::size_t count = Block::kSize;
  while (count == Block::kSize) {
    count = Block::countUnescaped(text);
    text += count;
  }
  return text;
}

/// The same for runs that are usually short, such as names. Tests the first eight characters one by one, because a
/// predicted branch is faster than waiting for the result of a block.
template <typename Block>
const char* endOfShortUnescaped(const char* text) {
  for (const char* const end = text + WordBlock::kSize; text != end; ++text) {
    if (!isUnescaped(*text)) {
      return text;
    }
  }
  return endOfUnescaped<Block>(text);
}

/// Returns the first character from `text` on that is not whitespace, with the same requirements.
template <typename Block>
const char* endOfWhitespace(const char* text) {
  std::size_t count = Block::kSize;
  while (count == Block::kSize) {
    count = Block::countWhitespace(text);
    text += count;
  }
  return text;
}

}  // namespace kovalt
