// Files that cannot be loaded, merged or saved. A file that cannot be loaded is treated as an empty object; only a
// failed save changes the exit status.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

/// A call that loads or merges files, reports `message` and prints an empty document.
ToolCall loading(const std::string& name, const std::string& options, const std::string& message) {
  return ToolCall(name).call(options).printsLine("{}").reports(message);
}

/// An edit of the file `path`, which cannot be saved.
ToolCall notSaved(const std::string& name, const std::string& path) {
  return ToolCall(name).call({"-f", path, "-as", "k", "v"}).reports(cannotWrite(path)).exits(1);
}

std::vector<ToolCall> loads() {
  return {
      // A work file that cannot be opened is not reported.
      loading("file_below_a_file", "-f plain/f.json", "").given("plain", "{}"),
      loading("link_without_its_target", "-f link.json", "").givenSymbolicLink("link.json", "none.json"),
      loading("unreadable_file", "-f f.json", "").given("f.json", "7", 0000).withoutPrivileges(),

      // A file that is not JSON is reported, and saved only after a change. docs/json-grammar.md lists more of them.
      loading("file", "-f f.json", cannotParse("f.json")).given("f.json", R"({"a":1,)"),
      loading("file_and_file_display", "-fd f.json", cannotParse("f.json")).given("f.json", R"({"a":1}})"),
      loading("file_and_a_failed_removal", "-f f.json -rm a", cannotParse("f.json")).given("f.json", R"({"a":1} x)"),
      loading("file_and_a_read", "-f f.json -r a -r b", cannotParse("f.json") + readError("a") + readError("b"))
          .given("f.json", R"({"a":1)"),
      ToolCall("file_and_an_edit")
          .given("f.json", R"({"a":1,"b":2,})")
          .call("-f f.json -as k v")
          .reports(cannotParse("f.json"))
          .leaves("f.json", R"({
  "k": "v"
})"),
      ToolCall("array_and_an_edit")
          .given("f.json", "[1,2")
          .call("-fd f.json -as k v")
          .prints(R"({
    "k": "v"
}
)")
          .reports(cannotParse("f.json"))
          .leaves("f.json", R"({
  "k": "v"
})"),
      ToolCall("empty_file_and_a_merge")
          .given("f.json", "")
          .call("-f f.json -af f.json")
          .reports(cannotParse("f.json") + cannotParse("f.json"))
          .leaves("f.json", "{}"),
      ToolCall("byte_order_mark_and_an_edit")
          .given("f.json", "\xef\xbb\xbf{\"a\":1}")
          .call("-f f.json -an '' 8")
          .reports(cannotParse("f.json"))
          .leaves("f.json", "8"),
      loading("failed_load_merge_removal_and_reads", "-f f.json -af none.json -rm gone -r a -r b",
              cannotParse("f.json") + cannotOpen("none.json") + readError("a") + readError("b"))
          .given("f.json", "{nothing")
          .leaves("f.json", "{}"),

      // A folder can be opened but not read.
      loading("folder", "--file d", cannotParse("d")).givenFolder("d"),

      // The path is reported as it was typed.
      loading("path_of_the_same_file", "-f .//./f.json", cannotParse(".//./f.json")).given("f.json", "{"),
      loading("path_with_spaces_percent_signs_quotes_and_a_backslash", R"(-f '100%s "a" \n.json')",
              cannotParse(R"(100%s "a" \n.json)"))
          .given(R"(100%s "a" \n.json)", "{"),
      loading("path_to_merge_in_utf_8", "-af './../no such/größe.json'", cannotOpen("./../no such/größe.json")),
  };
}

