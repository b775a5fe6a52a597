#include "json/tuning/short_number.h"

#include <cstdint>

#include "json/tuning/character_runs.h"

namespace kovalt {

std::size_t takeShortNumber(const char* text, Document& document) {
  constexpr std::uint32_t kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
  constexpr std::size_t kMostDigits = 16;
  const bool isNegative = *text == '-';
  const char* end = text + (isNegative ? 1 : 0);
  const WordBlock::Digits whole = WordBlock::readDigits(end);
  if (whole.count == 0 || whole.count == WordBlock::kSize || (*end == '0' && whole.count != 1)) {
    return 0;
  }
  end += whole.count;
  const auto isEnd = [&end] { return *end != '\0' && *end != 'e' && *end != 'E'; };
  if (*end != '.') {
    if (!isEnd()) {
      return 0;
    }
    const auto value = static_cast<unsigned>(whole.value);
    isNegative ? document.Int(-static_cast<int>(value)) : document.Uint(value);
    return static_cast<std::size_t>(end - text);
  }
  ++end;
  const WordBlock::Digits first = WordBlock::readDigits(end);
  end += first.count;
  const auto second = first.count == WordBlock::kSize ? WordBlock::readDigits(end) : WordBlock::Digits{0, 0};
  end += second.count;
  const std::size_t decimals = first.count + second.count;
  if (decimals == 0 || whole.count + decimals > kMostDigits || !isEnd()) {
    return 0;
  }
  const std::uint64_t digits =
      (whole.value * kPowers[first.count] + first.value) * kPowers[second.count] + second.value;
  const double value =
      rapidjson::internal::StrtodNormalPrecision(static_cast<double>(digits), -static_cast<int>(decimals));
  document.Double(isNegative ? -value : value);
  return static_cast<std::size_t>(end - text);
}

}  // namespace kovalt
