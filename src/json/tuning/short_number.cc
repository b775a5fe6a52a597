#include "json/tuning/short_number.h"

#include <array>
#include <cstdint>

#include "json/tuning/character_runs.h"

namespace kovalt {
namespace {

constexpr std::size_t kMostDigits = 15;

constexpr std::array<std::uint64_t, kMostDigits> kPowersOfTen = [] {
  std::array<std::uint64_t, kMostDigits> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) {
    powers[i] = powers[i - 1] * 10;
  }
  return powers;
}();

}  // namespace

std::size_t takeShortNumber(const char* text, Document& document) {
  const bool isNegative = *text == '-';
  const char* const begin = text + (isNegative ? 1 : 0);
  const char* end = begin;
  const auto readRun = [&] {
    WordBlock::Digits run = WordBlock::readDigits(end);
    end += run.count;
    if (run.count == WordBlock::kSize) {
      const WordBlock::Digits rest = WordBlock::readDigits(end);
      end += rest.count;
      run = {run.count + rest.count, run.value * kPowersOfTen[rest.count] + rest.value};
    }
    return run;
  };
  const WordBlock::Digits whole = readRun();
  const bool isInteger = *end != '.';
  end += isInteger ? 0 : 1;
  const WordBlock::Digits decimals = isInteger ? WordBlock::Digits{0, 0} : readRun();
  if (whole.count == 0 || (*begin == '0' && whole.count > 1) || (decimals.count == 0 && !isInteger) ||
      whole.count + decimals.count > kMostDigits || *end == '\0' || (*end | 0x20) == 'e') {
    return 0;
  }
  const std::uint64_t digits = whole.value * kPowersOfTen[decimals.count] + decimals.value;
  if (isInteger) {
    isNegative ? document.Int64(-static_cast<std::int64_t>(digits)) : document.Uint64(digits);
  } else {
    const double value =
        rapidjson::internal::StrtodNormalPrecision(static_cast<double>(digits), -static_cast<int>(decimals.count));
    document.Double(isNegative ? -value : value);
  }
  return static_cast<std::size_t>(end - text);
}

}  // namespace kovalt
