// What a merge of one content into another gives: objects, arrays, scalars and clashing types.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

/// A merge of one content into another, and the compact text of what it gives.
ToolCall merging(const std::string& name, const std::string& target, const std::string& source,
                 const std::string& merged) {
  return ToolCall(name)
      .given("t.json", target)
      .given("s.json", source)
      .call({"--addFile", "t.json", "--addFile", "s.json", "--read", ""})
      .prints(merged + "\n");
}

/// A merge that ends the call because `key` has two types.
ToolCall clashing(const std::string& name, const std::string& target, const std::string& source,
                  const std::string& key) {
  return ToolCall(name)
      .given("f.json", target)
      .given("s.json", source)
      .call("--file f.json --addFile s.json")
      .reports("Incompatible types for key " + key + "\n")
      .exits(1);
}

std::vector<ToolCall> mergeRows() {
  return {
      merging("objects_are_merged_and_arrays_joined", R"({"a":{"c":2},"l":[0]})", R"({"a":{"b":1},"l":[1]})",
              R"({"a":{"c":2,"b":1},"l":[0,1]})"),
      merging("new_members_follow_in_the_order_of_the_file", R"({"z":1,"a":2})", R"({"y":3,"a":4,"b":5})",
              R"({"z":1,"a":4,"y":3,"b":5})"),
      merging("objects_are_merged_at_any_depth", R"({"a":{"b":{"c":{"x":1}}}})", R"({"a":{"b":{"c":{"y":2}}}})",
              R"({"a":{"b":{"c":{"x":1,"y":2}}}})"),
      merging("new_object_is_taken_whole", R"({})", R"({"a":{"b":[1,{"c":null}]}})", R"({"a":{"b":[1,{"c":null}]}})"),
      merging("arrays_keep_equal_elements", R"({"l":[1,2]})", R"({"l":[2,1]})", R"({"l":[1,2,2,1]})"),
      merging("arrays_of_objects_are_joined_not_merged", R"({"l":[{"a":1}]})", R"({"l":[{"b":2},[3],"x",null]})",
              R"({"l":[{"a":1},{"b":2},[3],"x",null]})"),
      merging("empty_array_adds_nothing", R"({"l":[1]})", R"({"l":[]})", R"({"l":[1]})"),
      merging("empty_object_adds_nothing", R"({"a":{"b":1}})", R"({"a":{}})", R"({"a":{"b":1}})"),
      merging("string_replaces_a_string", R"({"a":"x","b":1})", R"({"a":"y"})", R"({"a":"y","b":1})"),
      merging("number_replaces_a_number", R"({"a":1})", R"({"a":2})", R"({"a":2})"),
      merging("floating_number_replaces_an_integer", R"({"a":1})", R"({"a":2.5})", R"({"a":2.5})"),
      merging("integer_replaces_a_floating_number", R"({"a":2.5})", R"({"a":-1})", R"({"a":-1})"),
      merging("large_integer_replaces_a_small_one", R"({"a":1})", R"({"a":18446744073709551615})",
              R"({"a":18446744073709551615})"),
      merging("true_meets_true", R"({"a":true})", R"({"a":true})", R"({"a":true})"),
      merging("false_meets_false", R"({"a":false})", R"({"a":false})", R"({"a":false})"),
      merging("null_meets_null", R"({"a":null})", R"({"a":null})", R"({"a":null})"),
      merging("names_differ_by_case", R"({"a":1})", R"({"A":"x"})", R"({"a":1,"A":"x"})"),
      merging("names_differ_by_length", R"({"ab":1})", R"({"a":"x"})", R"({"ab":1,"a":"x"})"),
      merging("names_differ_behind_a_nul", R"({"a":1})", R"({"a\u0000b":"x"})", R"({"a":1,"a\u0000b":"x"})"),
      merging("escaped_names_are_equal", R"({"\u0041\/":1})", R"({"A/":2})", R"({"A/":2})"),
      merging("empty_names_are_equal", R"({"":1})", R"({"":2})", R"({"":2})"),
      merging("names_with_dots_are_names", R"({"a":{"b":1}})", R"({"a.b":2})", R"({"a":{"b":1},"a.b":2})"),
      merging("equal_names_of_the_file_meet_each_other", R"({})", R"({"a":1,"b":2,"a":3})", R"({"a":3,"b":2})"),
      merging("equal_arrays_of_the_file_are_joined", R"({})", R"({"l":[1],"l":[2]})", R"({"l":[1,2]})"),
      merging("equal_names_of_a_new_object_are_kept", R"({})", R"({"o":{"a":1,"a":2}})", R"({"o":{"a":1,"a":2}})"),
      ToolCall("first_of_two_equal_members_is_merged_into")
          .given("f.json", R"({"a":1,"a":2})")
          .given("s.json", R"({"a":3})")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", "{\n  \"a\": 3,\n  \"a\": 2\n}"),

      clashing("true_for_false", R"({"a":false})", R"({"a":true})", "a"),
      clashing("false_for_true", R"({"a":true})", R"({"a":false})", "a"),
      clashing("null_for_a_string", R"({"a":"x"})", R"({"a":null})", "a"),
      clashing("null_for_an_object", R"({"a":{}})", R"({"a":null})", "a"),
      clashing("string_for_null", R"({"a":null})", R"({"a":"x"})", "a"),
      clashing("string_for_a_number", R"({"a":1})", R"({"a":"1"})", "a"),
      clashing("number_for_a_string", R"({"a":"1"})", R"({"a":1})", "a"),
      clashing("number_for_a_boolean", R"({"a":true})", R"({"a":1})", "a"),
      clashing("object_for_an_array", R"({"a":[]})", R"({"a":{}})", "a"),
      clashing("array_for_an_object", R"({"a":{}})", R"({"a":[]})", "a"),
      clashing("array_for_a_string", R"({"a":"x"})", R"({"a":["x"]})", "a"),
      clashing("clash_inside_an_object_names_the_inner_member", R"({"a":{"b":{"c":1}}})", R"({"a":{"b":{"c":"x"}}})",
               "c"),
      clashing("clash_under_the_empty_name", R"({"":1})", R"({"":"x"})", ""),
      clashing("clash_between_equal_names_of_the_file", R"({})", R"({"a":1,"a":"x"})", "a"),
      clashing("clash_after_merged_members_saves_none_of_them", R"({"a":1,"b":2})", R"({"a":3,"n":4,"b":"x","o":5})",
               "b"),
      ToolCall("only_the_first_clash_is_reported")
          .given("f.json", R"({"a":1,"b":2})")
          .given("s.json", R"({"b":"x","a":"y"})")
          .call("--file f.json --addFile s.json")
          .reports("Incompatible types for key b\n")
          .exits(1),
      ToolCall("clash_ends_the_call_at_once")
          .given("f.json", R"({"a":1})")
          .given("s.json", R"({"a":"x"})")
          .call("--fileDisplay f.json --addFile s.json --addFile none.json --addNumber n x --read a")
          .reports("Incompatible types for key a\n")
          .exits(1),
  };
}

const Table kMerging("Merging", mergeRows);

}  // namespace
}  // namespace kovalt::test
