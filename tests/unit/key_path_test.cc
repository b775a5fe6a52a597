#include "json/path/key_path.h"

#include <gtest/gtest.h>

#include "support/row.h"

namespace kovalt::test {
namespace {

struct SeparatorRow : Row {
  std::string text;
  std::string separator;
  std::vector<std::string> steps;
  std::string joined;
};

std::vector<SeparatorRow> separatorRows() {
  return {
      {{"no_step"}, "", "::", {}, ""},
      {{"steps"}, "a::b.c::d", "::", {"a", "b.c", "d"}, "a.b.c.d"},
      {{"part_of_a_separator"}, "a:b:::c:", "::", {"a:b", ":c:"}, "a:b.:c:"},
      {{"separators_alone"}, "::::", "::", {"", "", ""}, ".."},
      {{"separator_longer_than_the_text"}, "ab", "abc", {"ab"}, "ab"},
      {{"separator_with_a_repeated_byte"}, "aabaab", "ab", {"a", "a", ""}, "a.a."},
  };
}

class PathWithSeparator : public testing::TestWithParam<SeparatorRow> {};

// Key paths of the command line are split at dots; MemberSteps shows them.
TEST_P(PathWithSeparator, IsSplitThereAndJoinedWithDots) {
  const KeyPath path(GetParam().text, GetParam().separator);
  EXPECT_EQ(path.steps(), GetParam().steps);
  EXPECT_EQ(path.text(), GetParam().joined);
}

INSTANTIATE_TEST_SUITE_P(KeyPath, PathWithSeparator, testing::ValuesIn(separatorRows()), rowName<SeparatorRow>);

}  // namespace
}  // namespace kovalt::test
