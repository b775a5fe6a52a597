// When the document is displayed and when it is saved, and how a closed or full output affects that.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call on a file that is not saved, so that the space after its value stays.
ToolCall kept(const std::string& name, const std::string& options, const std::string& output) {
  return ToolCall(name).given("f.json", "7 ").call(options).prints(output);
}

/// A call on a file that is saved with `content`.
ToolCall saved(const std::string& name, const std::string& options, const std::string& output,
               const std::string& content) {
  return ToolCall(name).given("f.json", "7 ").call(options).prints(output).leaves("f.json", content);
}

std::vector<ToolCall> decisions() {
  return {
      // Without a file the document is displayed, unless there is a read.
      ToolCall("edit").call("-an '' 8").printsLine("8"),
      ToolCall("removal").call("-rm ''").printsLine("{}"),
      ToolCall("removal_and_a_failing_read").call("-rm k -r k").reports(readError("k")),
      ToolCall("edit_and_a_read").call("-as k v -as l w -r k").printsLine("v"),

      // An unchanged file is displayed, unless there is a read. --fileDisplay always displays it.
      kept("file", "-f f.json", "7\n"),
      kept("file_display", "-fd f.json", "7\n"),
      kept("file_and_a_read", "-f f.json -r ''", "7\n"),
      kept("file_and_a_failing_read", "-f f.json -r a", "").reports(readError("a")),
      kept("file_and_two_failing_reads", "-f f.json -r a -r a", "{}\n").reports(readError("a") + readError("a")),
      kept("file_display_and_a_read", "-r '' -fd f.json", "7\n7\n"),
      kept("file_display_and_a_failing_read", "-fd f.json -r a", "7\n").reports(readError("a")),

      // A changed file is saved, and displayed only by --fileDisplay.
      saved("file_and_an_edit", "-f f.json -an '' 8", "", "8"),
      saved("file_and_an_edit_and_a_read", "-f f.json -an '' 8 -r ''", "8\n", "8"),
      saved("file_and_an_edit_and_a_failing_read", "-f f.json -an '' 8 -r a", "", "8").reports(readError("a")),
      saved("file_display_and_an_edit", "-fd f.json -an '' 8", "8\n", "8"),
      saved("file_display_and_an_edit_and_a_read", "-fd f.json -an '' 8 -r ''", "8\n8\n", "8"),

      // Every edit is a change, even without effect. ChangesByRemoval shows which removals are changes.
      saved("edit_to_the_same_value", "-f f.json -an '' 7", "", "7"),
      saved("edit_and_a_failed_removal", "-f f.json -ao '' -rm k", "", "{}"),
      saved("merge_of_a_missing_file", "-f f.json -af missing.json", "", "{}").reports(cannotOpen("missing.json")),
      ToolCall("rejected_boolean_for_null")
          .given("f.json", R"({"a" : null})")
          .call("-f f.json -ab a maybe")
          .reports(rejected("maybe") + rejected("maybe"))
          .leaves("f.json", R"({
  "a": null
})"),

      // A missing file is created by a change.
      ToolCall("missing_file").call("-f f.json").printsLine("{}"),
      ToolCall("missing_file_of_file_display").call("-fd f.json").printsLine("{}"),
      ToolCall("missing_file_and_a_read").call("-f f.json -r k").reports(readError("k")),
      ToolCall("missing_file_and_a_failed_removal").call("-f f.json -rm k").printsLine("{}"),
      ToolCall("missing_file_and_an_edit").call("-f f.json -an '' 8").leaves("f.json", "8"),
      ToolCall("missing_file_and_an_edit_with_file_display")
          .call("-fd f.json -an '' 8")
          .printsLine("8")
          .leaves("f.json", "8"),
      ToolCall("missing_file_and_a_nested_removal").call("-f f.json -rm a.k").leaves("f.json", "{}"),
      ToolCall("missing_file_and_a_merge_of_a_missing_file")
          .call("-f f.json -af missing.json")
          .reports(cannotOpen("missing.json"))
          .leaves("f.json", "{}"),
  };
}

/// Calls whose output is lost. Everything else must be as usual.
std::vector<ToolCall> lostOutput() {
  const std::string text(100000, 'x');
  return {
      ToolCall("display").call("-as k v"),
      ToolCall("display_of_a_file").given("f.json", "7 ").call("-f f.json"),
      ToolCall("display_and_save_and_read")
          .given("f.json", "7 ")
          .call("-fd f.json -an '' 8 -r ''")
          .leaves("f.json", "8"),
      ToolCall("display_and_save_of_a_new_file").call("-fd f.json -an '' 8").leaves("f.json", "8"),
      ToolCall("display_and_save_after_a_merge")
          .given("f.json", "7 ")
          .given("more.json", "{ }")
          .call("-fd f.json -af more.json")
          .leaves("f.json", "{}"),
      ToolCall("save_and_read").given("f.json", "7 ").call("-f f.json -an '' 8 -r ''").leaves("f.json", "8"),
      ToolCall("two_reads").given("f.json", "7 ").call("-f f.json -r '' -r ''"),
      ToolCall("failing_read").given("f.json", "7 ").call("-f f.json -r k").reports(readError("k")),
      ToolCall("long_display_and_save").call("-fd f.json -as '' " + text).leaves("f.json", '"' + text + '"'),
      ToolCall("file_that_cannot_be_parsed").given("f.json", "{").call("-fd f.json").reports(cannotParse("f.json")),
      ToolCall("failed_save").call("-fd no/such/f.json -as k v").reports(cannotWrite("no/such/f.json")).exits(1),
      ToolCall("invalid_argument").given("f.json", "7 ").call("-f f.json -as k v oops").exits(1),
  };
}

std::vector<ToolCall> closedOutput() {
  std::vector<ToolCall> rows = lostOutput();
  for (ToolCall& row : rows) {
    row.withClosedOutput();
  }
  return rows;
}

std::vector<ToolCall> fullOutput() {
  std::vector<ToolCall> rows = lostOutput();
  for (ToolCall& row : rows) {
    row.withFullOutput();
  }
  return rows;
}

const Table kDisplayAndSave("DisplayAndSave", decisions);
const Table kClosedOutput("ClosedOutput", closedOutput);
const Table kFullOutput("FullOutput", fullOutput);

}  // namespace
}  // namespace kovalt::test
