#include "json/tuning/short_number.h"

#include <cstdint>

#include "json/tuning/character_runs.h"

namespace kovalt {
namespace {

constexpr std::size_t kMostDigits = 19;
constexpr std::uint64_t kTenToThe16 = 10000000000000000;
constexpr std::uint64_t kTenToThe17 = 10 * kTenToThe16;
constexpr std::uint64_t kPowersOfTen[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

/// Reads the digits at `text`, of which `value` gets each as its last one, and returns their end.
const char* readDigits(const char* text, std::uint64_t& value) {
  WordBlock::Digits block{WordBlock::kSize, 0};
  while (block.count == WordBlock::kSize) {
    block = WordBlock::readDigits(text);
    value = value * kPowersOfTen[block.count] + block.value;
    text += block.count;
  }
  return text;
}

/// The double with up to seventeen digits. From 2^53 on RapidJSON multiplies for the next digit, and may round twice.
double toDouble(std::uint64_t digits) {
  constexpr std::uint64_t kLargestExact = (std::uint64_t{1} << 53) - 1;
  const std::uint64_t allButLast = digits / 10;
  if (digits < kTenToThe16 || allButLast <= kLargestExact) {
    return static_cast<double>(digits);
  }
  return static_cast<double>(allButLast) * 10.0 + static_cast<double>(digits % 10);
}

}  // namespace

std::size_t takeShortNumber(const char* text, Document& document) {
  const bool isNegative = *text == '-';
  const char* const whole = text + (isNegative ? 1 : 0);
  std::uint64_t digits = 0;
  const char* const point = readDigits(whole, digits);
  const bool isInteger = *point != '.';
  const char* const fraction = point + (isInteger ? 0 : 1);
  const char* const end = isInteger ? point : readDigits(fraction, digits);
  const auto count = static_cast<std::size_t>((point - whole) + (end - fraction));
  if (point == whole || (*whole == '0' && point > whole + 1) || (fraction == end && !isInteger) ||
      count > kMostDigits || digits >= kTenToThe17 || *end == '\0' || (*end | 0x20) == 'e') {
    return 0;
  }
  if (isInteger) {
    isNegative ? document.Int64(-static_cast<std::int64_t>(digits)) : document.Uint64(digits);
  } else {
    const double value =
        rapidjson::internal::StrtodNormalPrecision(toDouble(digits), -static_cast<int>(end - fraction));
    document.Double(isNegative ? -value : value);
  }
  return static_cast<std::size_t>(end - text);
}

}  // namespace kovalt
