// Walks of a key path: what a read and an addition find, and what an addition builds where nothing was found.

#include "tool_call.h"

namespace kovalt::test {
namespace {

std::string notFound(const std::string& step) {
  return "Kovalt path not found with refKey=refValue \"" + step + "\"\n";
}

std::string badArgument() {
  return "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
         "refKey must be a bool/number/string/array of numbers/strings.\n";
}

std::string readError(const std::string& path) { return "--read error : Path \"" + path + "\" does not exist\n"; }

std::vector<ToolCall> readRows() {
  return {
      ToolCall("missing_member").call("--read a").reports(readError("a")),
      ToolCall("missing_member_shows_the_whole_path")
          .given("f.json", R"({"a":{"b":{}}})")
          .call("--file f.json --read a.b.c.d")
          .reports(readError("a.b.c.d")),
      ToolCall("member_of_a_string")
          .given("f.json", R"({"a":"b"})")
          .call("--file f.json --read a.b")
          .reports(readError("a.b")),
      ToolCall("member_of_null")
          .given("f.json", R"({"a":null})")
          .call("--file f.json --read a.b")
          .reports(readError("a.b")),
      ToolCall("member_of_an_array")
          .given("f.json", R"({"a":[{"b":1}]})")
          .call("--file f.json --read a.b")
          .reports(readError("a.b")),
      ToolCall("member_of_a_root_array")
          .given("f.json", R"([{"a":1}])")
          .call("--file f.json --read a")
          .reports(readError("a")),
      ToolCall("member_missing_in_a_selected_object")
          .given("f.json", R"({"list":[{"id":1}]})")
          .call("--file f.json --read list.id=1.name")
          .reports(readError("list.id=1.name")),
      ToolCall("member_missing_before_a_selection").call("--read list.id=1.name").reports(readError("list.id=1.name")),
      ToolCall("first_of_two_equal_members_is_read")
          .given("f.json", R"({"a":{"b":1},"a":{"b":2}})")
          .call("--file f.json --read a.b")
          .prints("1\n"),
      ToolCall("second_of_two_equal_members_is_not_tried")
          .given("f.json", R"({"a":1,"a":{"b":2}})")
          .call("--file f.json --read a.b")
          .reports(readError("a.b")),
      ToolCall("null_member_is_found").given("f.json", R"({"a":null})").call("--file f.json --read a").prints("null\n"),
      ToolCall("every_read_reports_its_own_failure")
          .given("f.json", R"({"list":[3]})")
          .call("--file f.json --read a.b --readArray list.id=1 --read c")
          .prints("{}\n")
          .reports(readError("a.b") + notFound("id=1") + badArgument() + readError("c")),
  };
}

std::vector<ToolCall> chainRows() {
  return {
      ToolCall("missing_nestings_are_built").call("--addString object1.object2.stringKey stringValue").prints(R"({
    "object1": {
        "object2": {
            "stringKey": "stringValue"
        }
    }
}
)"),
      ToolCall("existing_objects_are_descended_into")
          .given("f.json", R"({"a":{"x":1},"z":2})")
          .call("--file f.json --addString a.b.c v")
          .leaves("f.json", R"({
  "a": {
    "x": 1,
    "b": {
      "c": "v"
    }
  },
  "z": 2
})"),
      ToolCall("new_member_goes_to_the_end")
          .given("f.json", R"({"z":1,"y":2})")
          .call("--file f.json --addString a v")
          .leaves("f.json", "{\n  \"z\": 1,\n  \"y\": 2,\n  \"a\": \"v\"\n}"),
      ToolCall("replaced_member_keeps_its_place")
          .given("f.json", R"({"z":1,"y":2})")
          .call("--file f.json --addString z v")
          .leaves("f.json", "{\n  \"z\": \"v\",\n  \"y\": 2\n}"),
      ToolCall("additions_see_what_earlier_ones_built")
          .call({"--addString", "a.b", "1", "--addString", "a.c", "2", "--addString", "a.b", "3", "--read", ""})
          .prints("{\"a\":{\"b\":\"3\",\"c\":\"2\"}}\n"),
      ToolCall("first_of_two_equal_members_is_changed")
          .given("f.json", R"({"a":1,"a":2})")
          .call("--file f.json --addString a v")
          .leaves("f.json", "{\n  \"a\": \"v\",\n  \"a\": 2\n}"),
      ToolCall("missing_member_joins_the_first_of_two_equal_members")
          .given("f.json", R"({"a":{},"a":{"b":1}})")
          .call("--file f.json --addString a.b v")
          .leaves("f.json", "{\n  \"a\": {\n    \"b\": \"v\"\n  },\n  \"a\": {\n    \"b\": 1\n  }\n}"),
      ToolCall("missing_member_is_no_error_for_an_addition")
          .call({"--addNumber", "a.b", "1", "--read", ""})
          .prints("{\"a\":{\"b\":1}}\n"),

