#include <gtest/gtest.h>

#include <random>
#include <string>

#include "json/load/parse_value.h"

namespace kovalt::test {
namespace {

TEST(ContainerStack, ClosesContainersInReverseOrder) {
  std::mt19937 random(1);
  ContainerStack stack;
  std::string expected;  // The closing brackets of the open containers.
  // Around multiples of 64, because the stack stores 64 containers in a word.
  for (int limit : {3, 62, 63, 64, 65, 127, 128, 129, 1000, 0}) {
    while (expected.size() < static_cast<std::size_t>(limit)) {
      const bool isObject = random() % 2 == 0;
      stack.open(isObject ? '{' : '[');
      expected += isObject ? '}' : ']';
      ASSERT_EQ(stack.closingBracket(), expected.back()) << expected.size();
    }
    for (int closed = 0; closed < (limit == 0 ? 1000 : 3); ++closed) {
      stack.close();
      expected.pop_back();
      ASSERT_EQ(stack.closingBracket(), expected.empty() ? '\0' : expected.back()) << expected.size();
      if (expected.empty()) {
        break;
      }
    }
  }
  EXPECT_TRUE(expected.empty());
}

}  // namespace
}  // namespace kovalt::test
