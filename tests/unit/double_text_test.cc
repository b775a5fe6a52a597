#include "json/write/double_text.h"

#include <gtest/gtest.h>
#include <rapidjson/internal/dtoa.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "support/row.h"

namespace kovalt::test {
namespace {

/// How many random numbers are tried for each binary exponent, and for each number of digits with each power of ten.
/// Sanitizers make each of them slow.
#ifndef __SANITIZE_ADDRESS__
constexpr int kTries = 600;
#else
constexpr int kTries = 50;
#endif

std::string numberText(double value) {
  std::array<char, kLongestDouble> text{};
  return {text.data(), writeDouble(value, text.data())};
}

std::string textOfRapidJson(double value) {
  std::array<char, kLongestDouble> text{};
  return {text.data(), rapidjson::internal::dtoa(value, text.data())};
}

/// The digits of a number without zeros at the start and the end, and the power of ten of the last digit.
struct Digits {
  std::string text;
  int power = 0;
};

Digits digitsOf(const std::string& text) {
  const std::size_t mark = std::min(text.find('e'), text.size());
  Digits digits;
  digits.power = mark == text.size() ? 0 : std::stoi(text.substr(mark + 1));
  bool afterPoint = false;
  for (const char character : text.substr(0, mark)) {
    if (character == '.') {
      afterPoint = true;
    } else {
      digits.text += character;
      digits.power -= afterPoint ? 1 : 0;
    }
  }
  digits.text.erase(0, digits.text.find_first_not_of('0'));
  for (; digits.text.back() == '0'; digits.text.pop_back()) {
    ++digits.power;
  }
  return digits;
}

double read(std::uint64_t number, int power) {
  return std::strtod((std::to_string(number) + "e" + std::to_string(power)).c_str(), nullptr);
}

/// Whether a number with one digit fewer also reads as `value`: the next lower or the next higher one. If neither does,
/// no shorter number does.
bool readsFromFewer(const Digits& digits, double value) {
  const std::uint64_t below = std::stoull(digits.text) / 10;
  return digits.text.size() > 1 &&
         (read(below, digits.power + 1) == value || read(below + 1, digits.power + 1) == value);
}

/// Checks the text of a positive number. Returns whether RapidJSON writes the same.
bool check(double value) {
  const std::string text = numberText(value);
  const std::string theirs = textOfRapidJson(value);
  const Digits digits = digitsOf(text);
  const std::size_t theirLength = digitsOf(theirs).text.size();
  EXPECT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
  EXPECT_FALSE(readsFromFewer(digits, value)) << text;
  EXPECT_LE(digits.text.size(), theirLength) << text;
  if (digits.text.size() == theirLength) {
    EXPECT_EQ(text, theirs);
  }
  return text == theirs;
}

double fromBits(std::uint64_t exponent, std::uint64_t significand) {
  const std::uint64_t bits = exponent << 52 | significand;
  double value = 0;
  std::memcpy(&value, &bits, sizeof(value));
  return value;
}

TEST(DoubleText, IsShortestForEachExponent) {
  constexpr std::uint64_t kLastSignificand = (std::uint64_t{1} << 52) - 1;
  std::mt19937_64 random(1);
  int shortened = 0;
  for (std::uint64_t exponent = 0; exponent < 2047; ++exponent) {
    for (const std::uint64_t significand : {std::uint64_t{0}, std::uint64_t{1}, kLastSignificand}) {
      if (exponent + significand > 0) {
        check(fromBits(exponent, significand));
      }
    }
    for (int i = 0; i < kTries && !HasFailure(); ++i) {
      shortened += check(fromBits(exponent, 1 + random() % kLastSignificand)) ? 0 : 1;
    }
  }
  EXPECT_GT(shortened, 0);
}

TEST(DoubleText, IsShortestForDecimals) {
  std::mt19937_64 random(2);
  int shortened = 0;
  std::uint64_t limit = 1;
  for (int digits = 1; digits <= 19; ++digits) {
    limit *= digits == 19 ? 1 : 10;
    for (int exponent = -30; exponent <= 30; ++exponent) {
      for (int i = 0; i < kTries && !HasFailure(); ++i) {
        const std::uint64_t number = 1 + random() % limit;
        shortened += check(read(number, exponent)) ? 0 : 1;
      }
    }
  }
  EXPECT_GT(shortened, 0);
}

/// A number and its text.
struct NumberRow : Row {
  double value;
  std::string text;
};

class NumberText : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberText, IsAsExpected) {
  EXPECT_EQ(numberText(GetParam().value), GetParam().text);
  EXPECT_EQ(numberText(-GetParam().value), "-" + GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumberText,
    testing::Values(NumberRow{{"zero"}, 0.0, "0.0"}, NumberRow{{"one"}, 1.0, "1.0"}, NumberRow{{"seven"}, 7.0, "7.0"},
                    NumberRow{{"hundred"}, 100.0, "100.0"}, NumberRow{{"fraction"}, 0.1, "0.1"},
                    NumberRow{{"six_places"}, 176.359966, "176.359966"},
                    NumberRow{{"six_places_below_one"}, 0.412994, "0.412994"},
                    NumberRow{{"shortest_but_not_closest"}, 0.1 + 0.2, "0.30000000000000007"},
                    NumberRow{{"third"}, 1.0 / 3, "0.3333333333333333"},
                    NumberRow{{"fifteen_digits"}, 123456789.012345, "123456789.012345"},
                    NumberRow{{"sixteen_digits"}, 9876543210.123456, "9876543210.123456"},
                    NumberRow{{"sixteen_of_seventeen_digits"}, 64.012345678901234, "64.01234567890124"},
                    NumberRow{{"below_the_range_of_the_fast_path"}, 9.9e-8, "9.9e-8"},
                    NumberRow{{"lowest_of_the_fast_path"}, 1e-7, "1e-7"},
                    NumberRow{{"last_with_an_exponent"}, 9.5e-7, "9.5e-7"},
                    NumberRow{{"first_without_an_exponent"}, 1e-6, "0.000001"},
                    NumberRow{{"highest_of_the_fast_path"}, 999999999999999.0, "999999999999999.0"},
                    NumberRow{{"above_the_range_of_the_fast_path"}, 1e15, "1000000000000000.0"},
                    NumberRow{{"longest"}, 1.2345678901234567e-6, "0.0000012345678901234568"},
                    NumberRow{{"last_exact_whole_number"}, 9007199254740992.0, "9007199254740992.0"},
                    NumberRow{{"twenty_one_digits"}, 123456789012345680000.0, "123456789012345680000.0"},
                    NumberRow{{"largest_without_an_exponent"}, 999999999999999900000.0, "999999999999999900000.0"},
                    NumberRow{{"smallest_with_an_exponent"}, 1e21, "1e21"},
                    NumberRow{{"digits_with_an_exponent"}, 1.5e300, "1.5e300"},
                    NumberRow{{"largest"}, std::numeric_limits<double>::max(), "1.7976931348623157e308"},
                    NumberRow{{"smallest_normal"}, std::numeric_limits<double>::min(), "2.2250738585072014e-308"},
                    NumberRow{{"smallest"}, std::numeric_limits<double>::denorm_min(), "5e-324"}),
    rowName<NumberRow>);

}  // namespace
}  // namespace kovalt::test
