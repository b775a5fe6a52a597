#include "json/double_text.h"

#include <rapidjson/internal/dtoa.h>
#include <rapidjson/internal/itoa.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>

namespace kovalt {
namespace {

/// All powers of ten that a double holds exactly.
constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// A number above zero: its digits, without zeros at the end, times a power of ten.
struct Decimal {
  char* digits;
  int length;
  int exponent;
};

/// Finds `decimal` for a value between 1e-7 and 1e15 that has at most 15 digits, as the numbers that people write do,
/// in a quarter of the instructions of what is right for all. Returns false for other values.
bool findFewDigits(double value, Decimal& decimal) {
  if (value < 1e-7 || value >= 1e15) {
    return false;
  }
  // 1233 / 4096 is the decimal logarithm of 2: as a whole number the value gets 15 digits, or 16 that begin with a 1.
  int places = 14 - ((rapidjson::internal::Double(value).Exponent() * 1233) >> 12);
  const double power = kPowersOfTen[places];
  // Where this misses the nearest whole number, the division below tells.
  // NOLINTNEXTLINE(bugprone-incorrect-roundings)
  auto whole = static_cast<std::uint64_t>(value * power + 0.5);
  // Both sides of the division are exact, so a reader gets the same quotient. Whole numbers as small as this are too
  // far apart for another one to give it too.
  if (static_cast<double>(whole) / power != value) {
    return false;
  }
  constexpr std::uint64_t kEightPlaces = 100000000;
  if (whole % kEightPlaces == 0) {
    whole /= kEightPlaces;
    places -= 8;
  }
  const char* end = rapidjson::internal::u64toa(whole, decimal.digits);
  decimal.exponent = -places;
  for (; end[-1] == '0'; --end) {
    ++decimal.exponent;
  }
  decimal.length = static_cast<int>(end - decimal.digits);
  return true;
}

/// Finds `decimal` as RapidJSON does, whose arithmetic of 64 bits misses a shorter one now and then; then takes the
/// digits of the standard library, which misses none.
void findDigits(double value, Decimal& decimal) {
  rapidjson::internal::Grisu2(value, decimal.digits, &decimal.length, &decimal.exponent);
  char text[32] = {};
  std::to_chars(std::begin(text), std::end(text), value, std::chars_format::scientific);
  const char* mark = std::find(std::begin(text), std::end(text), 'e');
  // The first digit, and after a point the others.
  const int length = std::max(1, static_cast<int>(mark - text) - 1);
  if (length < decimal.length) {
    std::copy_n(text + 2, length - 1, decimal.digits + 1);
    decimal.digits[0] = text[0];
    decimal.length = length;
    decimal.exponent = static_cast<int>(std::strtol(mark + 1, nullptr, 10)) - length + 1;
  }
}

}  // namespace

char* writeDouble(double value, char* text) {
  if (std::signbit(value)) {
    *text++ = '-';
    value = -value;
  }
  Decimal decimal{text, 1, 0};
  if (value == 0) {
    *text = '0';
  } else if (!findFewDigits(value, decimal)) {
    findDigits(value, decimal);
  }
  return rapidjson::internal::Prettify(text, decimal.length, decimal.exponent, 324);
}

}  // namespace kovalt
