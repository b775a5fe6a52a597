// Sets of records that are too large for the rows of ConcatenationRecords.

#include <gtest/gtest.h>

#include "actions/read/read_object_array_concat_action.h"

namespace kovalt::test {
namespace {

TEST(ConcatRecords, CountsThousandsOfRecords) {
  // Numbers of five digits sort as their texts do. Every third record occurs twice.
  constexpr int kFirst = 10000;
  constexpr int kLast = 15000;
  ConcatRecords records;
  std::string expected;
  for (int i = kLast; i >= kFirst; --i) {
    ++records["r" + std::to_string(i)];
  }
  for (int i = kFirst; i <= kLast; i += 3) {
    ++records["r" + std::to_string(i)];
  }
  for (int i = kFirst; i <= kLast; ++i) {
    expected += (i > kFirst ? " r" : "r") + std::to_string(i) + ((i - kFirst) % 3 == 0 ? "(2)" : "");
  }
  EXPECT_EQ(joined(records), expected);
}

TEST(ConcatRecords, SortsEachByteAsUnsigned) {
  ConcatRecords records;
  std::string expected;
  for (int byte = 255; byte >= 0; --byte) {
    ++records[std::string(1, static_cast<char>(byte))];
  }
  for (int byte = 0; byte <= 255; ++byte) {
    expected += (byte > 0 ? " " : "");
    expected += static_cast<char>(byte);
  }
  EXPECT_EQ(joined(records), expected);
}

}  // namespace
}  // namespace kovalt::test
