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

using rapidjson::internal::DiyFp;

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
  // 1233 / 4096 is the logarithm of 2: as a whole number the value gets 15 digits, or 16 that begin with a 1.
  int places = 14 - ((rapidjson::internal::Double(value).Exponent() * 1233) >> 12);
  const double power = kPowersOfTen[places];
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

/// Finds `decimal` as RapidJSON does, whose arithmetic of 64 bits misses a shorter one that lies at the very end of
/// what reads back to `value`. Returns whether there is surely none.
bool findByRapidJson(double value, Decimal& decimal) {
  const DiyFp exact(value);
  DiyFp lower;
  DiyFp upper;
  exact.NormalizedBoundaries(&lower, &upper);
  int power = 0;
  const DiyFp scale = rapidjson::internal::GetCachedPower(upper.e, &power);
  lower = lower * scale;
  upper = upper * scale;
  // The products are right to about one unit in their last place: all between these two reads back.
  const DiyFp last(upper.f - 1, upper.e);
  const std::uint64_t width = last.f - (lower.f + 1);
  decimal.exponent = power;
  rapidjson::internal::DigitGen(exact.Normalize() * scale, last, width, decimal.digits, &decimal.length,
                                &decimal.exponent);
  const int places = power - decimal.exponent;
  if (places < 1) {
    return false;
  }
  // With one place fewer: how far below `last` there is a number, and how far above.
  const auto step = static_cast<std::uint64_t>(kPowersOfTen[places - 1]);
  const std::uint64_t one = std::uint64_t{1} << -last.e;
  const std::uint64_t below = (last.f * step) & (one - 1);
  constexpr std::uint64_t kDoubt = 4;
  return below > (width + kDoubt) * step && one - below > kDoubt * step;
}

/// Takes the digits of the standard library where they are fewer.
void shorten(double value, Decimal& decimal) {
  char text[32] = {};
  std::to_chars(std::begin(text), std::end(text), value, std::chars_format::scientific);
  const char* mark = std::find(std::begin(text), std::end(text), 'e');
  // The first digit, and after a point the others.
  const int length = std::max(1, static_cast<int>(mark - text) - 1);
  if (length < decimal.length) {
    std::copy_n(text + 2, length - 1, decimal.digits + 1);
    decimal.digits[0] = text[0];
    decimal.length = length;
    decimal.exponent = std::atoi(mark + 1) - length + 1;
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
  } else if (!findFewDigits(value, decimal) && !findByRapidJson(value, decimal)) {
    shorten(value, decimal);
  }
  return rapidjson::internal::Prettify(text, decimal.length, decimal.exponent, 324);
}

}  // namespace kovalt