      // Selections during an addition.
      ToolCall("selected_member_is_changed")
          .given("f.json", R"({"list":[{"id":1,"n":0},{"id":2,"n":0}]})")
          .call("--file f.json --addString list.id=2.n v --read list")
          .prints("[{\"id\":1,\"n\":0},{\"id\":2,\"n\":\"v\"}]\n")
          .leaves("f.json", R"({
  "list": [
    {
      "id": 1,
      "n": 0
    },
    {
      "id": 2,
      "n": "v"
    }
  ]
})"),
      ToolCall("selected_object_itself_is_replaced")
          .given("f.json", R"([{"id":1},{"id":2}])")
          .call("--file f.json --addString id=1 v")
          .leaves("f.json", "[\n  \"v\",\n  {\n    \"id\": 2\n  }\n]"),
      ToolCall("member_missing_in_a_selected_object_meets_the_array")
          .given("f.json", R"({"list":[{"id":1}]})")
          .call("--file f.json --addString list.id=1.new v")
          .reports("Incompatible types for key list\n")
          .exits(1),
      ToolCall("failed_selection_meets_the_array")
          .given("f.json", R"({"list":[{"id":1}]})")
          .call("--file f.json --addString list.id=2.n v")
          .reports(notFound("id=2") + "Incompatible types for key list\n")
          .exits(1),
      ToolCall("failed_selection_with_both_messages_meets_the_array")
          .given("f.json", R"({"list":[3]})")
          .call("--file f.json --addString list.id=2 v")
          .reports(notFound("id=2") + badArgument() + "Incompatible types for key list\n")
          .exits(1),
      ToolCall("failed_selection_in_an_empty_array_meets_the_array")
          .given("f.json", R"({"list":[]})")
          .call("--file f.json --addString list.id=2 v")
          .reports(notFound("id=2") + "Incompatible types for key list\n")
          .exits(1),
      ToolCall("failed_selection_is_added_as_a_literal_member")
          .call("--addString id=1.n v")
          .prints("{\n    \"id=1\": {\n        \"n\": \"v\"\n    }\n}\n")
          .reports(notFound("id=1")),
      ToolCall("failed_selection_in_an_object_is_added_there")
          .given("f.json", R"({"list":{"x":1}})")
          .call("--file f.json --addString list.id=1 v")
          .reports(notFound("id=1"))
          .leaves("f.json", "{\n  \"list\": {\n    \"x\": 1,\n    \"id=1\": \"v\"\n  }\n}"),
      ToolCall("selection_behind_a_missing_member_is_added_silently")
          .call({"--addString", "list.id=1.n", "v", "--read", ""})
          .prints("{\"list\":{\"id=1\":{\"n\":\"v\"}}}\n"),
      ToolCall("only_the_first_failed_selection_reports")
          .call({"--addString", "a=1.b=2", "v", "--read", ""})
          .prints("{\"a=1\":{\"b=2\":\"v\"}}\n")
          .reports(notFound("a=1")),
      ToolCall("literal_member_is_not_found_again_but_merged_into")
          .call({"--addString", "id=1", "v", "--addString", "id=1", "w", "--read", ""})
          .prints("{\"id=1\":\"w\"}\n")
          .reports(notFound("id=1") + notFound("id=1")),
      ToolCall("literal_member_of_another_type_clashes")
          .call({"--addString", "id=1", "v", "--addNumber", "id=1", "5", "--read", ""})
          .reports(notFound("id=1") + notFound("id=1") + "Incompatible types for key id=1\n")
          .exits(1),

      // A root that is no object.
      ToolCall("chain_into_a_string_root").call({"--addString", "", "x", "--addString", "a", "b"}).aborts("IsObject()"),
      ToolCall("chain_into_a_root_array")
          .given("f.json", "[1]")
          .call("--file f.json --addString a b")
          .aborts("IsObject()"),
      ToolCall("failed_selection_chain_into_a_root_array")
          .given("f.json", R"([{"id":1}])")
          .call("--file f.json --addString id=2 b")
          .reports(notFound("id=2"))
          .aborts("IsObject()"),
  };
}

const Table kResolutionForReads("ResolutionForReads", readRows);
const Table kResolutionForAdditions("ResolutionForAdditions", chainRows);

}  // namespace
}  // namespace kovalt::test
