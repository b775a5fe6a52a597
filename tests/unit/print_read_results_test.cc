#include "actions/read/print_read_results.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "actions/read/read_object_array_concat_action.h"
#include "support/capture.h"
#include "support/json_text.h"

namespace kovalt::test {
namespace {

static_assert(std::has_virtual_destructor_v<ReadAction>, "actions are deleted through it");

using Reads = std::vector<std::unique_ptr<ReadAction>>;

Reads readsOf(const std::vector<std::string>& paths) {
  Reads reads;
  for (const std::string& path : paths) {
    reads.push_back(std::make_unique<ReadAction>(path));
  }
  return reads;
}

struct Outcome {
  bool anyRead = false;
  Printed printed;
};

Outcome print(const Reads& reads, Document& document) {
  Outcome outcome;
  outcome.printed = capture([&] { outcome.anyRead = printReadResults(reads, document); });
  return outcome;
}

TEST(PrintReadResults, PrintsNothingWithoutReads) {
  Document document = parsed(R"({"a":1})");
  const Outcome outcome = print({}, document);
  EXPECT_FALSE(outcome.anyRead);
  EXPECT_EQ(outcome.printed.output + outcome.printed.errors, "");
}

TEST(PrintReadResults, PrintsTheBareTextOfOneRead) {
  Document document = parsed(R"({"a":"x"})");
  const Outcome outcome = print(readsOf({"a"}), document);
  EXPECT_TRUE(outcome.anyRead);
  EXPECT_EQ(outcome.printed.output, "x\n");
  EXPECT_EQ(outcome.printed.errors, "");
}

TEST(PrintReadResults, CountsAReadThatFindsNothing) {
  Document document = parsed(R"({"a":"x"})");
  const Outcome outcome = print(readsOf({"b"}), document);
  EXPECT_TRUE(outcome.anyRead);
  EXPECT_EQ(outcome.printed.output, "");
  EXPECT_EQ(outcome.printed.errors, "--read error : Path \"b\" does not exist\n");
}

TEST(PrintReadResults, GathersSeveralReadsAndLeavesTheDocumentAlone) {
  Document document = parsed(R"({"a":"x","n":[1,"y"]})");
  const Outcome outcome = print(readsOf({"n", "b", "a", "n"}), document);
  EXPECT_TRUE(outcome.anyRead);
  EXPECT_EQ(outcome.printed.output, R"({
    "n": "[1,\"y\"]",
    "a": "x",
    "n": "[1,\"y\"]"
}
)");
  EXPECT_EQ(outcome.printed.errors, "--read error : Path \"b\" does not exist\n");
  EXPECT_EQ(jsonOf(document), R"({"a":"x","n":[1,"y"]})");
}

TEST(ReadAction, LeavesTheTextEmptyWhereThereIsNothing) {
  const Document document = parsed(R"({"a":1})");
  std::string text;
  Lookups lookups;
  capture([&] { EXPECT_FALSE(ReadAction("b").execute(document, text, lookups)); });
  EXPECT_EQ(text, "");
}

TEST(ReadAction, CanBeRunAgain) {
  const Document document = parsed(R"({"a":"x"})");
  const ReadAction action("a");
  for (int i = 0; i < 2; ++i) {
    std::string text;
    Lookups lookups;
    EXPECT_TRUE(action.execute(document, text, lookups));
    EXPECT_EQ(text, "x");
  }
}

TEST(ReadObjectArrayConcatAction, TellsAnEmptyArrayFromWhatIsNoArray) {
  const Document document = parsed(R"({"empty":[],"object":{"id":1}})");
  for (const auto& [path, found] : {std::pair("empty", true), std::pair("object", false)}) {
    SCOPED_TRACE(path);
    std::string text;
    bool executed = !found;
    Lookups lookups;
    const Printed printed = capture([&, keyPath = path] {
      executed = ReadObjectArrayConcatAction(keyPath, {"id"}, " ").execute(document, text, lookups);
    });
    EXPECT_EQ(executed, found);
    EXPECT_EQ(text, "");
    EXPECT_EQ(printed.output + printed.errors, "");
  }
}

}  // namespace
}  // namespace kovalt::test
