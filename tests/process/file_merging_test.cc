// Merging of other files into the document, at its root and at a key path.

#include "tool_call.h"

using namespace std::string_literals;

namespace kovalt::test {
namespace {

/// `count` members n0, n1, ... of one value, each with its comma.
std::string many(int count, const std::string& value) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += "\"n" + std::to_string(i) + "\":" + value + ",";
  }
  return text;
}

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

std::vector<ToolCall> fileRows() {
  return {
      ToolCall("nul_after_the_value_of_a_merged_file")
          .given("s.json", "{\"a\":1}\0"s)
          .call({"--addFile", "s.json", "--read", ""})
          .prints("{}\n")
          .reports("Could not parse json file s.json\n"),
      ToolCall("clash_prints_a_name_with_nul_whole")
          .given("f.json", R"({"a\u0000b":1})")
          .given("s.json", R"({"a\u0000b":"x"})")
          .call("--file f.json --addFile s.json")
          .reports("Incompatible types for key a\0b\n"s)
          .exits(1),
      ToolCall("first_of_equal_names_counts_among_many")
          .given("one.json", "{\"o\":{" + many(40, "0") + many(40, "1") + "\"z\":0}}")
          .given("two.json", "{" + many(40, "2") + "\"z\":3}")
          .call("-af one.json -afat o two.json -r o")
          .prints("{" + many(40, "2") + many(40, "1") + "\"z\":3}\n"),
      ToolCall("new_names_are_found_again_among_many")
          .given("s.json", "{" + many(60, "1") + many(60, "2") + "\"z\":3}")
          .call({"-af", "s.json", "-r", ""})
          .prints("{" + many(60, "2") + "\"z\":3}\n"),
      ToolCall("file_into_an_empty_document")
          .given("s.json", R"({"a":[1]})")
          .call("--addFile s.json")
          .prints("{\n    \"a\": [\n        1\n    ]\n}\n"),
      ToolCall("file_short_form").given("s.json", R"({"a":1})").call("-af s.json").prints("{\n    \"a\": 1\n}\n"),
      ToolCall("file_into_a_saved_document")
          .given("f.json", R"({"a":1})")
          .given("s.json", R"({"b":2})")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("empty_object_file_counts_as_a_modification")
          .given("f.json", R"({"a":1})")
          .given("s.json", "{}")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", "{\n  \"a\": 1\n}"),
      ToolCall("file_merged_into_itself")
          .given("f.json", R"({"a":1,"l":[1]})")
          .call("--file f.json --addFile f.json")
          .leaves("f.json", "{\n  \"a\": 1,\n  \"l\": [\n    1,\n    1\n  ]\n}"),
      ToolCall("file_merged_twice")
          .given("s.json", R"({"l":[1,2]})")
          .call({"--addFile", "s.json", "--addFile", "s.json", "--read", ""})
          .prints("{\"l\":[1,2,1,2]}\n"),
      ToolCall("file_after_an_addition_has_the_last_word")
          .given("s.json", R"({"a":"file"})")
          .call({"--addString", "a", "option", "--addFile", "s.json", "--read", ""})
          .prints("{\"a\":\"file\"}\n"),
      ToolCall("addition_after_a_file_has_the_last_word")
          .given("s.json", R"({"a":"file"})")
          .call({"--addFile", "s.json", "--addString", "a", "option", "--read", ""})
          .prints("{\"a\":\"option\"}\n"),
      ToolCall("addition_of_another_type_before_a_file_clashes")
          .given("s.json", R"({"a":1})")
          .call("--addString a option --addFile s.json")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("addition_of_another_type_after_a_file_replaces")
          .given("s.json", R"({"a":1})")
          .call({"--addFile", "s.json", "--addString", "a", "option", "--read", ""})
          .prints("{\"a\":\"option\"}\n"),
      ToolCall("array_addition_after_a_file_replaces_its_array")
          .given("s.json", R"({"a":["x"]})")
          .call({"--addFile", "s.json", "--addArray", "a", "y", "--read", ""})
          .prints("{\"a\":[\"y\"]}\n"),
      ToolCall("file_after_an_array_addition_is_appended")
          .given("s.json", R"({"a":["x"]})")
          .call({"--addFile", "s.json", "--addArray", "a", "y", "--addFile", "s.json", "--read", ""})
          .prints("{\"a\":[\"y\",\"x\"]}\n"),
      ToolCall("file_name_may_look_like_an_option")
          .given("-f", R"({"a":1})")
          .call("--addFile -f --read a")
          .prints("1\n"),
      ToolCall("missing_file_is_reported")
          .call("--addFile ./no/s.json")
          .prints("{}\n")
          .reports("Could not open document: ./no/s.json\n"),
      ToolCall("missing_file_leaves_the_document_and_saves_it")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --addFile s.json")
          .reports("Could not open document: s.json\n")
          .leaves("f.json", "{\n  \"a\": 1\n}"),
      ToolCall("each_missing_file_is_reported")
          .call({"--addFile", "s.json", "--addFile", "s.json", "--read", ""})
          .prints("{}\n")
          .reports("Could not open document: s.json\nCould not open document: s.json\n"),
      ToolCall("empty_file_name_is_a_missing_file")
          .call({"--addFile", ""})
          .prints("{}\n")
          .reports("Could not open document: \n"),
      ToolCall("directory_is_a_file_that_does_not_parse")
          .givenDirectory("d")
          .call("--addFile d")
          .prints("{}\n")
          .reports("Could not parse json file d\n"),
      ToolCall("file_that_does_not_parse_adds_nothing")
          .given("s.json", R"({"a":1,"b":)")
          .call({"--addString", "k", "v", "--addFile", "s.json", "--read", ""})
          .prints("{\"k\":\"v\"}\n")
          .reports("Could not parse json file s.json\n"),
      ToolCall("empty_file_does_not_parse")
          .given("s.json", "")
          .call("--addFile s.json")
          .prints("{}\n")
          .reports("Could not parse json file s.json\n"),
      ToolCall("parsed_value_before_other_text_is_not_merged")
          .given("s.json", "{\"a\":1} x")
          .call("--addFile s.json")
          .prints("{}\n")
          .reports("Could not parse json file s.json\n"),
      ToolCall("root_array_of_a_file")
          .given("f.json", R"({"a":1})")
          .given("s.json", R"([{"b":2}])")
          .call("--fileDisplay f.json --addFile s.json --read a")
          .aborts("IsObject()"),
      ToolCall("root_string_of_a_file").given("s.json", "\"x\"").call("--addFile s.json").aborts("IsObject()"),
      ToolCall("root_null_of_a_file").given("s.json", "null").call("--addFile s.json").aborts("IsObject()"),
      ToolCall("file_replaces_a_string_root")
          .given("s.json", R"({"a":1})")
          .call({"--addString", "", "x", "--addFile", "s.json", "--read", ""})
          .prints("{\"a\":1}\n"),
      ToolCall("file_replaces_a_root_array")
          .given("f.json", "[1,2]")
          .given("s.json", R"({"a":1})")
          .call("--file f.json --addFile s.json")
          .leaves("f.json", "{\n  \"a\": 1\n}"),
      ToolCall("missing_file_replaces_a_root_array")
          .given("f.json", "[1,2]")
          .call("--file f.json --addFile s.json")
          .reports("Could not open document: s.json\n")
          .leaves("f.json", "{}"),
  };
}

