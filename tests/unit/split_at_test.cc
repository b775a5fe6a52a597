#include "app/split_at.h"

#include "row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

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
