// Names and paths of files as they occur in everyday use.

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

/// An edit of the file `path`, which is there already.
ToolCall edited(const std::string& name, const std::string& path) {
  return ToolCall(name).given(path, kBefore).call({"--file", path, "-as", "k", "v"}).leaves(path, kAfter);
}

/// An edit of the file `path`, which can be neither read nor written.
ToolCall unwritable(const std::string& name, const std::string& path) {
  return ToolCall(name)
      .call({"--file", path, "-as", "k", "v"})
      .reports("Could not write document: " + path + "\n")
      .exits(1);
}

std::vector<ToolCall> names() {
  return {
      edited("name_with_a_blank", "my file.json"),
      edited("name_of_one_blank", " "),
      edited("name_with_a_trailing_blank", "conf.json "),
      edited("name_with_a_double_quote", "a\"b\".json"),
      edited("name_with_a_single_quote", "it's.json"),
      edited("name_with_percents", "100%s%n.json"),
      edited("name_with_a_backslash", "a\\b.json"),
      edited("name_with_a_line_end", "a\nb.json"),
      edited("name_with_an_equals_sign", "a=b.json"),
      edited("name_with_a_comma", "a,b.json"),
      edited("name_with_a_colon", "c:conf.json"),
      edited("name_with_a_dash_in_front", "-conf.json"),
      edited("name_of_one_dash", "-"),
      edited("name_with_a_star", "*.json"),
      edited("name_with_a_dollar", "$HOME"),
      edited("name_with_dots", "..conf..json"),
      edited("name_without_an_extension", "conf"),
      edited("name_beyond_ascii", "größe.json"),
      edited("name_in_japanese", "設定.json"),
      edited("name_that_is_no_utf_8", "\xff.json"),
      edited("name_of_the_longest_length", std::string(255, 'n')),

      // Messages show the name as it was typed.
      ToolCall("broken_file_with_blanks_and_percents")
          .given("my 100%s file.json", "{")
          .call({"-f", "my 100%s file.json"})
          .prints("{}\n")
          .reports("Could not parse json file my 100%s file.json\n"),
      ToolCall("broken_file_with_a_quote_and_a_backslash")
          .given("a\"b\\c.json", "{")
          .call("-f a\"b\\c.json")
          .prints("{}\n")
          .reports("Could not parse json file a\"b\\c.json\n"),
      ToolCall("missing_file_to_merge_beyond_ascii")
          .call("-af größe.json")
          .prints("{}\n")
          .reports("Could not open document: größe.json\n"),
      ToolCall("missing_file_to_merge_with_dots_in_its_path")
          .call({"-af", "./../no such/conf.json"})
          .prints("{}\n")
          .reports("Could not open document: ./../no such/conf.json\n"),
      unwritable("unwritable_path_with_blanks_and_percents", "no such/100%d.json"),
      unwritable("name_beyond_the_longest_length", std::string(256, 'n')),
      unwritable("home_is_not_looked_up", "~/conf.json"),
      unwritable("variable_is_not_looked_up", "$HOME/conf.json"),
  };
}

