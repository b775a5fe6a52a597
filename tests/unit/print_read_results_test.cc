#include "actions/read/print_read_results.h"

#include <gtest/gtest.h>

#include "support/capture.h"
#include "support/json_text.h"

namespace kovalt::test {
namespace {

// The program does not use the result. SingleReads and SeveralReads show the output.
TEST(PrintReadResults, ReturnsWhetherThereAreReads) {
  Document document = parsed(R"({"a":"x"})");
  std::vector<std::unique_ptr<ReadAction>> reads;
  EXPECT_FALSE(printReadResults(reads, document));
  reads.push_back(std::make_unique<ReadAction>("missing"));
  const Printed printed = capture([&] { EXPECT_TRUE(printReadResults(reads, document)); });
  EXPECT_EQ(printed.output, "");
  EXPECT_EQ(printed.errors, "--read error : Path \"missing\" does not exist\n");
}

}  // namespace
}  // namespace kovalt::test
