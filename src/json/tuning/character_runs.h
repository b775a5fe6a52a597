#pragma once

// How far runs of characters go of which the reader has to look at none by itself. Blocks take two thirds off the
// instructions of reading long texts; looking at the first few characters of a name one by one takes a sixth off the
// time of reading records; digits read eight at a time take a quarter off a load of coordinates.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kovalt {

/// Whether a JSON text may have `character` between two tokens.
inline bool isBlank(char character) {
  return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

/// Whether `character` is a decimal digit.
inline bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Which characters stand for themselves in a JSON string.
inline constexpr std::array<bool, 256> kIsPlain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t i = ' '; i < plain.size(); ++i) {
    plain[i] = i != '"' && i != '\\';
  }
  return plain;
}();

/// Whether `character` stands for itself in a JSON string.
inline bool isPlain(char character) { return kIsPlain[static_cast<unsigned char>(character)]; }

/// Eight characters at once, on every processor.
struct WordBlock {
  static constexpr std::size_t kSize = 8;

  /// How many of the characters at the front of the block stand for themselves.
  static std::size_t countPlain(const char* block) {
    std::size_t count = isPlain(load(block)) ? kSize : 0;
    while (count < kSize && kovalt::isPlain(block[count])) {
      ++count;
    }
    return count;
  }

  static std::uint64_t load(const char* block) {
    std::uint64_t word = 0;
    std::memcpy(&word, block, sizeof(word));
    return word;
  }

  /// Whether all eight characters of `word` stand for themselves.
  static bool isPlain(std::uint64_t word) {
    constexpr std::uint64_t kHighBits = 0x80 * kOnes;
    const std::uint64_t quotes = word ^ '"' * kOnes;
    const std::uint64_t backslashes = word ^ '\\' * kOnes;
    // Zero unless a byte is below a space, or zero in one of the last two. Which one it is depends on the byte order.
    const std::uint64_t others =
        ((word - ' ' * kOnes) & ~word) | ((quotes - kOnes) & ~quotes) | ((backslashes - kOnes) & ~backslashes);
    return (others & kHighBits) == 0;
  }

  /// The digits at the front of a block.
  struct Digits {
    std::size_t count;
    std::uint64_t value;  ///< What they mean.
  };

  /// Reads the digits at the front of the block. Takes the same time for each number of them.
  static Digits readDigits(const char* block) {
    std::uint64_t digits = loadDigits(block);
    const std::size_t count = countDigits(digits);
    // Zeros come in front of them. A shift by all bits would mean nothing.
    digits = count == 0 ? 0 : digits << (kSize - count) * 8;
    // Two, four and eight digits become one number each.
    constexpr std::uint64_t kPairs = 0x000000FF000000FF;
    digits = digits * 10 + (digits >> 8);
    digits = (digits & kPairs) * (100 + (std::uint64_t{1000000} << 32)) +
             (digits >> 16 & kPairs) * (1 + (std::uint64_t{10000} << 32));
    return {count, digits >> 32};
  }

  /// How many of the characters at the front of the block are blanks.
  static std::size_t countBlanks(const char* block) {
    std::size_t count = load(block) == ' ' * kOnes ? kSize : 0;
    while (count < kSize && isBlank(block[count])) {
      ++count;
    }
    return count;
  }

 private:
  static constexpr std::uint64_t kOnes = 0x0101010101010101;

  /// The block with the first character in the lowest byte, where 0 to 9 are the digits.
  static std::uint64_t loadDigits(const char* block) {
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    return __builtin_bswap64(load(block)) ^ '0' * kOnes;
#else
    return load(block) ^ '0' * kOnes;
#endif
  }

  static std::size_t countDigits(std::uint64_t digits) {
    // A carry out of one byte reaches only those after it.
    const std::uint64_t others = ((digits + (0x7F - 9) * kOnes) | digits) & 0x80 * kOnes;
    return others == 0 ? kSize : static_cast<std::size_t>(__builtin_ctzll(others)) / 8;
  }
};

