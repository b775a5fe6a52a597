#include <gtest/gtest.h>

#include "app/parse_arguments.h"
#include "support/row.h"
#include "support/texts.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

// The values of a list.

struct ListRow : Row {
  Texts arguments;
  int positionBefore;
  Texts values;
  int positionAfter;
};

std::vector<ListRow> listRows() {
  return {
      {{"nothing_follows"}, {"Kovalt", "-aa", "k"}, 2, {}, 2},
      {{"one_value"}, {"Kovalt", "-aa", "k", "v"}, 2, {"v"}, 3},
      {{"two_values"}, {"Kovalt", "-aa", "k", "v", "w"}, 2, {"v", "w"}, 4},
      {{"values_up_to_a_short_form"}, {"Kovalt", "-aa", "k", "v", "w", "-as", "a", "b"}, 2, {"v", "w"}, 4},
      {{"values_up_to_a_long_form"}, {"Kovalt", "-aa", "k", "v", "w", "--file", "f"}, 2, {"v", "w"}, 4},
      {{"values_up_to_a_negative_number"}, {"Kovalt", "-aan", "k", "1", "-5", "2"}, 2, {"1"}, 3},
      {{"values_up_to_a_lone_dash"}, {"Kovalt", "-aa", "k", "v", "-", "w"}, 2, {"v"}, 3},
      {{"values_up_to_an_empty_argument"}, {"Kovalt", "-aa", "k", "v", "w", "", "x"}, 2, {"v", "w"}, 4},
      {{"option_ends_the_list_at_once"}, {"Kovalt", "-aa", "k", "-as", "a", "b"}, 2, {}, 2},
      {{"empty_argument_ends_the_list_at_once"}, {"Kovalt", "-aa", "k", "", "v"}, 2, {}, 2},
      {{"dash_inside_a_value"}, {"Kovalt", "-aa", "k", "v-", "w-x"}, 2, {"v-", "w-x"}, 4},
      {{"blank_before_a_dash"}, {"Kovalt", "-aa", "k", " -v", "w"}, 2, {" -v", "w"}, 4},
      {{"one_value_is_cut_at_commas"}, {"Kovalt", "-aan", "k", "1,2,3"}, 2, {"1", "2", "3"}, 3},
      {{"one_value_before_an_option_is_cut"}, {"Kovalt", "-aan", "k", "1,2", "-r", "k"}, 2, {"1", "2"}, 3},
      {{"one_value_before_an_empty_argument_is_cut"}, {"Kovalt", "-aan", "k", "1,2", ""}, 2, {"1", "2"}, 3},
      {{"one_value_with_a_negative_piece"}, {"Kovalt", "-aan", "k", "1,-5"}, 2, {"1", "-5"}, 3},
      {{"one_value_with_empty_pieces"}, {"Kovalt", "-aa", "k", ",a,,b,"}, 2, {"", "a", "", "b"}, 3},
      {{"lone_comma"}, {"Kovalt", "-aa", "k", ","}, 2, {""}, 3},
      {{"two_values_are_not_cut"}, {"Kovalt", "-aa", "k", "1,2", "3"}, 2, {"1,2", "3"}, 4},
      {{"equal_values_are_kept"}, {"Kovalt", "-aa", "k", "v", "v"}, 2, {"v", "v"}, 4},
      {{"list_in_the_middle"}, {"Kovalt", "-as", "a", "b", "-aa", "k", "v", "w", "-r", "k"}, 5, {"v", "w"}, 7},
      {{"argument_at_the_position_is_not_looked_at"}, {"Kovalt", "-roac", "-k", "id", "port"}, 2, {"id", "port"}, 4},
      {{"position_of_the_last_argument"}, {"Kovalt", "-aa", "k", "v"}, 3, {}, 3},
  };
}

class ValueList : public testing::TestWithParam<ListRow> {};

TEST_P(ValueList, IsCollected) {
  const ListRow& row = GetParam();
  const std::vector<const char*> arguments = pointersTo(row.arguments);
  int position = row.positionBefore;
  EXPECT_EQ(collectValues(position, static_cast<int>(arguments.size()), arguments.data()), row.values);
  EXPECT_EQ(position, row.positionAfter);
}

INSTANTIATE_TEST_SUITE_P(CollectValues, ValueList, testing::ValuesIn(listRows()), rowName<ListRow>);

TEST(CollectValues, StopsAtTheArgumentCount) {
  const std::vector<const char*> arguments = {"Kovalt", "-aa", "k", "v", "w", "x"};
  int position = 2;
  EXPECT_EQ(collectValues(position, 5, arguments.data()), (Texts{"v", "w"}));
  EXPECT_EQ(position, 4);
}

// The cutting of a single value.

struct SplitRow : Row {
  std::string text;
  char separator;
  std::vector<std::string> pieces;
};

std::vector<SplitRow> splitRows() {
  return {
      {{"empty_text_has_no_piece"}, "", ',', {}},
      {{"one_piece"}, "a", ',', {"a"}},
      {{"three_pieces"}, "1,2,3", ',', {"1", "2", "3"}},
      {{"negative_pieces"}, "1,-5", ',', {"1", "-5"}},
      {{"empty_piece_between_two"}, "a,,b", ',', {"a", "", "b"}},
      {{"two_empty_pieces_between_two"}, "a,,,b", ',', {"a", "", "", "b"}},
      {{"leading_separator_gives_a_piece"}, ",a", ',', {"", "a"}},
      {{"trailing_separator_gives_none"}, "a,", ',', {"a"}},
      {{"only_the_last_separator_is_swallowed"}, "a,,", ',', {"a", ""}},
      {{"lone_separator"}, ",", ',', {""}},
      {{"two_separators"}, ",,", ',', {"", ""}},
      {{"separators_on_both_sides"}, ",a,", ',', {"", "a"}},
      {{"blanks_are_kept"}, " a , b ", ',', {" a ", " b "}},
      {{"line_ends_are_kept"}, "a\nb,c\r\n", ',', {"a\nb", "c\r\n"}},
      {{"bytes_beyond_ascii"}, "ä,\xFF", ',', {"ä", "\xFF"}},
      {{"nul_bytes"}, "a\0b,\0"s, ',', {"a\0b"s, "\0"s}},
      {{"quotes_protect_nothing"}, R"("a,b",c)", ',', {"\"a", "b\"", "c"}},
      {{"another_separator"}, "a,b;c,d", ';', {"a,b", "c,d"}},
      {{"separator_that_does_not_occur"}, "a,b", '.', {"a,b"}},
  };
}

class SplitText : public testing::TestWithParam<SplitRow> {};

TEST_P(SplitText, HasThePieces) { EXPECT_EQ(splitAt(GetParam().text, GetParam().separator), GetParam().pieces); }

INSTANTIATE_TEST_SUITE_P(SplitAt, SplitText, testing::ValuesIn(splitRows()), rowName<SplitRow>);

}  // namespace
}  // namespace kovalt::test
