#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call that the parser refuses, with all that it prints.
ToolCall refused(const std::string& name, const std::string& message) {
  return ToolCall(name).prints(message).exits(1);
}

std::vector<ToolCall> rows() {
  return {
      // One file at most.
      refused("file_twice", "Error: --file already specified\n").call("--file a.json --file b.json"),
      refused("file_then_file_display", "Error: --file already specified\n").call("--file a --fileDisplay b"),
      refused("file_display_then_file", "Error: --file already specified\n").call("--fileDisplay a --file b"),
      refused("file_display_twice", "Error: --file already specified\n").call("--fileDisplay a --fileDisplay b"),
      refused("short_file_twice", "Error: --file already specified\n").call("-f a.json -f b.json"),
      refused("short_file_display_second", "Error: --file already specified\n").call("--file a -fd b"),
      refused("short_file_display_first", "Error: --file already specified\n").call("-fd a -f b"),
      refused("same_file_twice", "Error: --file already specified\n").call("-f a.json -f a.json"),
      refused("second_file_without_path", "Error: --file already specified\n").call("--file a --file"),
      refused("second_file_display_without_path", "Error: --file already specified\n").call("-f a -fd"),
      refused("second_file_with_an_empty_path", "Error: --file already specified\n").call({"-f", "a", "-f", ""}),
      refused("second_file_after_edits", "Error: --file already specified\n").call("-f a -as k v -fd b"),
      refused("files_are_left_alone", "Error: --file already specified\n")
          .call("-f a.json -fd b.json -as k v")
          .given("a.json", "{}")
          .given("b.json", "{}"),

      // An empty path is no file at all.
      ToolCall("empty_path_is_no_file").call({"--file", "", "-as", "k", "v"}).prints("{\n    \"k\": \"v\"\n}\n"),
      ToolCall("file_after_an_empty_path")
          .call({"--file", "", "--file", "conf.json", "-as", "k", "v"})
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("two_empty_paths").call({"-f", "", "-f", ""}).prints("{}\n"),
      ToolCall("empty_path_for_display_still_displays").call({"-fd", "", "-as", "k", "v", "-r", "k"}).prints(R"({
    "k": "v"
}
v
)"),
      ToolCall("empty_path_for_display_then_file")
          .call({"-fd", "", "-f", "conf.json", "-as", "k", "v"})
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("empty_path_then_file_display")
          .call({"-f", "", "-fd", "conf.json", "-as", "k", "v"})
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      refused("file_without_path_after_an_empty_one", "Error: Error: missing argument(s) after --file\n")
          .call({"-f", "", "--file"}),
  };
}

const Table kFileOption("FileOption", rows);

}  // namespace
}  // namespace kovalt::test
