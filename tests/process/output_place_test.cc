#include "tool_case.h"

namespace kovalt::test {
namespace {

constexpr const char* kBefore = R"({"a":1})";
constexpr const char* kAfter = R"({
  "a": 1,
  "k": "v"
})";

/// The calls whose output goes nowhere, without the place itself.
std::vector<Case> calls() {
  return {
      Case("display").call({"-as", "k", "v"}),
      Case("display_of_a_file").given("conf.json", kBefore).call({"-f", "conf.json"}),
      Case("display_and_save")
          .given("conf.json", kBefore)
          .call({"-fd", "conf.json", "-as", "k", "v"})
          .leaves("conf.json", kAfter),
      Case("display_and_save_and_read")
          .given("conf.json", kBefore)
          .call({"-fd", "conf.json", "-as", "k", "v", "-r", "k"})
          .leaves("conf.json", kAfter),
      Case("display_and_save_of_a_new_file")
          .call({"-fd", "conf.json", "-as", "k", "v"})
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      Case("display_and_save_and_merge")
          .given("conf.json", kBefore)
          .given("more.json", R"({"k":"v"})")
          .call({"-fd", "conf.json", "-af", "more.json"})
          .leaves("conf.json", kAfter),
      Case("save_alone")
          .given("conf.json", kBefore)
          .call({"-f", "conf.json", "-as", "k", "v"})
          .leaves("conf.json", kAfter),
      Case("save_and_read")
          .given("conf.json", kBefore)
          .call({"-f", "conf.json", "-as", "k", "v", "-r", "k"})
          .leaves("conf.json", kAfter),
      Case("read").given("conf.json", kBefore).call({"-f", "conf.json", "-r", "a"}),
      Case("two_reads").given("conf.json", kBefore).call({"-f", "conf.json", "-r", "a", "-r", "a"}),
      Case("failing_read")
          .given("conf.json", kBefore)
          .call({"-f", "conf.json", "-r", "k"})
          .reports("--read error : Path \"k\" does not exist\n"),
      Case("long_display").call({"-as", "k", std::string(100000, 'x')}),
      Case("long_display_and_save")
          .call({"-fd", "conf.json", "-as", "k", std::string(100000, 'x')})
          .leaves("conf.json", "{\n  \"k\": \"" + std::string(100000, 'x') + "\"\n}"),
      Case("broken_file")
          .given("conf.json", "{")
          .call({"-fd", "conf.json"})
          .reports("Could not parse json file conf.json\n"),
      Case("failed_save")
          .call({"-fd", "no/such/conf.json", "-as", "k", "v"})
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      Case("parse_error").given("conf.json", kBefore).call({"-f", "conf.json", "-as", "k", "v", "oops"}).exits(1),
  };
}

std::vector<Case> closedRows() {
  std::vector<Case> rows = calls();
  for (Case& row : rows) {
    row.withClosedOutput();
  }
  return rows;
}

std::vector<Case> fullRows() {
  std::vector<Case> rows = calls();
  for (Case& row : rows) {
    row.withFullOutput();
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(ClosedOutput, ToolCall, testing::ValuesIn(closedRows()), rowName);
INSTANTIATE_TEST_SUITE_P(FullOutput, ToolCall, testing::ValuesIn(fullRows()), rowName);

}  // namespace
}  // namespace kovalt::test
