#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr const char* kBefore = R"({"a":1})";
constexpr const char* kAfter = R"({
  "a": 1,
  "k": "v"
})";

/// The calls whose output goes nowhere, without the place itself.
std::vector<ToolCall> calls() {
  return {
      ToolCall("display").call("-as k v"),
      ToolCall("display_of_a_file").given("conf.json", kBefore).call("-f conf.json"),
      ToolCall("display_and_save")
          .given("conf.json", kBefore)
          .call("-fd conf.json -as k v")
          .leaves("conf.json", kAfter),
      ToolCall("display_and_save_and_read")
          .given("conf.json", kBefore)
          .call("-fd conf.json -as k v -r k")
          .leaves("conf.json", kAfter),
      ToolCall("display_and_save_of_a_new_file")
          .call("-fd conf.json -as k v")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("display_and_save_and_merge")
          .given("conf.json", kBefore)
          .given("more.json", R"({"k":"v"})")
          .call("-fd conf.json -af more.json")
          .leaves("conf.json", kAfter),
      ToolCall("save_alone").given("conf.json", kBefore).call("-f conf.json -as k v").leaves("conf.json", kAfter),
      ToolCall("save_and_read")
          .given("conf.json", kBefore)
          .call("-f conf.json -as k v -r k")
          .leaves("conf.json", kAfter),
      ToolCall("read").given("conf.json", kBefore).call("-f conf.json -r a"),
      ToolCall("two_reads").given("conf.json", kBefore).call("-f conf.json -r a -r a"),
      ToolCall("failing_read")
          .given("conf.json", kBefore)
          .call("-f conf.json -r k")
          .reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("long_display").call({"-as", "k", std::string(100000, 'x')}),
      ToolCall("long_display_and_save")
          .call({"-fd", "conf.json", "-as", "k", std::string(100000, 'x')})
          .leaves("conf.json", "{\n  \"k\": \"" + std::string(100000, 'x') + "\"\n}"),
      ToolCall("broken_file")
          .given("conf.json", "{")
          .call("-fd conf.json")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("failed_save")
          .call("-fd no/such/conf.json -as k v")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("parse_error").given("conf.json", kBefore).call("-f conf.json -as k v oops").exits(1),
  };
}

std::vector<ToolCall> closedRows() {
  std::vector<ToolCall> rows = calls();
  for (ToolCall& row : rows) {
    row.withClosedOutput();
  }
  return rows;
}

std::vector<ToolCall> fullRows() {
  std::vector<ToolCall> rows = calls();
  for (ToolCall& row : rows) {
    row.withFullOutput();
  }
  return rows;
}

const Table kClosedOutput("ClosedOutput", closedRows);
const Table kFullOutput("FullOutput", fullRows);

}  // namespace
}  // namespace kovalt::test
