#include "json/path/key_path.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "support/row.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

using Steps = std::vector<std::string>;

static_assert(std::has_virtual_destructor_v<KeyPath>, "actions are deleted through it");
static_assert(!std::is_copy_constructible_v<KeyPath> && !std::is_copy_assignable_v<KeyPath>, "an action owns its own");

struct PathRow : Row {
  std::string text;
  Steps steps;
};

std::vector<PathRow> pathRows() {
  return {
      {{"empty_text_has_no_step"}, "", {}},
      {{"one_step"}, "a", {"a"}},
      {{"three_steps"}, "a.b.c", {"a", "b", "c"}},
      {{"repeated_step"}, "a.a.a", {"a", "a", "a"}},
      {{"longer_steps"}, "network.webSocketPort", {"network", "webSocketPort"}},
      {{"empty_step_in_the_middle"}, "a..b", {"a", "", "b"}},
      {{"empty_step_in_front"}, ".a", {"", "a"}},
      {{"empty_step_at_the_end"}, "a.", {"a", ""}},
      {{"lone_separator"}, ".", {"", ""}},
      {{"two_separators"}, "..", {"", "", ""}},
      {{"empty_steps_everywhere"}, "..a..", {"", "", "a", "", ""}},
      {{"digits_are_no_index"}, "items.0", {"items", "0"}},
      {{"decimal_number_is_two_steps"}, "1.5", {"1", "5"}},
      {{"selection_is_kept_whole"}, "pools.name=alpha=beta.size", {"pools", "name=alpha=beta", "size"}},
      {{"selection_without_key"}, "list.=x", {"list", "=x"}},
      {{"selection_without_value"}, "list.id=", {"list", "id="}},
      {{"selection_of_nothing_at_all"}, "=", {"="}},
      {{"selection_value_with_a_separator_is_cut"}, "list.v=2.5", {"list", "v=2", "5"}},
      {{"blanks_are_kept"}, " a . b ", {" a ", " b "}},
      {{"letter_case_is_kept"}, "Ab.aB", {"Ab", "aB"}},
      {{"backslash_escapes_nothing"}, R"(a\.b)", {"a\\", "b"}},
      {{"quotes_protect_nothing"}, R"("a.b")", {"\"a", "b\""}},
      {{"slashes_and_colons"}, "a/b.c::d", {"a/b", "c::d"}},
      {{"line_ends_and_tabs"}, "a\n.\tb", {"a\n", "\tb"}},
      {{"bytes_beyond_ascii"}, "größe.\xE2\x82\xAC", {"größe", "\xE2\x82\xAC"}},
      {{"bytes_that_are_no_utf_8"}, "\xFF.\xC3.\x80", {"\xFF", "\xC3", "\x80"}},
      {{"nul_bytes"}, "a\0b.\0"s, {"a\0b"s, "\0"s}},
      {{"leading_dashes"}, "-a.--b", {"-a", "--b"}},
  };
}

class PathOfDots : public testing::TestWithParam<PathRow> {};

TEST_P(PathOfDots, IsCutIntoSteps) { EXPECT_EQ(KeyPath(GetParam().text, ".").steps(), GetParam().steps); }

TEST_P(PathOfDots, GivesItsTextBack) { EXPECT_EQ(KeyPath(GetParam().text, ".").text(), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(KeyPath, PathOfDots, testing::ValuesIn(pathRows()), rowName<PathRow>);

struct SeparatorRow : Row {
  std::string text;
  std::string separator;
  Steps steps;
  std::string joined;
};

std::vector<SeparatorRow> separatorRows() {
  return {
      {{"no_step"}, "", "::", {}, ""},
      {{"one_step"}, "a", "::", {"a"}, "a"},
      {{"two_steps"}, "a::b", "::", {"a", "b"}, "a.b"},
      {{"three_steps"}, "a::bc::d", "::", {"a", "bc", "d"}, "a.bc.d"},
      {{"half_a_separator"}, "a:b", "::", {"a:b"}, "a:b"},
      {{"half_a_separator_before_a_whole_one"}, "a:b::c", "::", {"a:b", "c"}, "a:b.c"},
      {{"half_a_separator_at_the_end"}, "a::b:", "::", {"a", "b:"}, "a.b:"},
      {{"one_and_a_half_separators"}, "a:::b", "::", {"a", ":b"}, "a.:b"},
      {{"two_separators"}, "a::::b", "::", {"a", "", "b"}, "a..b"},
      {{"only_half_a_separator"}, ":", "::", {":"}, ":"},
      {{"lone_separator"}, "::", "::", {"", ""}, "."},
      {{"lone_two_separators"}, "::::", "::", {"", "", ""}, ".."},
      {{"separator_in_front"}, "::a", "::", {"", "a"}, ".a"},
      {{"separator_at_the_end"}, "a::", "::", {"a", ""}, "a."},
      {{"dots_are_no_separator_then"}, "a.b::c", "::", {"a.b", "c"}, "a.b.c"},
      {{"separator_of_two_kinds_of_byte"}, "aabaab", "ab", {"a", "a", ""}, "a.a."},
      {{"separator_of_three_bytes"}, "abcabcab", "abc", {"", "", "ab"}, "..ab"},
      {{"separator_longer_than_the_text"}, "ab", "abc", {"ab"}, "ab"},
      {{"another_separator_of_one_byte"}, "a/b.c/d", "/", {"a", "b.c", "d"}, "a.b.c.d"},
  };
}

class PathOfOtherSeparators : public testing::TestWithParam<SeparatorRow> {};

TEST_P(PathOfOtherSeparators, IsCutIntoStepsAndJoinedWithDots) {
  const KeyPath path(GetParam().text, GetParam().separator);
  EXPECT_EQ(path.steps(), GetParam().steps);
  EXPECT_EQ(path.text(), GetParam().joined);
}

INSTANTIATE_TEST_SUITE_P(KeyPath, PathOfOtherSeparators, testing::ValuesIn(separatorRows()), rowName<SeparatorRow>);

TEST(KeyPath, KeepsItsOwnCopyOfTheText) {
  std::string text = "first.second";
  const KeyPath path(text, ".");
  text.assign(text.size(), 'x');
  EXPECT_EQ(path.text(), "first.second");
}

TEST(KeyPath, HoldsVeryManySteps) {
  std::string text = "0";
  Steps steps = {"0"};
  for (int i = 1; i < 50000; ++i) {
    steps.push_back(std::to_string(i));
    text += '.' + steps.back();
  }
  const KeyPath path(text, ".");
  EXPECT_TRUE(path.steps() == steps);
  EXPECT_TRUE(path.text() == text);
}

}  // namespace
}  // namespace kovalt::test