std::vector<ToolCall> paths() {
  return {
      ToolCall("relative_path").given("conf.json", kBefore).call("-f ./conf.json -as k v").leaves("conf.json", kAfter),
      ToolCall("path_with_a_sub_folder")
          .givenDirectory("sub")
          .given("sub/conf.json", kBefore)
          .call("-f sub/conf.json -as k v")
          .leaves("sub/conf.json", kAfter),
      ToolCall("path_with_two_sub_folders")
          .givenDirectory("sub")
          .givenDirectory("sub/deeper one")
          .given("sub/deeper one/conf.json", kBefore)
          .call({"-f", "sub/deeper one/conf.json", "-as", "k", "v"})
          .leaves("sub/deeper one/conf.json", kAfter),
      ToolCall("path_up_and_down")
          .givenDirectory("sub")
          .given("conf.json", kBefore)
          .call("-f sub/../conf.json -as k v")
          .leaves("conf.json", kAfter),
      ToolCall("path_with_two_slashes")
          .givenDirectory("sub")
          .given("sub/conf.json", kBefore)
          .call("-f sub//conf.json -as k v")
          .leaves("sub/conf.json", kAfter),
      ToolCall("new_file_in_a_sub_folder")
          .givenDirectory("sub")
          .call("-f sub/conf.json -as k v")
          .leaves("sub/conf.json", kCreated),
      ToolCall("file_to_merge_in_a_sub_folder")
          .givenDirectory("sub")
          .given("sub/more.json", kBefore)
          .call("-af sub/more.json")
          .prints(kShown),
      unwritable("missing_folder", "no/such/conf.json"),
      unwritable("missing_folder_from_the_root", "/kovalt-no-such-folder/conf.json"),
      ToolCall("missing_folder_is_shown_as_empty").call("-f /kovalt-no-such-folder/conf.json").prints("{}\n"),
      ToolCall("file_in_place_of_a_folder")
          .given("conf.json", kBefore)
          .call("-f conf.json/conf.json -as k v")
          .reports("Could not write document: conf.json/conf.json\n")
          .exits(1),
      ToolCall("file_with_a_trailing_slash")
          .given("conf.json", kBefore)
          .call("-f conf.json/ -as k v")
          .reports("Could not write document: conf.json/\n")
          .exits(1),

      // A folder can be opened and not read, and so does not parse.
      ToolCall("folder_as_the_file")
          .givenDirectory("sub")
          .call("--file sub")
          .prints("{}\n")
          .reports("Could not parse json file sub\n"),
      ToolCall("folder_as_the_file_to_save")
          .givenDirectory("sub")
          .call("--file sub -as k v")
          .reports("Could not parse json file sub\nCould not write document: sub\n")
          .exits(1),
      ToolCall("folder_as_the_file_to_display_and_save")
          .givenDirectory("sub")
          .call("--fileDisplay sub -as k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .reports("Could not parse json file sub\nCould not write document: sub\n")
          .exits(1),
      ToolCall("folder_of_the_call_as_the_file")
          .call("-f . -as k v")
          .reports("Could not parse json file .\nCould not write document: .\n")
          .exits(1),
      ToolCall("folder_as_the_file_to_merge")
          .givenDirectory("sub")
          .call("--addFile sub")
          .prints("{}\n")
          .reports("Could not parse json file sub\n"),
      ToolCall("folder_as_the_file_to_merge_at_a_key")
          .givenDirectory("sub")
          .call("--addFileAt k sub")
          .prints("{\n    \"k\": {}\n}\n")
          .reports("Could not parse json file sub\n"),
      ToolCall("empty_path_as_the_file_to_merge")
          .call({"--addFile", ""})
          .prints("{}\n")
          .reports("Could not open document: \n"),

      // A symbolic link stays one; its target is rewritten.
      ToolCall("link_to_a_file")
          .given("real.json", kBefore)
          .givenSymbolicLink("link.json", "real.json")
          .call("-f link.json -as k v")
          .leaves("real.json", kAfter),
      ToolCall("link_to_a_file_in_a_folder")
          .givenDirectory("sub")
          .given("sub/real.json", kBefore)
          .givenSymbolicLink("link.json", "sub/real.json")
          .call("-fd link.json")
          .prints(kShown),
      ToolCall("link_to_a_link")
          .given("real.json", kBefore)
          .givenSymbolicLink("second.json", "real.json")
          .givenSymbolicLink("first.json", "second.json")
          .call("-f first.json -as k v")
          .leaves("real.json", kAfter),
      ToolCall("link_to_a_folder")
          .givenDirectory("sub")
          .given("sub/conf.json", kBefore)
          .givenSymbolicLink("link", "sub")
          .call("-f link/conf.json -as k v")
          .leaves("sub/conf.json", kAfter),
      ToolCall("link_to_a_missing_file_makes_its_target")
          .givenSymbolicLink("link.json", "real.json")
          .call("-f link.json -as k v")
          .leaves("real.json", kCreated),
      ToolCall("link_to_itself")
          .givenSymbolicLink("link.json", "link.json")
          .call("-f link.json -as k v")
          .reports("Could not write document: link.json\n")
          .exits(1),
      ToolCall("link_as_the_file_to_merge")
          .given("real.json", kBefore)
          .givenSymbolicLink("link.json", "real.json")
          .call("-af link.json")
          .prints(kShown),
      ToolCall("broken_link_as_the_file_to_merge")
          .givenSymbolicLink("link.json", "real.json")
          .call("-af link.json")
          .prints("{}\n")
          .reports("Could not open document: link.json\n"),

      // One file in two parts.
      ToolCall("file_merged_into_itself")
          .given("conf.json", R"({"a":1,"l":[1]})")
          .call("-f conf.json -af conf.json")
          .leaves("conf.json", R"({
  "a": 1,
  "l": [
    1,
    1
  ]
})"),
      ToolCall("file_merged_into_itself_at_a_key")
          .given("conf.json", kBefore)
          .call("-f conf.json -afat copy conf.json")
          .leaves("conf.json", R"({
  "a": 1,
  "copy": {
    "a": 1
  }
})"),
      ToolCall("same_file_merged_twice")
          .given("more.json", R"({"a":1,"l":[1]})")
          .call("-af more.json -af ./more.json")
          .prints(R"({
    "a": 1,
    "l": [
        1,
        1
    ]
}
)"),

      // Devices.
      ToolCall("null_device_as_the_file")
          .withoutPrivileges()
          .call("-f /dev/null -as k v")
          .reports("Could not parse json file /dev/null\n"),
      ToolCall("full_device_as_the_file_counts_as_saved")
          .withoutPrivileges()
          .call("-f /dev/full -as k v")
          .reports("Could not parse json file /dev/full\n"),
  };
}

const Table kEverydayNames("EverydayNames", names);
const Table kEverydayPaths("EverydayPaths", paths);

}  // namespace
}  // namespace kovalt::test
