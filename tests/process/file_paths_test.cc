// Names and paths of files, symbolic links and file modes. FailingSaves has those that cannot be saved.

#include "tool_call.h"

namespace kovalt::test {
namespace {

/// An edit of the file `target` through `path`.
ToolCall edited(const std::string& name, const std::string& path, const std::string& target) {
  return ToolCall(name).call({"-f", path, "-an", "", "8"}).leaves(target, "8");
}

/// An edit of the existing file `path`.
ToolCall named(const std::string& name, const std::string& path) { return edited(name, path, path).given(path, "7"); }

std::vector<ToolCall> names() {
  return {
      named("spaces", " my file.json "),
      named("one_space", " "),
      named("quotes_and_a_backslash", R"(it's "a\b".json)"),
      named("percent_signs", "100%s%n.json"),
      named("end_of_line", "a\nb.json"),
      named("dash_in_front", "-f.json"),
      named("lone_dash", "-"),
      named("characters_of_the_shell", "*,=:$HOME.json"),
      named("dots_and_no_extension", "..f"),
      named("utf_8", "größe 設定.json"),
      named("bytes_that_are_not_utf_8", "\xff.json"),
      named("longest_name", std::string(255, 'n')),
  };
}

std::vector<ToolCall> paths() {
  return {
      edited("current_folder", "./f.json", "f.json").given("f.json", "7"),
      edited("folders", "sub/deeper one/f.json", "sub/deeper one/f.json").given("sub/deeper one/f.json", "7"),
      edited("parent_folder", "sub/../f.json", "f.json").given("f.json", "7").givenFolder("sub"),
      edited("two_slashes", "sub//f.json", "sub/f.json").given("sub/f.json", "7"),
      edited("new_file_in_a_folder", "sub/f.json", "sub/f.json").givenFolder("sub"),
      edited("link", "link.json", "f.json").given("f.json", "7").givenSymbolicLink("link.json", "f.json"),
      edited("link_to_a_link", "first", "f.json")
          .given("f.json", "7")
          .givenSymbolicLink("second", "f.json")
          .givenSymbolicLink("first", "second"),
      edited("link_to_a_folder", "link/f.json", "sub/f.json").given("sub/f.json", "7").givenSymbolicLink("link", "sub"),
      edited("link_to_a_missing_file_creates_it", "link.json", "f.json").givenSymbolicLink("link.json", "f.json"),
      ToolCall("link_to_a_displayed_file")
          .given("sub/f.json", "7")
          .givenSymbolicLink("link.json", "sub/f.json")
          .call("-fd link.json")
          .printsLine("7"),
      ToolCall("link_to_a_merged_file")
          .given("sub/f.json", R"({"a":1})")
          .givenSymbolicLink("link.json", "sub/f.json")
          .call("-af link.json -afat k sub/f.json -r ''")
          .printsLine(R"({"a":1,"k":{"a":1}})"),
      ToolCall("one_file_is_loaded_and_merged")
          .given("f.json", R"({"l":[1]})")
          .call("-f f.json -af ./f.json -afat copy f.json")
          .leaves("f.json", R"({
  "l": [
    1,
    1
  ],
  "copy": {
    "l": [
      1
    ]
  }
})"),
  };
}

/// A saved file keeps its mode.
std::vector<ToolCall> modes() {
  return {
      edited("private_file", "f.json", "f.json").given("f.json", "7", 0600),
      edited("executable_file", "f.json", "f.json").given("f.json", "7", 0755),
      edited("file_in_a_read_only_folder", "d/f.json", "d/f.json")
          .given("d/f.json", "7", 0666)
          .givenFolder("d", 0555)
          .withoutPrivileges(),
      ToolCall("read_only_file").given("f.json", "7", 0444).withoutPrivileges().call("-f f.json").printsLine("7"),
  };
}

const Table kFileNames("FileNames", names);
const Table kFilePaths("FilePaths", paths);
const Table kFileModes("FileModes", modes);

}  // namespace
}  // namespace kovalt::test
