// The name of the program, and calls that no shell makes: without any argument, and with arguments after the count.

#include "app/parse_arguments.h"

#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/texts.h"

namespace kovalt::test {
namespace {

bool parse(ToolContext& context, int argumentCount, const char* const* arguments) {
  bool succeeded = false;
  const Printed printed = capture([&] { succeeded = parseArguments(context, argumentCount, arguments); });
  EXPECT_EQ(printed.output + printed.errors, "");
  return succeeded;
}

TEST(ParseArguments, SucceedsWithoutAnyArgument) {
  for (const int argumentCount : {0, -1}) {
    ToolContext context;
    EXPECT_TRUE(parse(context, argumentCount, nullptr)) << argumentCount;
    EXPECT_TRUE(context.editActions.empty() && context.removeActions.empty() && context.readActions.empty());
    EXPECT_EQ(context.filePath, "");
    EXPECT_FALSE(context.displayResult);
  }
}

TEST(ParseArguments, FailsSilentlyWithTheNameOfTheProgramAlone) {
  const char* const name = "Kovalt";
  ToolContext context;
  EXPECT_FALSE(parse(context, 1, &name));
}

TEST(ParseArguments, IgnoresTheNameOfTheProgram) {
  for (const char* name : {"", "--addString", "-f", "not an option"}) {
    const std::vector<const char*> arguments = {name, "-f", "f.json"};
    ToolContext context;
    EXPECT_TRUE(parse(context, 3, arguments.data())) << name;
    EXPECT_EQ(context.filePath, "f.json") << name;
  }
}

TEST(ParseArguments, StopsAtTheArgumentCount) {
  const std::vector<const char*> arguments = {"Kovalt", "-r", "a", "not an option"};
  ToolContext context;
  EXPECT_TRUE(parse(context, 3, arguments.data()));
  EXPECT_FALSE(context.readActions.empty());
}

TEST(CollectValues, StopsAtTheArgumentCount) {
  const std::vector<const char*> arguments = {"Kovalt", "-aa", "k", "v", "w", "x"};
  int position = 2;
  EXPECT_EQ(collectValues(position, 5, arguments.data()), (Texts{"v", "w"}));
  EXPECT_EQ(position, 4);
}

}  // namespace
}  // namespace kovalt::test
