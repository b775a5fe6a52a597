// A broken contract aborts in builds that check contracts.

#include "json/contract.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <functional>
#include <limits>
#include <string>

#include "json/load/parse_value.h"
#include "json/load/reader_stream.h"
#include "json/load/scanner.h"
#include "json/write/double_text.h"
#include "json/write/output_stream.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

struct ContractRow : Row {
  std::function<void(InputBuffer&)> breakContract;
};

std::vector<ContractRow> contractRows() {
  return {
      {{"two_scanners_of_one_buffer"},
       [](InputBuffer& buffer) {
         const Scanner first(buffer);
         const Scanner second(buffer);
       }},
      {{"stream_and_scanner_of_one_buffer"},
       [](InputBuffer& buffer) {
         const Scanner scanner(buffer);
         const ReaderStream stream(buffer);
       }},
      {{"peek_while_a_refill_is_pending"},
       [](InputBuffer& buffer) {
         Scanner scanner(buffer);
         scanner.skipCharacter();
         static_cast<void>(scanner.peek());
       }},
      {{"token_while_a_refill_is_pending"},
       [](InputBuffer& buffer) {
         Scanner scanner(buffer);
         scanner.readString();
         scanner.skipNumber();
       }},
      {{"string_that_does_not_begin_with_a_quote"},
       [](InputBuffer& buffer) {
         Scanner scanner(buffer);
         scanner.readString();
         scanner.skipSeparator(',');
         scanner.readString();
       }},
      {{"container_closed_twice"},
       [](InputBuffer& /*buffer*/) {
         ContainerStack stack;
         stack.open('[');
         stack.close();
         stack.close();
       }},
      {{"push_of_too_many_characters"},
       [](InputBuffer& /*buffer*/) {
         OutputStream stream(stdout);
         stream.Push(OutputStream::kShort + 1);
       }},
      {{"infinity_as_a_number"},
       [](InputBuffer& /*buffer*/) {
         std::array<char, kLongestDouble> text{};
         writeDouble(std::numeric_limits<double>::infinity(), text.data());
       }},
      {{"refill_at_a_character"}, [](InputBuffer& buffer) { buffer.refill(buffer.takeCursor()); }},
  };
}

TEST(ContractDeathTest, AbortsIfAContractIsBroken) {
  if (!kChecksContracts) {
    GTEST_SKIP() << "only builds with sanitizers check contracts";
  }
  for (const ContractRow& row : contractRows()) {
    SCOPED_TRACE(row.name);
    std::string text = R"("a",1])";
    std::FILE* file = fmemopen(text.data(), text.size(), "r");
    InputBuffer buffer(file);
    EXPECT_DEATH(row.breakContract(buffer), "");
    std::fclose(file);
  }
}

}  // namespace
}  // namespace kovalt::test