std::vector<ToolCall> merges() {
  return {
      loading("missing_files", "-af s.json -af s.json", cannotOpen("s.json") + cannotOpen("s.json")),
      loading("empty_path", "-af ''", cannotOpen("")),
      loading("link_without_its_target", "-af link.json", cannotOpen("link.json"))
          .givenSymbolicLink("link.json", "none.json"),
      loading("unreadable_file", "-af f.json", cannotOpen("f.json")).given("f.json", "{}", 0000).withoutPrivileges(),
      loading("folder", "-af d", cannotParse("d")).givenFolder("d"),
      loading("text_after_the_value", "-af s.json", cannotParse("s.json")).given("s.json", R"({"a":1} x)"),
      loading("byte_order_mark", "-af s.json", cannotParse("s.json")).given("s.json", "\xef\xbb\xbf{\"a\":1}"),
      loading("nul_after_the_value", "-af s.json", cannotParse("s.json")).given("s.json", std::string("{}\0", 3)),

      // The document changes only at the path of a merge: a value that is missing or not an object becomes an empty
      // object.
      changed("missing_file_at_each_type", R"({"a":"s","b":[1],"c":{"d":1}})",
              "-af s.json -afat a s.json -afat b s.json -afat c s.json -afat new.key s.json",
              R"({"a":{},"b":{},"c":{"d":1},"new":{"key":{}}})")
          .reports(cannotOpen("s.json") + cannotOpen("s.json") + cannotOpen("s.json") + cannotOpen("s.json") +
                   cannotOpen("s.json")),
      changed("file_that_is_not_json_at_each_type", R"({"a":"s","b":[1],"c":{"d":1}})",
              "-af s.json -afat a s.json -afat b s.json -afat c s.json -afat new.key s.json",
              R"({"a":{},"b":{},"c":{"d":1},"new":{"key":{}}})")
          .given("s.json", R"({"d":2,"e":)")
          .reports(cannotParse("s.json") + cannotParse("s.json") + cannotParse("s.json") + cannotParse("s.json") +
                   cannotParse("s.json")),
      ToolCall("missing_file_replaces_a_root_array")
          .given("f.json", "[1,2]")
          .call("--file f.json --addFile s.json")
          .reports(cannotOpen("s.json"))
          .leaves("f.json", "{}"),
      clashing("missing_file_is_reported_before_a_clash", R"({"a":"s"})", "-afat a.b s.json", "a")
          .reports(cannotOpen("s.json") + clash("a")),
  };
}

std::vector<ToolCall> saves() {
  return {
      notSaved("missing_folder", "no such/100%d.json"),
      notSaved("missing_folder_from_the_root", "/kovalt-no-such-folder/f.json"),
      notSaved("home_folder_is_not_expanded", "~/f.json"),
      notSaved("variable_is_not_expanded", "$HOME/f.json"),
      notSaved("longer_name_than_the_file_system_allows", std::string(256, 'n')),
      notSaved("file_in_place_of_a_folder", "f.json/f.json").given("f.json", "{}"),
      notSaved("path_of_a_file_with_a_slash_at_its_end", "f.json/").given("f.json", "{}"),
      notSaved("link_to_itself", "link.json").givenSymbolicLink("link.json", "link.json"),
      notSaved("folder", "d").givenFolder("d").reports(cannotParse("d") + cannotWrite("d")),
      notSaved("working_folder", ".").reports(cannotParse(".") + cannotWrite(".")),
      notSaved("new_file_in_a_read_only_folder", "d/f.json").givenFolder("d", 0555).withoutPrivileges(),
      notSaved("read_only_file", "f.json").given("f.json", "{}", 0444).withoutPrivileges(),
      notSaved("link_to_a_read_only_file", "link.json")
          .given("f.json", "{}", 0444)
          .givenSymbolicLink("link.json", "f.json")
          .withoutPrivileges(),
      notSaved("unreadable_file", "f.json").given("f.json", "{}", 0000).withoutPrivileges(),
      ToolCall("display_and_reads_are_printed")
          .given("f.json", "7", 0444)
          .withoutPrivileges()
          .call("-fd f.json -an '' 8 -r ''")
          .prints("8\n8\n")
          .reports(cannotWrite("f.json"))
          .exits(1),
      ToolCall("removal")
          .call("-f no/such/f.json -rm a.b -r k")
          .reports(cannotWrite("no/such/f.json") + readError("k"))
          .exits(1),
      ToolCall("missing_folder_without_a_change").call("-f no/such/f.json").printsLine("{}"),
      ToolCall("read_only_file_without_a_change")
          .given("f.json", "7", 0444)
          .withoutPrivileges()
          .call("-fd f.json -r ''")
          .prints("7\n7\n"),

      // A save fails only if the file cannot be opened: write errors are not noticed.
      ToolCall("unreadable_file_that_can_be_written")
          .given("f.json", "7", 0222)
          .withoutPrivileges()
          .call("-f f.json -as k v -r ''")
          .printsLine(R"({"k":"v"})")
          .leaves("f.json", R"({
  "k": "v"
})"),
      ToolCall("null_device").withoutPrivileges().call("-f /dev/null -as k v").reports(cannotParse("/dev/null")),
      ToolCall("full_device").withoutPrivileges().call("-f /dev/full -as k v").reports(cannotParse("/dev/full")),
  };
}

const Table kFailingLoads("FailingLoads", loads);
const Table kFailingMerges("FailingMerges", merges);
const Table kFailingSaves("FailingSaves", saves);

}  // namespace
}  // namespace kovalt::test