std::vector<ToolCall> fileAtRows() {
  return {
      ToolCall("file_at_a_new_key")
          .given("s.json", R"({"a":1,"b":[2]})")
          .call({"--addFileAt", "objectKey", "s.json", "--read", ""})
          .prints("{\"objectKey\":{\"a\":1,\"b\":[2]}}\n"),
      ToolCall("file_at_short_form")
          .given("s.json", R"({"a":1})")
          .call("-afat k s.json")
          .prints("{\n    \"k\": {\n        \"a\": 1\n    }\n}\n"),
      ToolCall("file_at_an_added_object")
          .given("s.json", R"({"a":1,"b":[2]})")
          .call({"--addObject", "objectKey", "--addFileAt", "objectKey", "s.json", "--read", ""})
          .prints("{\"objectKey\":{\"a\":1,\"b\":[2]}}\n"),
      ToolCall("file_at_an_object_emptied_later")
          .given("s.json", R"({"a":1})")
          .call({"--addFileAt", "k", "s.json", "--addObject", "k", "--read", ""})
          .prints("{\"k\":{}}\n"),
      ToolCall("file_under_missing_objects")
          .given("s.json", R"({"x":1})")
          .call({"--addFileAt", "a.b.c", "s.json", "--read", ""})
          .prints("{\"a\":{\"b\":{\"c\":{\"x\":1}}}}\n"),
      ToolCall("file_at_an_existing_object_is_merged")
          .given("f.json", R"({"k":{"a":1,"l":[1]},"z":0})")
          .given("s.json", R"({"l":[2],"a":3})")
          .call({"--file", "f.json", "--addFileAt", "k", "s.json", "--read", ""})
          .prints("{\"k\":{\"a\":3,\"l\":[1,2]},\"z\":0}\n")
          .leaves("f.json", R"({
  "k": {
    "a": 3,
    "l": [
      1,
      2
    ]
  },
  "z": 0
})"),
      ToolCall("file_at_the_empty_path_is_merged_at_the_root")
          .given("f.json", R"({"a":1})")
          .given("s.json", R"({"b":2})")
          .call({"--file", "f.json", "--addFileAt", "", "s.json"})
          .leaves("f.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("file_at_a_string_replaces_it")
          .given("f.json", R"({"k":"s","l":1})")
          .given("s.json", R"({"a":1})")
          .call("--file f.json --addFileAt k s.json")
          .leaves("f.json", "{\n  \"k\": {\n    \"a\": 1\n  },\n  \"l\": 1\n}"),
      ToolCall("file_at_an_array_replaces_it")
          .given("f.json", R"({"k":[1]})")
          .given("s.json", R"({"a":1})")
          .call("--file f.json --addFileAt k s.json")
          .leaves("f.json", "{\n  \"k\": {\n    \"a\": 1\n  }\n}"),
      ToolCall("file_at_null_replaces_it")
          .given("f.json", R"({"k":null})")
          .given("s.json", R"({"a":1})")
          .call("--file f.json --addFileAt k s.json")
          .leaves("f.json", "{\n  \"k\": {\n    \"a\": 1\n  }\n}"),
      ToolCall("file_at_a_selected_object")
          .given("f.json", R"([{"id":1},{"id":2}])")
          .given("s.json", R"({"n":"x"})")
          .call("--file f.json --addFileAt id=2 s.json")
          .leaves("f.json", "[\n  {\n    \"id\": 1\n  },\n  {\n    \"id\": 2,\n    \"n\": \"x\"\n  }\n]"),
      ToolCall("file_behind_a_failed_selection")
          .given("s.json", R"({"n":"x"})")
          .call({"--addFileAt", "id=2", "s.json", "--read", ""})
          .prints("{\"id=2\":{\"n\":\"x\"}}\n")
          .reports("Kovalt path not found with refKey=refValue \"id=2\"\n"),
      ToolCall("file_below_a_string_clashes")
          .given("f.json", R"({"a":"s"})")
          .given("s.json", R"({"n":"x"})")
          .call("--file f.json --addFileAt a.b s.json")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("clash_inside_the_object_at_the_path")
          .given("f.json", R"({"k":{"a":1}})")
          .given("s.json", R"({"a":"x"})")
          .call("--file f.json --addFileAt k s.json")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("missing_file_at_a_new_key_leaves_an_empty_object")
          .call({"--addFileAt", "a.k", "s.json", "--read", ""})
          .prints("{\"a\":{\"k\":{}}}\n")
          .reports("Could not open document: s.json\n"),
      ToolCall("missing_file_at_a_string_leaves_an_empty_object")
          .given("f.json", R"({"k":"s"})")
          .call("--file f.json --addFileAt k s.json")
          .reports("Could not open document: s.json\n")
          .leaves("f.json", "{\n  \"k\": {}\n}"),
      ToolCall("missing_file_at_an_object_leaves_it")
          .given("f.json", R"({"k":{"a":1}})")
          .call("--file f.json --addFileAt k s.json")
          .reports("Could not open document: s.json\n")
          .leaves("f.json", "{\n  \"k\": {\n    \"a\": 1\n  }\n}"),
      ToolCall("missing_file_below_a_string_is_reported_before_the_clash")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --addFileAt a.b s.json")
          .reports("Could not open document: s.json\nIncompatible types for key a\n")
          .exits(1),
      ToolCall("file_that_does_not_parse_at_a_new_key_leaves_an_empty_object")
          .given("s.json", R"({"a":1)")
          .call({"--addFileAt", "k", "s.json", "--read", ""})
          .prints("{\"k\":{}}\n")
          .reports("Could not parse json file s.json\n"),
      ToolCall("file_that_does_not_parse_at_an_array_leaves_an_empty_object")
          .given("f.json", R"({"k":[1]})")
          .given("s.json", "[1")
          .call("--file f.json --addFileAt k s.json")
          .reports("Could not parse json file s.json\n")
          .leaves("f.json", "{\n  \"k\": {}\n}"),
      ToolCall("file_that_does_not_parse_at_an_object_leaves_it")
          .given("f.json", R"({"k":{"a":1}})")
          .given("s.json", R"({"a":2,})")
          .call("--file f.json --addFileAt k s.json")
          .reports("Could not parse json file s.json\n")
          .leaves("f.json", "{\n  \"k\": {\n    \"a\": 1\n  }\n}"),
      ToolCall("root_array_of_a_file_at_a_new_key")
          .given("f.json", R"({"a":1})")
          .given("s.json", "[1]")
          .call("--file f.json --addFileAt k s.json")
          .aborts("IsObject()"),
      ToolCall("root_array_of_a_file_at_an_array")
          .given("f.json", R"({"k":[1]})")
          .given("s.json", "[2]")
          .call("--file f.json --addFileAt k s.json")
          .aborts("IsObject()"),
      ToolCall("root_number_of_a_file_at_an_object")
          .given("f.json", R"({"k":{}})")
          .given("s.json", "1")
          .call("--file f.json --addFileAt k s.json")
          .aborts("IsObject()"),
      ToolCall("file_at_a_key_below_a_root_array")
          .given("f.json", "[1]")
          .call("--file f.json --addFileAt k s.json")
          .reports("Could not open document: s.json\n")
          .aborts("IsObject()"),
  };
}

const Table kMerging("Merging", mergeRows);
const Table kFileMerging("FileMerging", fileRows);
const Table kFileMergingAtAPath("FileMergingAtAPath", fileAtRows);

}  // namespace
}  // namespace kovalt::test
