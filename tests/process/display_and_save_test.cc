// When the document is displayed and saved, and what a closed or full output does to that.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr const char* kBefore = R"({"a":1})";

constexpr const char* kAfter = R"({
  "a": 1,
  "k": "v"
})";

std::vector<ToolCall> displayAndSave() {
  return {
      // Without a file.
      ToolCall("no_file_and_an_edit").call("--addString k v").prints("{\n    \"k\": \"v\"\n}\n"),
      ToolCall("no_file_and_a_removal").call("--remove k").prints("{}\n"),
      ToolCall("no_file_and_a_removal_of_nothing").call({"--remove", ""}).prints("{}\n"),
      ToolCall("no_file_and_a_read").call("--read k").reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("no_file_and_a_read_of_the_root").call({"--read", ""}).prints("{}\n"),
      ToolCall("no_file_and_an_edit_and_a_read").call("-as k v -as l w --read k").prints("v\n"),
      ToolCall("no_file_and_a_removal_and_a_read")
          .call("-rm k -r k")
          .reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("no_file_and_two_reads").call("-as k v -an l 1 -r k -r l").prints(R"({
    "k": "v",
    "l": "1"
}
)"),

      // With a file that is only looked at: it stays byte for byte.
      ToolCall("file_alone")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--file conf.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("file_display_alone")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--fileDisplay conf.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("file_and_a_read").given("conf.json", "{\"a\" : 1}\n").call("--file conf.json -r a").prints("1\n"),
      ToolCall("file_and_a_failing_read")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--file conf.json -r b")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("file_and_two_reads")
          .given("conf.json", R"({"a":1})")
          .call({"-f", "conf.json", "-r", "a", "-r", ""})
          .prints(R"({
    "a": "1",
    "": "{\"a\":1}"
}
)"),
      ToolCall("file_display_and_a_read")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--fileDisplay conf.json --read a")
          .prints("{\n    \"a\": 1\n}\n1\n"),
      ToolCall("file_display_and_two_reads")
          .given("conf.json", R"({"a":1,"b":[]})")
          .call("-r a -fd conf.json -r b")
          .prints(R"({
    "a": 1,
    "b": []
}
{
    "a": "1",
    "b": "[]"
}
)"),
      ToolCall("file_that_holds_an_array").given("conf.json", "[1,{}]").call("-f conf.json").prints(R"([
    1,
    {}
]
)"),
      ToolCall("file_that_holds_an_empty_array").given("conf.json", "[]").call("-f conf.json").prints("[]\n"),
      ToolCall("file_that_holds_a_string").given("conf.json", R"("text")").call("-f conf.json").prints("\"text\"\n"),
      ToolCall("file_that_holds_null").given("conf.json", "null").call("-f conf.json").prints("null\n"),

      // With a file that is changed: it is saved, and shown only on demand.
      ToolCall("file_and_an_edit")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an b 2")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_and_an_edit_and_a_read")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an b 2 -r b")
          .prints("2\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_and_an_edit_and_a_failing_read")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -an b 2 -r c")
          .reports("--read error : Path \"c\" does not exist\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_display_and_an_edit")
          .given("conf.json", R"({"a":1})")
          .call("--fileDisplay conf.json -an b 2")
          .prints("{\n    \"a\": 1,\n    \"b\": 2\n}\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_display_and_an_edit_and_a_read")
          .given("conf.json", R"({"a":1})")
          .call("--fileDisplay conf.json -an b 2 -r b")
          .prints("{\n    \"a\": 1,\n    \"b\": 2\n}\n2\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_and_a_removal")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("--file conf.json -rm b")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("file_and_a_removal_and_a_read")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("--file conf.json -rm b -r a")
          .prints("1\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("file_and_a_removal_of_the_last_member")
          .given("conf.json", R"({"a":1})")
          .call("--file conf.json -rm a")
          .leaves("conf.json", "{}"),

      // Any edit counts as a change, even one without effect.
      ToolCall("edit_to_the_same_value_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("-f conf.json -an a 1")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("merge_of_a_missing_file_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("-f conf.json -af missing.json")
          .reports("Could not open document: missing.json\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("merge_of_a_broken_file_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .given("more.json", R"({"b":2,)")
          .call("-f conf.json -af more.json")
          .reports("Could not parse json file more.json\n")
          .leaves("conf.json", "{\n  \"a\": 1\n}"),
      ToolCall("rejected_boolean_for_a_null_rewrites_the_file")
          .given("conf.json", "{\"a\" : null}\n")
          .call("-f conf.json -ab a maybe")
          .reports(R"(Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.
Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.
)")
          .leaves("conf.json", "{\n  \"a\": null\n}"),
      ToolCall("failed_removal_beside_an_edit_saves")
          .given("conf.json", R"({"a":1})")
          .call("-f conf.json -rm missing -an b 2")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),

      // Removals count as a change only when every one of them succeeds.
      ToolCall("failed_removal_shows_and_saves_nothing")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--file conf.json --remove missing")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_is_displayed_once")
          .given("conf.json", "{\"a\" : 1}\n")
          .call("--fileDisplay conf.json --remove missing")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_behind_a_good_one_keeps_the_file")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-f conf.json -rm b -rm missing")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_before_a_good_one_keeps_the_file")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-f conf.json -rm missing -rm b")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("second_removal_of_the_same_key_keeps_the_file")
          .given("conf.json", R"({"a":1,"b":2})")
          .call("-f conf.json -rm b -rm b")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("failed_removal_and_a_read_show_the_read_alone")
          .given("conf.json", R"({"a":1,"b":2})")
          .call({"-f", "conf.json", "-rm", "b", "-rm", "missing", "-r", ""})
          .prints("{\"a\":1}\n"),
      ToolCall("removal_of_a_missing_nested_key_rewrites_the_file")
          .given("conf.json", "{\"a\" : {}}\n")
          .call("-f conf.json -rm a.missing")
          .leaves("conf.json", "{\n  \"a\": {}\n}"),
      ToolCall("removal_with_an_empty_key_path_rewrites_the_file")
          .given("conf.json", "{\"a\" : 1}\n")
          .call({"-f", "conf.json", "-rm", ""})
          .leaves("conf.json", "{\n  \"a\": 1\n}"),

      // A file that does not exist yet.
      ToolCall("missing_file_and_an_edit")
          .call("--file conf.json --addString k v")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("missing_file_for_display_and_an_edit")
          .call("--fileDisplay conf.json --addString k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("missing_file_alone_is_not_made").call("--file conf.json").prints("{}\n"),
      ToolCall("missing_file_for_display_is_not_made").call("--fileDisplay conf.json").prints("{}\n"),
      ToolCall("missing_file_and_a_read")
          .call("--file conf.json -r k")
          .reports("--read error : Path \"k\" does not exist\n"),
      ToolCall("missing_file_and_a_failed_removal_is_not_made").call("-f conf.json -rm k").prints("{}\n"),
      ToolCall("missing_file_and_a_nested_removal_is_made").call("-f conf.json -rm a.k").leaves("conf.json", "{}"),
      ToolCall("missing_file_and_a_merge_of_a_missing_file_is_made")
          .call("-f conf.json -af missing.json")
          .reports("Could not open document: missing.json\n")
          .leaves("conf.json", "{}"),
  };
}

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

const Table kRunDisplayAndSave("RunDisplayAndSave", displayAndSave);
const Table kClosedOutput("ClosedOutput", closedRows);
const Table kFullOutput("FullOutput", fullRows);

}  // namespace
}  // namespace kovalt::test
