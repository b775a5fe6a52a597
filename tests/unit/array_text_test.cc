#include <gtest/gtest.h>

#include "actions/read/read_array_actions.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

struct RecognitionRow : Row {
  std::string text;
  bool isArray;
};

std::vector<RecognitionRow> recognitionRows() {
  return {
      {{"nothing"}, "", false},
      {{"empty_array"}, "[]", true},
      {{"array"}, R"(["a",1])", true},
      {{"text_in_brackets"}, "[x,y]", true},
      {{"two_arrays"}, "[1],[2]", true},
      {{"only_an_opening_bracket"}, "[", false},
      {{"only_a_closing_bracket"}, "]", false},
      {{"brackets_the_wrong_way"}, "][", false},
      {{"no_closing_bracket"}, "[1", false},
      {{"no_opening_bracket"}, "1]", false},
      {{"blank_in_front"}, " [1]", false},
      {{"blank_at_the_end"}, "[1] ", false},
      {{"object"}, R"({"a":[1]})", false},
      {{"plain_text"}, "abc", false},
      {{"number"}, "5", false},
  };
}

class RecognisedText : public testing::TestWithParam<RecognitionRow> {};

TEST_P(RecognisedText, CountsAsArrayOrNot) { EXPECT_EQ(isArrayText(GetParam().text), GetParam().isArray); }

INSTANTIATE_TEST_SUITE_P(IsArrayText, RecognisedText, testing::ValuesIn(recognitionRows()), rowName<RecognitionRow>);

struct ChangeRow : Row {
  std::string before;
  std::string after;
};

std::vector<ChangeRow> bracketRows() {
  return {
      {{"empty_array"}, "[]", ""},
      {{"one_element"}, "[1]", "1"},
      {{"strings"}, R"(["a","b"])", R"("a","b")"},
      {{"only_the_outer_pair"}, "[[1],[2]]", "[1],[2]"},
      {{"empty_array_inside"}, "[[]]", "[]"},
      {{"text_in_brackets"}, "[x,y]", "x,y"},
      {{"nul_bytes"}, "[\0]"s, "\0"s},
  };
}

class StrippedText : public testing::TestWithParam<ChangeRow> {};

TEST_P(StrippedText, LosesItsFirstAndLastByte) {
  std::string text = GetParam().before;
  stripBrackets(text);
  EXPECT_EQ(text, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(StripBrackets, StrippedText, testing::ValuesIn(bracketRows()), rowName<ChangeRow>);

std::vector<ChangeRow> commaRows() {
  return {
      // Without any quote every comma is a separator.
      {{"nothing"}, "", ""},
      {{"one_byte"}, "1", "1"},
      {{"one_comma"}, ",", " "},
      {{"two_commas"}, ",,", "  "},
      {{"numbers"}, "1,2,3", "1 2 3"},
      {{"last_byte_without_quotes"}, "1,2,", "1 2 "},
      {{"first_byte_without_quotes"}, ",1", " 1"},
      {{"nested_arrays"}, "[1,2],[3,4]", "[1 2] [3 4]"},
      {{"apostrophes_are_no_quotes"}, "'a,b','c'", "'a b' 'c'"},
      {{"nul_bytes"}, "a\0,b"s, "a\0 b"s},

      // With quotes, only those outside of them.
      {{"one_quote"}, "\"", "\""},
      {{"one_string"}, R"("a")", R"("a")"},
      {{"two_strings"}, R"("a","b")", R"("a" "b")"},
      {{"comma_in_a_string"}, R"("a,b","c")", R"("a,b" "c")"},
      {{"comma_in_the_last_string"}, R"("a","b,c")", R"("a" "b,c")"},
      {{"only_commas_in_strings"}, R"(",",",,")", R"("," ",,")"},
      {{"strings_and_words"}, R"("a","b c",1,true,null)", R"("a" "b c" 1 true null)"},
      {{"words_before_a_string"}, R"(1,2,"a,b")", R"(1 2 "a,b")"},
      {{"empty_strings"}, R"("","","")", R"("" "" "")"},
      {{"object_inside"}, R"([1,2],{"k":"v","l":"w"})", R"([1 2] {"k":"v" "l":"w"})"},

      // The last byte stays as it is where there is a quote.
      {{"last_comma_outside_quotes"}, R"("a","b",)", R"("a" "b",)"},
      {{"last_comma_behind_a_word"}, R"("a",1,)", R"("a" 1,)"},
      {{"quote_and_comma"}, "\",", "\","},
      {{"comma_and_quote"}, ",\"", " \""},
      {{"two_quotes_and_comma"}, "\"\",", "\"\","},
      {{"two_last_commas"}, "\"\",,", "\"\" ,"},
      {{"only_quote_is_the_last_byte"}, "1,2,\"", "1 2 \""},

      // An escaped quote turns quoting round as any other.
      {{"escaped_quote_frees_a_comma"}, R"("a\"b,c","d")", R"("a\"b c","d")"},
      {{"escaped_quote_protects_the_separators_behind"}, R"("a\"",1,2,"b")", R"("a\"",1,2,"b")"},
      {{"two_escaped_quotes"}, R"("a,\"b,\",c","d")", R"("a,\"b \",c" "d")"},
      {{"escaped_backslash"}, R"("a\\","b")", R"("a\\" "b")"},
      {{"unclosed_quote"}, R"(1,"a,b,c)", R"(1 "a,b,c)"},
  };
}

class TextOfCommas : public testing::TestWithParam<ChangeRow> {};

TEST_P(TextOfCommas, HasSpacesBetweenElements) {
  std::string text = GetParam().before;
  commasToSpaces(text);
  EXPECT_EQ(text, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(CommasToSpaces, TextOfCommas, testing::ValuesIn(commaRows()), rowName<ChangeRow>);

std::vector<ChangeRow> quoteRows() {
  return {
      {{"nothing"}, "", ""},
      {{"no_quote"}, "1 2,3", "1 2,3"},
      {{"one_quote"}, "\"", ""},
      {{"empty_string"}, R"("")", ""},
      {{"strings"}, R"("a","b c",1)", "a,b c,1"},
      {{"escaped_quote_leaves_its_backslash"}, R"("a\"b")", R"(a\b)"},
      {{"escaped_backslash"}, R"("a\\")", R"(a\\)"},
      {{"quotes_of_names_and_values"}, R"({"k":"v"})", "{k:v}"},
      {{"apostrophes_stay"}, "'a'", "'a'"},
      {{"nul_bytes"}, "\"\0\""s, "\0"s},
  };
}

class QuotedText : public testing::TestWithParam<ChangeRow> {};

TEST_P(QuotedText, LosesEveryQuote) {
  std::string text = GetParam().before;
  removeQuotes(text);
  EXPECT_EQ(text, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(RemoveQuotes, QuotedText, testing::ValuesIn(quoteRows()), rowName<ChangeRow>);

}  // namespace
}  // namespace kovalt::test
