// Files that may not be read or written, and the modes that saved files keep.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr const char* kBefore = R"({"a":1})";

constexpr const char* kAfter = R"({
  "a": 1,
  "k": "v"
})";

constexpr const char* kCreated = R"({
  "k": "v"
})";

constexpr const char* kShown = R"({
    "a": 1
}
)";

std::vector<ToolCall> modes() {
  return {
      ToolCall("mode_of_a_private_file_is_kept")
          .given("conf.json", kBefore, 0600)
          .call("-f conf.json -as k v")
          .leaves("conf.json", kAfter),
      ToolCall("mode_of_an_executable_file_is_kept")
          .given("conf.json", kBefore, 0755)
          .call("-f conf.json -as k v")
          .leaves("conf.json", kAfter),
      ToolCall("read_only_file_is_read")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0444)
          .call("-f conf.json -r a")
          .prints("1\n"),
      ToolCall("read_only_file_is_not_saved")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0444)
          .call("-f conf.json -as k v")
          .reports("Could not write document: conf.json\n")
          .exits(1),
      ToolCall("read_only_file_is_displayed_before_the_save_fails")
          .withoutPrivileges()
          .withMergedStreams()
          .given("conf.json", kBefore, 0444)
          .call("--fileDisplay conf.json -as k v")
          .prints("{\n    \"a\": 1,\n    \"k\": \"v\"\n}\nCould not write document: conf.json\n")
          .exits(1),
      ToolCall("read_only_file_without_a_change_is_a_success")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0444)
          .call("-fd conf.json -rm missing")
          .prints(kShown),
      ToolCall("reads_follow_the_save_of_a_read_only_file")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0444)
          .call("-f conf.json -as k v -r k")
          .prints("v\n")
          .reports("Could not write document: conf.json\n")
          .exits(1),
      ToolCall("unreadable_file_is_passed_over")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0000)
          .call("-f conf.json")
          .prints("{}\n"),
      ToolCall("unreadable_file_is_not_saved")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0000)
          .call("-f conf.json -as k v")
          .reports("Could not write document: conf.json\n")
          .exits(1),
      ToolCall("unreadable_file_that_can_be_written_is_overwritten")
          .withoutPrivileges()
          .given("conf.json", kBefore, 0222)
          .call("-f conf.json -as k v")
          .leaves("conf.json", kCreated),
      ToolCall("unreadable_file_to_merge")
          .withoutPrivileges()
          .given("more.json", kBefore, 0000)
          .call("-af more.json")
          .prints("{}\n")
          .reports("Could not open document: more.json\n"),
      ToolCall("file_in_a_read_only_folder_is_saved_in_place")
          .withoutPrivileges()
          .givenDirectory("sub", 0555)
          .given("sub/conf.json", kBefore, 0666)
          .call("-f sub/conf.json -as k v")
          .leaves("sub/conf.json", kAfter),
      ToolCall("new_file_in_a_read_only_folder")
          .withoutPrivileges()
          .givenDirectory("sub", 0555)
          .call("-f sub/conf.json -as k v")
          .reports("Could not write document: sub/conf.json\n")
          .exits(1),
      ToolCall("link_to_a_read_only_file")
          .withoutPrivileges()
          .given("real.json", kBefore, 0444)
          .givenSymbolicLink("link.json", "real.json")
          .call("-f link.json -as k v")
          .reports("Could not write document: link.json\n")
          .exits(1),
  };
}

const Table kEverydayModes("EverydayModes", modes);

}  // namespace
}  // namespace kovalt::test
