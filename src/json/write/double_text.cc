#include "json/write/double_text.h"

#include <rapidjson/internal/dtoa.h>
#include <rapidjson/internal/itoa.h>

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>

#include "json/contract.h"

// Numbers have the same digits on every processor only if arithmetic rounds in the same way.
#ifdef __FAST_MATH__
#error "-ffast-math rounds in another way, so numbers could be written differently"
#endif

namespace kovalt {
namespace {

static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8 && FLT_EVAL_METHOD == 0 && sizeof(int) == 4,
              "needs the doubles of IEEE 754, calculated without extra digits, and int with 32 bits");

/// All powers of ten that a double holds exactly.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// A number above zero: its digits, without trailing zeros, times a power of ten.
struct Decimal {
  char* digits;  ///< In the caller's buffer, after the sign. There is room for `kLongestDouble` - 1 characters.
  int length;
  int exponent;
};

/// Finds `decimal` for a value from 1e-7 to below 1e15 if some text of at most 15 digits reads back as that value, and
/// for some values whose text has 16 digits and begins with 1. Otherwise returns false with `decimal` unchanged.
bool findFewDigits(double value, Decimal& decimal) {
  // 1233 / 4096 is about log10(2), so `value * power` has 15 digits before the point, or 16 that begin with 1.
  const int places = 14 - ((rapidjson::internal::Double(value).Exponent() * 1233) >> 12);
  require(places >= 0 && static_cast<std::size_t>(places) < kPowersOfTen.size());
  const double power = kPowersOfTen[static_cast<std::size_t>(places)];
  // If the value was read from so few digits, the rounding errors of the product and the sum together are below one
  // half, so `whole` consists of exactly these digits.
  // NOLINTNEXTLINE(bugprone-incorrect-roundings)
  const auto whole = static_cast<std::uint64_t>(value * power + 0.5);
  // Both operands are exact, so the quotient is the value that a reader computes from the digits.
  if (static_cast<double>(whole) / power != value) {
    return false;
  }
  const char* end = rapidjson::internal::u64toa(whole, decimal.digits);
  decimal.exponent = -places;
  for (; end[-1] == '0'; --end) {
    ++decimal.exponent;
  }
  decimal.length = static_cast<int>(end - decimal.digits);
  return true;
}

/// Replaces `decimal` by the digits of the standard library if those are fewer. The library always finds the fewest.
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
    decimal.exponent = static_cast<int>(std::strtol(mark + 1, nullptr, 10)) - length + 1;
  }
}

/// Finds `decimal` for any value above zero.
void findDigits(double value, Decimal& decimal) {
  const bool mayHaveFewDigits = value >= 1e-7 && value < 1e15;
  if (mayHaveFewDigits && findFewDigits(value, decimal)) {
    return;
  }
  // Grisu2 usually finds the fewest digits, but sometimes more. If it finds 16 where 15 are not enough, these are
  // the fewest.
  rapidjson::internal::Grisu2(value, decimal.digits, &decimal.length, &decimal.exponent);
  if (!mayHaveFewDigits || decimal.length > 16) {
    shorten(value, decimal);
  }
}

}  // namespace

char* writeDouble(double value, char* text) {
  require(std::isfinite(value));
  if (std::signbit(value)) {
    *text++ = '-';
    value = -value;
  }
  Decimal decimal{text, 1, 0};
  if (value == 0) {
    *text = '0';
  } else {
    findDigits(value, decimal);
  }
  return rapidjson::internal::Prettify(text, decimal.length, decimal.exponent, 324);
}

}  // namespace kovalt
