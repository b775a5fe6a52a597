// The files that are merged, at the root and at a key path.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

/// `count` members n0, n1, ... of one value, each with its comma.
std::string many(int count, const std::string& value) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += "\"n" + std::to_string(i) + "\":" + value + ",";
  }
  return text;
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

const Table kFileMerging("FileMerging", fileRows);
const Table kFileMergingAtAPath("FileMergingAtAPath", fileAtRows);

}  // namespace
}  // namespace kovalt::test
