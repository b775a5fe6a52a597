#include "completion/shown_text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/row.h"

namespace kovalt::test {
namespace {

struct TextRow {
  std::string name;
  std::string text;
};

std::ostream& operator<<(std::ostream& out, const TextRow& row) { return out << row.name; }

std::vector<TextRow> shownRows() {
  return {
      {"empty", ""},
      {"U_0020", " "},
      {"U_007E", "~"},
      {"U_00A0", "\xC2\xA0"},
      {"U_00FF", "\xC3\xBF"},
      {"U_07FF", "\xDF\xBF"},
      {"U_0800", "\xE0\xA0\x80"},
      {"U_D7FF", "\xED\x9F\xBF"},
      {"U_E000", "\xEE\x80\x80"},
      {"U_FFFF", "\xEF\xBF\xBF"},
      {"U_10000", "\xF0\x90\x80\x80"},
      {"U_10FFFF", "\xF4\x8F\xBF\xBF"},
      {"letters_of_each_length", "a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80z"},
  };
}

std::vector<TextRow> notShownRows() {
  return {
      {"U_0000", std::string(1, '\0')},
      {"U_0001", "\x01"},
      {"U_001B", "\x1B"},
      {"U_001F", "\x1F"},
      {"U_007F", "\x7F"},
      {"U_0080", "\xC2\x80"},
      {"U_0085", "\xC2\x85"},
      {"U_009B", "\xC2\x9B"},
      {"U_009F", "\xC2\x9F"},
      {"control_character_at_the_end", "name\x7F"},
      {"control_character_in_the_middle", "na\xC2\x9Bme"},
      {"continuation_byte_alone", "\x80"},
      {"bare_C1_byte", "\x9B"},
      {"bare_A0_byte", "\xA0"},
      {"byte_that_is_never_valid", "\xFF"},
      {"truncated_after_1_of_2", "\xC3"},
      {"truncated_after_2_of_3", "\xE6\x97"},
      {"truncated_after_3_of_4", "\xF0\x9F\x98"},
      {"truncated_before_another",
       "\xE6\x97"
       "a"},
      {"overlong_slash", "\xC0\xAF"},
      {"overlong_U_001B_in_3", "\xE0\x80\x9B"},
      {"overlong_U_009B_in_3", "\xE0\x82\x9B"},
      {"overlong_U_FFFF_in_4", "\xF0\x8F\xBF\xBF"},
      {"surrogate_U_D800", "\xED\xA0\x80"},
      {"surrogate_U_DFFF", "\xED\xBF\xBF"},
      {"U_110000", "\xF4\x90\x80\x80"},
      {"five_bytes", "\xF8\x88\x80\x80\x80"},
  };
}

class ShownText : public testing::TestWithParam<TextRow> {};
class NotShownText : public testing::TestWithParam<TextRow> {};

TEST_P(ShownText, CanBeShown) { EXPECT_TRUE(canBeShown(GetParam().text)); }
TEST_P(NotShownText, CannotBeShown) { EXPECT_FALSE(canBeShown(GetParam().text)); }

INSTANTIATE_TEST_SUITE_P(Texts, ShownText, testing::ValuesIn(shownRows()), rowName<TextRow>);
INSTANTIATE_TEST_SUITE_P(Texts, NotShownText, testing::ValuesIn(notShownRows()), rowName<TextRow>);

}  // namespace
}  // namespace kovalt::test
