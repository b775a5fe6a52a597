#include "app/parse_arguments.h"

#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/row.h"
#include "support/texts.h"

namespace kovalt::test {
namespace {

// Whole command lines.

struct Outcome {
  bool succeeded = false;
  ToolContext context;
  Printed printed;
};

Outcome parse(int argumentCount, const char* const* arguments) {
  Outcome outcome;
  outcome.printed = capture([&] { outcome.succeeded = parseArguments(outcome.context, argumentCount, arguments); });
  return outcome;
}

/// Parses a command line whose first argument, the program's own name, is left out.
Outcome parse(Texts arguments) {
  arguments.insert(arguments.begin(), "Kovalt");
  const std::vector<const char*> pointers = pointersTo(arguments);
  return parse(static_cast<int>(pointers.size()), pointers.data());
}

void expectUntouched(const ToolContext& context) {
  EXPECT_TRUE(context.editActions.empty());
  EXPECT_TRUE(context.removeActions.empty());
  EXPECT_TRUE(context.readActions.empty());
  EXPECT_EQ(context.filePath, "");
  EXPECT_FALSE(context.displayResult);
}

TEST(ToolContext, StartsEmpty) { expectUntouched(ToolContext()); }

TEST(ParseArguments, HasNothingToParseWithoutEvenAProgramName) {
  for (const int argumentCount : {0, -1}) {
    SCOPED_TRACE(argumentCount);
    const Outcome outcome = parse(argumentCount, nullptr);
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(outcome.printed.output + outcome.printed.errors, "");
    expectUntouched(outcome.context);
  }
}

TEST(ParseArguments, RefusesAProgramNameAloneInSilence) {
  const Outcome outcome = parse({});
  EXPECT_FALSE(outcome.succeeded);
  EXPECT_EQ(outcome.printed.output + outcome.printed.errors, "");
  expectUntouched(outcome.context);
}

TEST(ParseArguments, SkipsTheFirstArgumentWhateverItIs) {
  for (const char* name : {"", "--addString", "-f", "no option", "--file"}) {
    SCOPED_TRACE(name);
    const std::vector<const char*> arguments = {name, "-f", "f.json"};
    const Outcome outcome = parse(3, arguments.data());
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_EQ(outcome.context.filePath, "f.json");
    EXPECT_EQ(outcome.printed.output + outcome.printed.errors, "");
  }
}

TEST(ParseArguments, StopsAtTheArgumentCount) {
  const std::vector<const char*> arguments = {"Kovalt", "-r", "a", "no option"};
  const Outcome outcome = parse(3, arguments.data());
  EXPECT_TRUE(outcome.succeeded);
  EXPECT_EQ(outcome.context.readActions.size(), 1U);
}

TEST(ParseArguments, KeepsTheOrderInsideEachList) {
  const Outcome outcome = parse({"-r",   "r1",  "-as",  "e1", "x",   "-rm", "d1",    "-aa", "e2",    "x",  "y",
                                 "-ras", "r2",  "-rmc", "d2", "-f",  "f",   "-ao",   "e3",  "-roac", "r3", "id",
                                 "port", "-an", "e4",   "5",  "-rm", "d3",  "-racq", "r4",  "-afat", "e5", "g"});
  ASSERT_TRUE(outcome.succeeded);
  Texts edits;
  for (const auto& action : outcome.context.editActions) {
    edits.push_back(action->keyPath().text());
  }
  Texts removals;
  for (const auto& action : outcome.context.removeActions) {
    removals.push_back(action->text());
  }
  Texts reads;
  for (const auto& action : outcome.context.readActions) {
    reads.push_back(action->text());
  }
  EXPECT_EQ(edits, (Texts{"e1", "e2", "e3", "e4", "e5"}));
  EXPECT_EQ(removals, (Texts{"d1", "d2", "d3"}));
  EXPECT_EQ(reads, (Texts{"r1", "r2", "r3", "r4"}));
  EXPECT_EQ(outcome.context.filePath, "f");
  EXPECT_FALSE(outcome.context.displayResult);
}

TEST(ParseArguments, TakesFixedArgumentsThatLookLikeOptions) {
  const Outcome outcome = parse({"--addString", "-k", "-v", "--read", "--read", "-rm", "", "--file", "-f"});
  EXPECT_TRUE(outcome.succeeded);
  ASSERT_EQ(outcome.context.editActions.size(), 1U);
  EXPECT_EQ(outcome.context.editActions.front()->keyPath().text(), "-k");
  ASSERT_EQ(outcome.context.readActions.size(), 1U);
  EXPECT_EQ(outcome.context.readActions.front()->text(), "--read");
  ASSERT_EQ(outcome.context.removeActions.size(), 1U);
  EXPECT_TRUE(outcome.context.removeActions.front()->steps().empty());
  EXPECT_EQ(outcome.context.filePath, "-f");
}

struct RefusedRow : Row {
  Texts arguments;
  std::string message;
};

std::vector<RefusedRow> refusedRows() {
  const std::string missing = "Error: Error: missing argument(s) after ";
  return {
      {{"unknown_argument"}, {"conf.json"}, "Error: invalid argument conf.json\n"},
      {{"empty_argument"}, {""}, "Error: invalid argument \n"},
      {{"two_dashes"}, {"--"}, "Error: invalid argument --\n"},
      {{"option_with_an_equals_sign"}, {"--file=f"}, "Error: invalid argument --file=f\n"},
      {{"unknown_behind_known"}, {"-r", "k", "-x"}, "Error: invalid argument -x\n"},
      {{"first_of_two_unknown"}, {"-x", "-y"}, "Error: invalid argument -x\n"},
      {{"empty_argument_behind_a_list"}, {"-aa", "k", ""}, "Error: invalid argument \n"},
      {{"negative_number_in_a_list"}, {"-aan", "k", "1", "-5"}, "Error: invalid argument -5\n"},
      {{"missing_behind_a_whole_option"}, {"-r", "k", "--addString", "k"}, missing + "--addString\n"},
      {{"separators_without_fields"}, {"-roacs", "k", "/"}, missing + "-roacs\n"},
      {{"separators_without_fields_before_an_option"}, {"-roacs", "k", "/", "-r", "k"}, missing + "-roacs\n"},
      {{"option_in_place_of_fields_and_separators"}, {"-roacs", "k", "-r", "k"}, missing + "-roacs\n"},
      {{"empty_argument_in_place_of_fields"},
       {"--readObjectArrayConcatSep", "k", "", "id", "/"},
       missing + "--readObjectArrayConcatSep\n"},
  };
}

class RefusedCommandLine : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedCommandLine, IsReportedInOneLineOnStandardOutput) {
  const Outcome outcome = parse(GetParam().arguments);
  EXPECT_FALSE(outcome.succeeded);
  EXPECT_EQ(outcome.printed.output, GetParam().message);
  EXPECT_EQ(outcome.printed.errors, "");
}

INSTANTIATE_TEST_SUITE_P(ParseArguments, RefusedCommandLine, testing::ValuesIn(refusedRows()), rowName<RefusedRow>);

TEST(ParseArguments, RefusesASecondFileBeforeItLooksForItsPath) {
  for (const char* first : {"--file", "-f", "--fileDisplay", "-fd"}) {
    for (const char* second : {"--file", "-f", "--fileDisplay", "-fd"}) {
      for (const Texts& rest : {Texts{}, Texts{"g.json"}, Texts{""}}) {
        Texts arguments = {first, "f.json", second};
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        SCOPED_TRACE(testing::PrintToString(arguments));
        const Outcome outcome = parse(arguments);
        EXPECT_FALSE(outcome.succeeded);
        EXPECT_EQ(outcome.printed.output, "Error: --file already specified\n");
        EXPECT_EQ(outcome.printed.errors, "");
        EXPECT_EQ(outcome.context.filePath, "f.json");
      }
    }
  }
}

TEST(ParseArguments, TakesAFileAfterAnEmptyPath) {
  const Outcome outcome = parse({"-fd", "", "-f", "", "--file", "f.json"});
  EXPECT_TRUE(outcome.succeeded);
  EXPECT_EQ(outcome.context.filePath, "f.json");
  EXPECT_TRUE(outcome.context.displayResult);
}

}  // namespace
}  // namespace kovalt::test
