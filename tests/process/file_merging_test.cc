// Merges of files at the root and at a key path. FailingMerges shows files that cannot be merged.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> atTheRoot() {
  return {
      ToolCall("file_is_merged_and_saved")
          .given("f.json", R"({"a":1})")
          .given("s.json", R"({"b":2})")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", R"({
  "a": 1,
  "b": 2
})"),
      ToolCall("merge_of_an_empty_object_saves_the_file")
          .given("f.json", R"({"a":1})")
          .given("s.json", "{}")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", R"({
  "a": 1
})"),
      ToolCall("file_is_merged_into_itself")
          .given("f.json", R"({"a":1,"l":[1]})")
          .call("--file f.json --addFile f.json --read ''")
          .printsLine(R"({"a":1,"l":[1,1]})")
          .leaves("f.json", R"({
  "a": 1,
  "l": [
    1,
    1
  ]
})"),
      changed("file_is_merged_twice", R"({"l":[1,2]})", "-af f.json", R"({"l":[1,2,1,2]})"),
      changed("file_replaces_the_value_of_an_earlier_addition", R"({"a":"file"})", "-as b x -as a y -af f.json",
              R"({"a":"file","b":"x"})"),
      changed("later_addition_replaces_the_value_of_a_file", R"({"a":"file","b":1,"c":["x"]})",
              "-as a option -as b option -aa c y", R"({"a":"option","b":"option","c":["y"]})"),
      changed("file_after_an_array_addition_is_appended", R"({"a":["x"]})", "-aa a y -af f.json", R"({"a":["y","x"]})"),
      clashing("file_after_an_addition_of_another_type", R"({"a":1})", "-as a option -af f.json", "a"),
      changed("file_replaces_a_string_root", R"({"a":1})", "-as '' x -af f.json", R"({"a":1})"),
      ToolCall("file_replaces_a_root_array")
          .given("f.json", "[1,2]")
          .given("s.json", R"({"a":1})")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", R"({
  "a": 1
})"),

      // The root of a merged file must be an object.
      ToolCall("root_array_of_a_merged_file_aborts")
          .given("f.json", R"({"a":1})")
          .given("s.json", R"([{"b":2}])")
          .call("--fileDisplay f.json --addString k v --addFile s.json --read a")
          .aborts("IsObject()"),
      ToolCall("root_string_of_a_merged_file_aborts").given("s.json", R"("x")").call("-af s.json").aborts("IsObject()"),
      ToolCall("root_null_of_a_merged_file_aborts").given("s.json", "null").call("-af s.json").aborts("IsObject()"),
  };
}

std::vector<ToolCall> atAKeyPath() {
  return {
      changed("file_below_missing_objects", R"({"x":1})", "-afat a.b.c f.json", R"({"x":1,"a":{"b":{"c":{"x":1}}}})"),
      ToolCall("file_at_an_object_is_merged")
          .given("f.json", R"({"k":{"a":1,"l":[1]},"z":0})")
          .given("s.json", R"({"l":[2],"a":3})")
          .call("--addFile f.json --addFileAt k s.json --read ''")
          .printsLine(R"({"k":{"a":3,"l":[1,2]},"z":0})"),
      ToolCall("file_at_a_value_that_is_not_an_object_replaces_it")
          .given("f.json", R"({"a":"x","b":[1],"c":null,"d":1})")
          .given("s.json", R"({"y":1})")
          .call("-af f.json -afat a s.json -afat b s.json -afat c s.json -r ''")
          .printsLine(R"({"a":{"y":1},"b":{"y":1},"c":{"y":1},"d":1})"),
      ToolCall("files_at_one_path_keep_their_order")
          .given("one.json", R"({"l":[1]})")
          .given("two.json", R"({"l":[2]})")
          .call("-afat o two.json -afat o one.json -r ''")
          .printsLine(R"({"o":{"l":[2,1]}})"),
      changed("file_at_an_object_that_is_emptied_later", R"({"a":1})", "-afat k f.json -ao k", R"({"a":1,"k":{}})"),
      changed("file_at_the_empty_path_is_merged_at_the_root", R"({"l":[1]})", "-afat '' f.json", R"({"l":[1,1]})"),
      changed("file_in_a_selected_object", R"({"l":[{"id":1},{"id":2}]})", "-afat l.id=2 f.json",
              R"({"l":[{"id":1},{"id":2,"l":[{"id":1},{"id":2}]}]})"),
      changed("file_after_a_failed_selection", R"({"n":"x"})", "-afat id=2 f.json", R"({"n":"x","id=2":{"n":"x"}})")
          .reports(notFound("id=2")),
      clashing("file_below_a_string", R"({"a":"s"})", "-afat a.b f.json", "a"),
      clashing("clash_inside_the_object_at_the_path", R"({"k":{"a":1},"a":"x"})", "-afat k f.json", "a"),
      ToolCall("root_array_of_a_file_at_a_new_key_aborts")
          .given("f.json", R"({"a":1})")
          .given("s.json", "[1]")
          .call("--file f.json --addFileAt k s.json")
          .aborts("IsObject()"),
      ToolCall("root_array_of_a_file_at_an_array_aborts")
          .given("f.json", R"({"k":[1]})")
          .given("s.json", "[2]")
          .call("--file f.json --addFileAt k s.json")
          .aborts("IsObject()"),
      ToolCall("key_path_below_a_root_array_aborts")
          .given("f.json", "[1]")
          .call("--file f.json --addFileAt k s.json")
          .reports(cannotOpen("s.json"))
          .aborts("IsObject()"),
  };
}

const Table kFileMerging("FileMerging", atTheRoot);
const Table kFileMergingAtAKeyPath("FileMergingAtAKeyPath", atAKeyPath);

}  // namespace
}  // namespace kovalt::test
