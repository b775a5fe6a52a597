// Additions of arrays of strings, numbers and booleans.

#include "tool_call.h"

namespace kovalt::test {
namespace {

/// The report of an array with rejected booleans; `values` is the list of all its values, as it is shown.
std::string rejected(const std::string& values) {
  return "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, " + values + " rejected.\n";
}

std::vector<ToolCall> stringRows() {
  return {
      ToolCall("strings").call("--addArray key stringValue1 stringValue2 stringValue3").prints(R"({
    "key": [
        "stringValue1",
        "stringValue2",
        "stringValue3"
    ]
}
)"),
      ToolCall("strings_short_form").call({"-aa", "key", "b", "a", "-r", ""}).prints("{\"key\":[\"b\",\"a\"]}\n"),
      ToolCall("one_string").call({"--addArray", "k", "a", "-r", ""}).prints("{\"k\":[\"a\"]}\n"),
      ToolCall("one_argument_is_split_at_commas")
          .call({"--addArray", "k", "a,b,c", "-r", ""})
          .prints("{\"k\":[\"a\",\"b\",\"c\"]}\n"),
      ToolCall("two_arguments_are_not_split")
          .call({"--addArray", "k", "a,b", "c", "-r", ""})
          .prints("{\"k\":[\"a,b\",\"c\"]}\n"),
      ToolCall("empty_piece_is_kept")
          .call({"--addArray", "k", "a,,b", "-r", ""})
          .prints("{\"k\":[\"a\",\"\",\"b\"]}\n"),
      ToolCall("leading_empty_piece_is_kept")
          .call({"--addArray", "k", ",a", "-r", ""})
          .prints("{\"k\":[\"\",\"a\"]}\n"),
      ToolCall("trailing_comma_gives_no_piece")
          .call({"--addArray", "k", "a,b,", "-r", ""})
          .prints("{\"k\":[\"a\",\"b\"]}\n"),
      ToolCall("lone_comma_is_one_empty_piece").call({"--addArray", "k", ",", "-r", ""}).prints("{\"k\":[\"\"]}\n"),
      ToolCall("two_commas_are_two_empty_pieces")
          .call({"--addArray", "k", ",,", "-r", ""})
          .prints("{\"k\":[\"\",\"\"]}\n"),
      ToolCall("spaces_around_commas_are_kept")
          .call({"--addArray", "k", "a , b", "-r", ""})
          .prints("{\"k\":[\"a \",\" b\"]}\n"),
      ToolCall("split_piece_may_begin_with_a_dash")
          .call({"--addArray", "k", "a,-b", "-r", ""})
          .prints("{\"k\":[\"a\",\"-b\"]}\n"),
      ToolCall("empty_list_at_the_end").call("--addArray k").prints("{\n    \"k\": []\n}\n"),
      ToolCall("empty_list_before_an_option")
          .call({"--addArray", "k", "-as", "a", "b", "-r", ""})
          .prints("{\"k\":[],\"a\":\"b\"}\n"),
      ToolCall("key_path_may_look_like_an_option")
          .call({"--addArray", "-k", "a", "-r", ""})
          .prints("{\"-k\":[\"a\"]}\n"),
      ToolCall("empty_argument_ends_the_list")
          .call({"--addArray", "k", "a", "", "b"})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("strings_keep_their_bytes")
          .call({"--addArray", "k", "1", "TRUE", " \"\n\xC3\xA9", "-r", ""})
          .prints("{\"k\":[\"1\",\"TRUE\",\" \\\"\\n\xC3\xA9\"]}\n"),
      ToolCall("equal_strings_are_kept")
          .call({"--addArray", "k", "a,a,a", "-r", ""})
          .prints("{\"k\":[\"a\",\"a\",\"a\"]}\n"),
      ToolCall("strings_under_missing_objects")
          .call({"--addArray", "a.b", "x", "-r", ""})
          .prints("{\"a\":{\"b\":[\"x\"]}}\n"),
      ToolCall("array_replaces_an_array")
          .given("f.json", R"({"k":["x","y"],"l":1})")
          .call("--file f.json --addArray k z")
          .leaves("f.json", "{\n  \"k\": [\n    \"z\"\n  ],\n  \"l\": 1\n}"),
      ToolCall("empty_array_replaces_an_array")
          .given("f.json", R"({"k":["x","y"]})")
          .call("--file f.json --addArray k")
          .leaves("f.json", "{\n  \"k\": []\n}"),
      ToolCall("array_replaces_an_object")
          .given("f.json", R"({"k":{"a":1}})")
          .call("--file f.json --addArray k z")
          .leaves("f.json", "{\n  \"k\": [\n    \"z\"\n  ]\n}"),
      ToolCall("array_replaces_the_root")
          .given("f.json", R"({"k":1})")
          .call({"--file", "f.json", "--addArray", "", "x", "y"})
          .leaves("f.json", "[\n  \"x\",\n  \"y\"\n]"),
      ToolCall("last_of_two_arrays_stays")
          .call({"-aa", "k", "a", "b", "-aa", "k", "c", "-r", ""})
          .prints("{\"k\":[\"c\"]}\n"),
      ToolCall("array_behind_a_failed_selection_is_appended")
          .call({"-aa", "k=1", "a", "b", "-aa", "k=1", "a", "-r", ""})
          .prints("{\"k=1\":[\"a\",\"b\",\"a\"]}\n")
          .reports("Kovalt path not found with refKey=refValue \"k=1\"\n"
                   "Kovalt path not found with refKey=refValue \"k=1\"\n"),
      ToolCall("array_in_a_selected_object")
          .given("f.json", R"([{"id":1,"tags":["x"]}])")
          .call("--file f.json --addArray id=1.tags y")
          .leaves("f.json", "[\n  {\n    \"id\": 1,\n    \"tags\": [\n      \"y\"\n    ]\n  }\n]"),
      ToolCall("array_below_a_string_clashes")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --addArray a.b x")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("array_below_an_array_clashes")
          .given("f.json", R"({"a":["s"]})")
          .call("--file f.json --addArray a.b x")
          .reports("Incompatible types for key a\n")
          .exits(1),
  };
}

std::vector<ToolCall> numberRows() {
  return {
      ToolCall("numbers")
          .call("--addArrayNumber key 0 1 2 3")
          .prints("{\n    \"key\": [\n        0,\n        1,\n        2,\n        3\n    ]\n}\n"),
      ToolCall("numbers_short_form").call({"-aan", "key", "0", "1", "-r", ""}).prints("{\"key\":[0,1]}\n"),
      ToolCall("numbers_in_one_argument")
          .call({"--addArrayNumber", "k", "1,2,3", "-r", ""})
          .prints("{\"k\":[1,2,3]}\n"),
      ToolCall("numbers_in_three_arguments")
          .call({"--addArrayNumber", "k", "1", "2", "3", "-r", ""})
          .prints("{\"k\":[1,2,3]}\n"),
      ToolCall("unsplit_number_stops_at_its_comma")
          .call({"--addArrayNumber", "k", "1,2", "3", "-r", ""})
          .prints("{\"k\":[1,3]}\n"),
      ToolCall("negative_numbers_in_one_argument")
          .call({"--addArrayNumber", "k", "1,-5,-6", "-r", ""})
          .prints("{\"k\":[1,-5,-6]}\n"),
      ToolCall("negative_number_ends_the_list")
          .call("--addArrayNumber k 1 -1")
          .prints("Error: invalid argument -1\n")
          .exits(1),
      ToolCall("negative_number_alone_is_no_list")
          .call("--addArrayNumber k -1")
          .prints("Error: invalid argument -1\n")
          .exits(1),
      ToolCall("numbers_stop_at_the_first_other_character")
          .call({"--addArrayNumber", "k", "12abc", "3.9", "0x1F", " +7", "010", "-r", ""})
          .prints("{\"k\":[12,3,0,7,10]}\n"),
      ToolCall("numbers_at_the_limits")
          .call({"--addArrayNumber", "k", "2147483647,-2147483648", "-r", ""})
          .prints("{\"k\":[2147483647,-2147483648]}\n"),
      ToolCall("trailing_comma_after_numbers")
          .call({"--addArrayNumber", "k", "1,2,", "-r", ""})
          .prints("{\"k\":[1,2]}\n"),
      ToolCall("no_numbers").call({"--addArrayNumber", "k", "-r", ""}).prints("{\"k\":[]}\n"),
      ToolCall("empty_piece_is_no_number").call("--addArrayNumber k 1,,2").aborts(),
      ToolCall("word_is_no_number").call("--addArrayNumber k 1 two").aborts(),
      ToolCall("number_of_the_array_above_the_range").call("--addArrayNumber k 1 2147483648").aborts(),
      ToolCall("number_of_the_array_below_the_range").call("--addArrayNumber k 1,-2147483649").aborts(),
      ToolCall("bad_number_leaves_the_file")
          .given("f.json", R"({"k":[1]})")
          .call("--fileDisplay f.json --addArrayNumber k 1 x")
          .aborts(),
      ToolCall("numbers_replace_an_array")
          .given("f.json", R"({"key":[1,2]})")
          .call("--file f.json --addArrayNumber key 3")
          .leaves("f.json", "{\n  \"key\": [\n    3\n  ]\n}"),
      ToolCall("numbers_below_a_number_clash")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --addArrayNumber a.b 1")
          .reports("Incompatible types for key a\n")
          .exits(1),
  };
}

std::vector<ToolCall> booleanRows() {
  return {
      ToolCall("booleans")
          .call("--addArrayBoolean key TRUE 1 FalSe 0 hello")
          .prints(R"({
    "key": [
        true,
        true,
        false,
        false,
        null
    ]
}
)")
          .reports(rejected("[ true 1 false 0 hello ]")),
      ToolCall("booleans_short_form").call({"-aab", "k", "true", "0", "-r", ""}).prints("{\"k\":[true,false]}\n"),
      ToolCall("booleans_in_one_argument")
          .call({"--addArrayBoolean", "k", "true,FALSE,1,0", "-r", ""})
          .prints("{\"k\":[true,false,true,false]}\n"),
      ToolCall("no_booleans").call({"--addArrayBoolean", "k", "-r", ""}).prints("{\"k\":[]}\n"),
      ToolCall("many_rejected_booleans_give_one_line")
          .call({"--addArrayBoolean", "k", "YES", "true", "No", "-r", ""})
          .prints("{\"k\":[null,true,null]}\n")
          .reports(rejected("[ yes true no ]")),
      ToolCall("one_rejected_boolean")
          .call({"--addArrayBoolean", "k", "Hello", "-r", ""})
          .prints("{\"k\":[null]}\n")
          .reports(rejected("[ hello ]")),
      ToolCall("rejected_empty_piece")
          .call({"--addArrayBoolean", "k", "true,,0", "-r", ""})
          .prints("{\"k\":[true,null,false]}\n")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, [ true  0 ] rejected.\n"),
      ToolCall("rejected_value_with_a_comma")
          .call({"--addArrayBoolean", "k", "TRUE,FALSE", "1", "-r", ""})
          .prints("{\"k\":[null,true]}\n")
          .reports(rejected("[ true,false 1 ]")),
      ToolCall("rejected_value_with_a_space")
          .call({"--addArrayBoolean", "k", " true", "-r", ""})
          .prints("{\"k\":[null]}\n")
          .reports(rejected("[  true ]")),
      ToolCall("array_booleans_make_only_ascii_letters_small")
          .call({"--addArrayBoolean", "k", "\xC3\x89T", "-r", ""})
          .prints("{\"k\":[null]}\n")
          .reports(rejected("[ \xC3\x89t ]")),
      ToolCall("rejected_booleans_for_an_existing_key_give_one_line")
          .given("f.json", R"({"k":[true,true]})")
          .call("--file f.json --addArrayBoolean k no")
          .reports(rejected("[ no ]"))
          .leaves("f.json", "{\n  \"k\": [\n    null\n  ]\n}"),
      ToolCall("rejected_booleans_replace_a_value_of_another_type")
          .given("f.json", R"({"k":"s"})")
          .call("--file f.json --addArrayBoolean k no")
          .reports(rejected("[ no ]"))
          .leaves("f.json", "{\n  \"k\": [\n    null\n  ]\n}"),
      ToolCall("rejected_booleans_under_missing_objects_give_one_line")
          .call({"--addArrayBoolean", "a.b", "no", "-r", ""})
          .prints("{\"a\":{\"b\":[null]}}\n")
          .reports(rejected("[ no ]")),
      ToolCall("rejected_booleans_at_the_root")
          .call({"--addArrayBoolean", "", "no"})
          .prints("[\n    null\n]\n")
          .reports(rejected("[ no ]")),
      ToolCall("rejected_booleans_below_a_string_clash")
          .given("f.json", R"({"a":"s"})")
          .call("--file f.json --addArrayBoolean a.b no")
          .reports(rejected("[ no ]") + "Incompatible types for key a\n")
          .exits(1),
      ToolCall("each_array_reports_its_own_values")
          .call({"-aab", "k", "x", "-aab", "l", "1", "-aab", "m", "y", "-r", ""})
          .prints("{\"k\":[null],\"l\":[true],\"m\":[null]}\n")
          .reports(rejected("[ x ]") + rejected("[ y ]")),
  };
}

const Table kStringArrayAdditions("StringArrayAdditions", stringRows);
const Table kNumberArrayAdditions("NumberArrayAdditions", numberRows);
const Table kBooleanArrayAdditions("BooleanArrayAdditions", booleanRows);

}  // namespace
}  // namespace kovalt::test