#ifdef __SSE2__
/// Sixteen characters at once.
struct Sse2Block {
  static constexpr std::size_t kSize = 16;

  /// How many of the characters at the front of the block stand for themselves.
  static std::size_t countPlain(const char* block) {
    const __m128i characters = load(block);
    const __m128i lastControl = _mm_set1_epi8(0x1F);
    const __m128i controls = _mm_cmpeq_epi8(_mm_max_epu8(characters, lastControl), lastControl);
    return countZeros(_mm_or_si128(controls, _mm_or_si128(equal(characters, '"'), equal(characters, '\\'))));
  }

  /// How many of the characters at the front of the block are blanks.
  static std::size_t countBlanks(const char* block) {
    const __m128i characters = load(block);
    const __m128i lineEnds = _mm_or_si128(equal(characters, '\n'), equal(characters, '\r'));
    const __m128i blanks = _mm_or_si128(_mm_or_si128(equal(characters, ' '), equal(characters, '\t')), lineEnds);
    return countZeros(_mm_cmpeq_epi8(blanks, _mm_setzero_si128()));
  }

 private:
  static __m128i load(const char* block) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(block)); }

  static __m128i equal(__m128i characters, char wanted) { return _mm_cmpeq_epi8(characters, _mm_set1_epi8(wanted)); }

  /// How many bytes at the front are zero, where the others are 0xFF.
  static std::size_t countZeros(__m128i bytes) {
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(bytes));
    // A branch, because the next block is then looked at before it is known how this one ends: that takes a third off
    // the time of reading long texts and a deep catalogue.
    return mask == 0 ? kSize : static_cast<unsigned>(__builtin_ctz(mask));
  }
};

using CharacterBlock = Sse2Block;
#else
using CharacterBlock = WordBlock;
#endif

/// Copies the first of `size` characters, as many as stand for themselves, and returns how many. There must be a whole
/// block. May put others after them, but nothing after `to + size`.
template <typename Block>
std::size_t copyPlainBlocks(const char* from, std::size_t size, char* to) {
  std::size_t copied = 0;
  std::size_t plain = Block::kSize;
  while (copied < size && plain == Block::kSize) {
    // The last block overlaps the one before: nothing after it may be read.
    const std::size_t place = std::min(copied, size - Block::kSize);
    std::memcpy(to + place, from + place, Block::kSize);
    plain = Block::countPlain(from + place);
    copied = place + plain;
  }
  return copied;
}

/// The same for any size.
inline std::size_t copyPlain(const char* from, std::size_t size, char* to) {
  if (size >= CharacterBlock::kSize) {
    return copyPlainBlocks<CharacterBlock>(from, size, to);
  }
  if (size >= WordBlock::kSize) {
    return copyPlainBlocks<WordBlock>(from, size, to);
  }
  std::size_t copied = 0;
  for (; copied < size && isPlain(from[copied]); ++copied) {
    to[copied] = from[copied];
  }
  return copied;
}

/// The first character from `text` on that does not stand for itself. There must be one, and whole blocks readable.
template <typename Block>
const char* endOfPlain(const char* text) {
  std::size_t count = Block::kSize;
  while (count == Block::kSize) {
    count = Block::countPlain(text);
    text += count;
  }
  return text;
}

/// The same, where it is near, as after names: a processor foresees such ends better than it waits for a block.
template <typename Block>
const char* endOfShortPlain(const char* text) {
  for (const char* const block = text + 8; text != block; ++text) {
    if (!isPlain(*text)) {
      return text;
    }
  }
  return endOfPlain<Block>(text);
}

/// The first character from `text` on that is no blank. There must be one, and whole blocks readable.
template <typename Block>
const char* endOfBlanks(const char* text) {
  std::size_t count = Block::kSize;
  while (count == Block::kSize) {
    count = Block::countBlanks(text);
    text += count;
  }
  return text;
}

}  // namespace kovalt
