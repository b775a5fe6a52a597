#pragma once

// The grammar of JSON's numbers, and the numbers that are read without RapidJSON's reader.

#include <rapidjson/internal/strtod.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "json/character_block.h"
#include "json/contract.h"

namespace kovalt {

/// Whether `character` is a decimal digit.
inline bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Returns the first character from `text` on that is not a digit. Requires that there is one.
inline const char* skipDigits(const char* text) {
  // Unrolled, so that most runs end without a jump back.
  while (true) {
    for (const char* const block = text + 4; text != block; ++text) {
      if (!isDigit(*text)) {
        return text;
      }
    }
  }
}

/// The digits at the front of a block of eight characters.
struct DigitBlock {
  std::size_t count;
  std::uint64_t value;  ///< The digits as a decimal number.
};

/// Reads the digits at the front of the eight characters at `block`, without a branch for their number.
inline DigitBlock readDigitBlock(const char* block) {
  // Digits become 0 to 9. A carry out of one byte reaches only bytes of later characters.
  std::uint64_t digits = WordBlock::loadLittleEndian(block) ^ WordBlock::repeated('0');
  const std::uint64_t others = ((digits + WordBlock::repeated(0x7F - 9)) | digits) & WordBlock::repeated(0x80);
  const std::size_t count = others == 0 ? WordBlock::kSize : static_cast<std::size_t>(__builtin_ctzll(others)) / 8;
  // Puts zeros in front of the digits. A shift by all 64 bits would be undefined.
  digits = count == 0 ? 0 : digits << (WordBlock::kSize - count) * 8;
  // Combines pairs, then fours, then all eight digits.
  constexpr std::uint64_t kPairs = 0x000000FF000000FF;
  digits = digits * 10 + (digits >> 8);
  digits = (digits & kPairs) * (100 + (std::uint64_t{1000000} << 32)) +
           (digits >> 16 & kPairs) * (1 + (std::uint64_t{10000} << 32));
  return {count, digits >> 32};
}

/// Returns the end of the number at `text` by JSON's grammar, and sets `decimals` to how many digits it has after the
/// point. Returns nullptr for text that is left to RapidJSON's reader: not a number, with an exponent, or ending at a
/// NUL byte, where it may continue after the buffer. `decimals` is then unspecified. `endOfDigits` is called with the
/// start of each run of digits and returns its end. Requires a NUL byte after the text, and what `endOfDigits`
/// requires.
template <typename EndOfDigits>
const char* endOfNumber(const char* text, EndOfDigits endOfDigits, std::ptrdiff_t& decimals) {
  const char* const whole = text + (*text == '-' ? 1 : 0);
  const char* end = endOfDigits(whole);
  if (end == whole || (*whole == '0' && end > whole + 1)) {
    return nullptr;
  }
  decimals = 0;
  if (*end == '.') {
    const char* const fraction = end + 1;
    end = endOfDigits(fraction);
    decimals = end - fraction;
    if (decimals == 0) {
      return nullptr;
    }
  }
  return *end == '\0' || (*end | 0x20) == 'e' ? nullptr : end;
}

/// A number without an exponent, of up to 17 significant digits.
struct Number {
  static constexpr std::uint64_t kTooManyDigits = 100000000000000000;

  std::uint64_t digits = 0;  ///< All digits, without the point. Below `kTooManyDigits`.
  int decimals = 0;          ///< How many of them come after the point; 0 for an integer.
  bool isNegative = false;
};

/// Appends the digits at `text` to `value`, which may overflow, and returns their end. Requires eight readable
/// characters from each of them on, and from their end.
inline const char* appendDigits(const char* text, std::uint64_t& value) {
  constexpr std::array<std::uint64_t, WordBlock::kSize + 1> kPowersOfTen = {1,      10,      100,      1000,     10000,
                                                                            100000, 1000000, 10000000, 100000000};
  DigitBlock block = {WordBlock::kSize, 0};
  while (block.count == WordBlock::kSize) {
    block = readDigitBlock(text);
    require(block.count < kPowersOfTen.size());
    value = value * kPowersOfTen[block.count] + block.value;
    text += block.count;
  }
  return text;
}

/// Reads the number at `text` into `number` and returns its end. Returns nullptr, with `number` unspecified, for what
/// `endOfNumber` leaves to RapidJSON's reader, and for numbers with more than 17 significant digits or more than 19
/// digits including leading zeros. Requires a NUL byte after the text and eight readable characters from there on.
inline const char* readNumber(const char* text, Number& number) {
  constexpr std::ptrdiff_t kMostDigits = 19;  // More of them could overflow.
  std::uint64_t digits = 0;
  std::ptrdiff_t decimals = 0;
  const auto append = [&digits](const char* run) { return appendDigits(run, digits); };
  const char* const end = endOfNumber(text, append, decimals);
  number = {digits, static_cast<int>(decimals), *text == '-'};
  return end == nullptr || end - text - (number.isNegative ? 1 : 0) - (decimals > 0 ? 1 : 0) > kMostDigits ||
                 digits >= Number::kTooManyDigits
             ? nullptr
             : end;
}

/// The value of a number with decimals, from `readNumber`, as RapidJSON's reader computes it.
inline double toDouble(const Number& number) {
  constexpr std::uint64_t kMostExact = (std::uint64_t{1} << 53) - 1;
  const std::uint64_t allButLast = number.digits / 10;
  // From 2^53 on, RapidJSON multiplies by 10 for another digit and may round twice.
  const double whole = allButLast <= kMostExact
                           ? static_cast<double>(number.digits)
                           : static_cast<double>(allButLast) * 10.0 + static_cast<double>(number.digits % 10);
  const double value = rapidjson::internal::StrtodNormalPrecision(whole, -number.decimals);
  return number.isNegative ? -value : value;
}

}  // namespace kovalt
