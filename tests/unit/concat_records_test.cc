#include <gtest/gtest.h>

#include "actions/read/read_object_array_concat_action.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

struct RecordsRow : Row {
  std::vector<std::string> added;
  std::string joined;
};

std::vector<RecordsRow> recordsRows() {
  return {
      {{"no_record"}, {}, ""},
      {{"one_record"}, {"a"}, "a"},
      {{"two_records"}, {"a", "b"}, "a b"},
      {{"sorted"}, {"c", "a", "b"}, "a b c"},

      {{"counted"}, {"a b", "a b", "a b"}, "a b(3)"},
      {{"two_counts"}, {"b", "a", "a", "b"}, "a(2) b(2)"},
      {{"counted_among_others"}, {"b", "c", "b", "a"}, "a b(2) c"},
      {{"count_of_two_digits"}, std::vector<std::string>(12, "a"), "a(12)"},
      {{"count_plays_no_part_in_the_order"}, {"b", "a", "b", "b"}, "a b(3)"},
      {{"record_that_looks_counted"}, {"a(2)", "a", "a"}, "a(2) a(2)"},
      {{"counted_record_before_one_that_it_begins"}, {"a!", "a", "a"}, "a(2) a!"},

      {{"sorted_as_bytes_not_as_numbers"}, {"9", "10"}, "10 9"},
      {{"capitals_before_small_letters"}, {"b", "a", "B", "A"}, "A B a b"},
      {{"blanks_before_letters"}, {"ab", "a b"}, "a b ab"},
      {{"beginning_comes_first"}, {"abc", "ab", "a"}, "a ab abc"},
      {{"beginning_before_a_low_byte"}, {"a\x01", "a"}, "a a\x01"},
      {{"ascii_before_high_bytes"}, {"\x80", "z", "\x7F"}, "z \x7F \x80"},
      {{"high_bytes_in_order"}, {"\xFF", "\x80", "\xC3\xA4", "\x01"}, "\x01 \x80 \xC3\xA4 \xFF"},
      {{"high_bytes_behind_a_common_start"}, {"a\xFF", "aa", "a\x80", "a"}, "a aa a\x80 a\xFF"},
      {{"umlaut_behind_every_ascii_word"}, {"über", "zuletzt", "Anfang"}, "Anfang zuletzt über"},

      {{"empty_record"}, {""}, ""},
      {{"empty_records_are_counted"}, {"", "", ""}, "(3)"},
      {{"empty_record_comes_first"}, {"a", ""}, " a"},
      {{"empty_records_counted_among_others"}, {"a", "", ""}, "(2) a"},

      {{"compared_exactly"}, {"a", "A", "a ", "a"}, "A a(2) a "},
      {{"nul_bytes_are_compared"}, {"a\0c"s, "a\0b"s, "a", "a\0b"s}, "a a\0b(2) a\0c"s},
  };
}

class Records : public testing::TestWithParam<RecordsRow> {};

TEST_P(Records, AreCountedAndSorted) {
  ConcatRecords records;
  for (const std::string& text : GetParam().added) {
    ++records[text];
  }
  EXPECT_EQ(joined(records), GetParam().joined);
}

INSTANTIATE_TEST_SUITE_P(ConcatRecords, Records, testing::ValuesIn(recordsRows()), rowName<RecordsRow>);

TEST(ConcatRecords, CountsAmongVeryMany) {
  // Numbers of five digits, so that their bytes sort as they do; every third is seen twice, the last ones first.
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

TEST(ConcatRecords, OrdersEverySingleByte) {
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
