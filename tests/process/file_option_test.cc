#include "tool_case.h"

namespace kovalt::test {
namespace {

/// A call that the parser refuses, with all that it prints.
Case refused(const std::string& name, std::vector<std::string> arguments, const std::string& message) {
  return Case(name).call(std::move(arguments)).prints(message).exits(1);
}

std::vector<Case> rows() {
  return {
      // One file at most.
      refused("file_twice", {"--file", "a.json", "--file", "b.json"}, "Error: --file already specified\n"),
      refused("file_then_file_display", {"--file", "a", "--fileDisplay", "b"}, "Error: --file already specified\n"),
      refused("file_display_then_file", {"--fileDisplay", "a", "--file", "b"}, "Error: --file already specified\n"),
      refused("file_display_twice", {"--fileDisplay", "a", "--fileDisplay", "b"}, "Error: --file already specified\n"),
      refused("short_file_twice", {"-f", "a.json", "-f", "b.json"}, "Error: --file already specified\n"),
      refused("short_file_display_second", {"--file", "a", "-fd", "b"}, "Error: --file already specified\n"),
      refused("short_file_display_first", {"-fd", "a", "-f", "b"}, "Error: --file already specified\n"),
      refused("same_file_twice", {"-f", "a.json", "-f", "a.json"}, "Error: --file already specified\n"),
      refused("second_file_without_path", {"--file", "a", "--file"}, "Error: --file already specified\n"),
      refused("second_file_display_without_path", {"-f", "a", "-fd"}, "Error: --file already specified\n"),
      refused("second_file_with_an_empty_path", {"-f", "a", "-f", ""}, "Error: --file already specified\n"),
      refused("second_file_after_edits", {"-f", "a", "-as", "k", "v", "-fd", "b"}, "Error: --file already specified\n"),
      refused("files_are_left_alone", {"-f", "a.json", "-fd", "b.json", "-as", "k", "v"},
              "Error: --file already specified\n")
          .given("a.json", "{}")
          .given("b.json", "{}"),

      // An empty path is no file at all.
      Case("empty_path_is_no_file").call({"--file", "", "-as", "k", "v"}).prints("{\n    \"k\": \"v\"\n}\n"),
      Case("file_after_an_empty_path")
          .call({"--file", "", "--file", "conf.json", "-as", "k", "v"})
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      Case("two_empty_paths").call({"-f", "", "-f", ""}).prints("{}\n"),
      Case("empty_path_for_display_still_displays").call({"-fd", "", "-as", "k", "v", "-r", "k"}).prints(R"({
    "k": "v"
}
v
)"),
      Case("empty_path_for_display_then_file")
          .call({"-fd", "", "-f", "conf.json", "-as", "k", "v"})
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      Case("empty_path_then_file_display")
          .call({"-f", "", "-fd", "conf.json", "-as", "k", "v"})
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      refused("file_without_path_after_an_empty_one", {"-f", "", "--file"},
              "Error: Error: missing argument(s) after --file\n"),
  };
}

INSTANTIATE_TEST_SUITE_P(FileOption, ToolCall, testing::ValuesIn(rows()), rowName);

}  // namespace
}  // namespace kovalt::test
