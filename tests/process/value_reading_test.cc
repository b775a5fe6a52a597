// A single --read: the value as one bare line.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kPools = R"({"pools":[{"id":1,"name":"x"},{"id":7,"name":"y"},{"id":7,"name":"z"}]})";

std::vector<ToolCall> rows() {
  return {
      ToolCall("a_string_prints_without_its_quotes")
          .given("d.json", R"({"a":"value"})")
          .call("--file d.json --read a")
          .prints("value\n"),
      ToolCall("the_short_form_prints_the_same")
          .given("d.json", R"({"a":"value"})")
          .call("-f d.json -r a")
          .prints("value\n"),
      ToolCall("the_read_may_stand_before_the_file")
          .given("d.json", R"({"a":"value"})")
          .call("-r a -f d.json")
          .prints("value\n"),
      ToolCall("an_empty_string_prints_an_empty_line")
          .given("d.json", R"({"a":""})")
          .call("-f d.json -r a")
          .prints("\n"),
      ToolCall("spaces_around_a_string_stay")
          .given("d.json", R"({"a":"  x  "})")
          .call("-f d.json -r a")
          .prints("  x  \n"),
      ToolCall("quotes_inside_a_string_stay_escaped")
          .given("d.json", R"({"a":"say \"hi\" now"})")
          .call("-f d.json -r a")
          .prints("say \\\"hi\\\" now\n"),
      ToolCall("only_the_outer_pair_of_quotes_goes")
          .given("d.json", R"({"a":"\"x\""})")
          .call("-f d.json -r a")
          .prints("\\\"x\\\"\n"),
      ToolCall("a_lone_quote_prints_as_its_escape")
          .given("d.json", R"({"a":"\""})")
          .call("-f d.json -r a")
          .prints("\\\"\n"),
      ToolCall("backslashes_stay_doubled")
          .given("d.json", R"({"a":"C:\\dir\\"})")
          .call("-f d.json -r a")
          .prints("C:\\\\dir\\\\\n"),
      ToolCall("line_ends_and_tabs_stay_escaped")
          .given("d.json", R"({"a":"1\n2\t3\r4\b5\f6"})")
          .call("-f d.json -r a")
          .prints("1\\n2\\t3\\r4\\b5\\f6\n"),
      ToolCall("other_control_characters_print_as_four_hexadecimal_digits")
          .given("d.json", R"({"a":"\u0001\u000b\u001f"})")
          .call("-f d.json -r a")
          .prints("\\u0001\\u000B\\u001F\n"),
      ToolCall("a_nul_character_does_not_cut_the_text")
          .given("d.json", R"({"a":"x\u0000y"})")
          .call("-f d.json -r a")
          .prints("x\\u0000y\n"),
      ToolCall("an_escaped_slash_prints_plainly")
          .given("d.json", R"({"a":"x\/y"})")
          .call("-f d.json -r a")
          .prints("x/y\n"),
      ToolCall("escaped_code_points_print_as_their_bytes")
          .given("d.json", R"({"a":"\u00e9\ud83d\ude00\u007f"})")
          .call("-f d.json -r a")
          .prints("\xC3\xA9\xF0\x9F\x98\x80\x7F\n"),
      ToolCall("bytes_that_are_not_ascii_print_as_they_are")
          .given("d.json", "{\"a\":\"\xC3\xA9 \xFF\"}")
          .call("-f d.json -r a")
          .prints("\xC3\xA9 \xFF\n"),
      ToolCall("an_integer_prints_in_decimal").given("d.json", R"({"a":666})").call("-f d.json -r a").prints("666\n"),
      ToolCall("the_smallest_signed_integer_prints_whole")
          .given("d.json", R"({"a":-9223372036854775808})")
          .call("-f d.json -r a")
          .prints("-9223372036854775808\n"),
      ToolCall("the_largest_unsigned_integer_prints_whole")
          .given("d.json", R"({"a":18446744073709551615})")
          .call("-f d.json -r a")
          .prints("18446744073709551615\n"),
      ToolCall("an_integral_floating_number_keeps_its_point")
          .given("d.json", R"({"a":7.0})")
          .call("-f d.json -r a")
          .prints("7.0\n"),
      ToolCall("an_exponent_prints_as_the_writer_writes_it")
          .given("d.json", R"({"a":1E2})")
          .call("-f d.json -r a")
          .prints("100.0\n"),
      ToolCall("true_prints_as_its_word").given("d.json", R"({"a":true})").call("-f d.json -r a").prints("true\n"),
      ToolCall("false_prints_as_its_word").given("d.json", R"({"a":false})").call("-f d.json -r a").prints("false\n"),
      ToolCall("null_prints_as_its_word").given("d.json", R"({"a":null})").call("-f d.json -r a").prints("null\n"),
      ToolCall("an_object_prints_compactly_whatever_its_layout_in_the_file")
          .given("d.json", "{ \"o\" : {\r\n \"a\" : 1 ,\t\"b\" : [ true , null ] } }\n")
          .call("-f d.json -r o")
          .prints("{\"a\":1,\"b\":[true,null]}\n"),
      ToolCall("an_array_keeps_its_brackets_and_quotes")
          .given("d.json", R"({"a":["x", "y"]})")
          .call("-f d.json -r a")
          .prints("[\"x\",\"y\"]\n"),
      ToolCall("an_empty_object_prints_as_two_braces")
          .given("d.json", R"({"a":{ }})")
          .call("-f d.json -r a")
          .prints("{}\n"),
      ToolCall("an_empty_array_prints_as_two_brackets")
          .given("d.json", R"({"a":[ ]})")
          .call("-f d.json -r a")
          .prints("[]\n"),
      ToolCall("an_empty_path_reads_the_whole_document_on_one_line")
          .given("d.json", "{\n  \"a\": 1,\n  \"b\": [\n    true\n  ]\n}\n")
          .call({"--file", "d.json", "--read", ""})
          .prints("{\"a\":1,\"b\":[true]}\n"),
      ToolCall("an_empty_path_without_a_file_reads_the_empty_object").call({"-r", ""}).prints("{}\n"),
      ToolCall("an_empty_path_reads_a_string_root_without_quotes")
          .given("d.json", R"("text")")
          .call({"-f", "d.json", "-r", ""})
          .prints("text\n"),
      ToolCall("an_empty_path_reads_an_array_root")
          .given("d.json", "[1, 2]")
          .call({"-f", "d.json", "-r", ""})
          .prints("[1,2]\n"),
      ToolCall("a_missing_path_is_reported_and_prints_nothing")
          .given("d.json", R"({"a":1})")
          .call("--file d.json --read b")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("the_report_says_read_for_the_short_form_too")
          .given("d.json", R"({"a":1})")
          .call("-f d.json -r b")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("without_a_file_every_member_is_missing")
          .call("--read a")
          .reports("--read error : Path \"a\" does not exist\n"),
      ToolCall("the_report_names_the_whole_path_not_the_failing_step")
          .given("d.json", R"({"a":{"b":1}})")
          .call("-f d.json -r a.x.y")
          .reports("--read error : Path \"a.x.y\" does not exist\n"),
      ToolCall("the_report_shows_the_path_exactly_as_typed")
          .call({"-r", R"(.a.."b" \n.)"})
          .reports("--read error : Path \".a..\"b\" \\n.\" does not exist\n"),
      ToolCall("a_step_into_a_string_is_missing")
          .given("d.json", R"({"a":"b"})")
          .call("-f d.json -r a.b")
          .reports("--read error : Path \"a.b\" does not exist\n"),
      ToolCall("a_member_of_an_array_root_is_missing")
          .given("d.json", R"([{"a":1}])")
          .call("-f d.json -r a")
          .reports("--read error : Path \"a\" does not exist\n"),
      ToolCall("digits_are_no_index_into_an_array")
          .given("d.json", R"({"a":["x"]})")
          .call("-f d.json -r a.0")
          .reports("--read error : Path \"a.0\" does not exist\n"),
      ToolCall("digits_name_a_member").given("d.json", R"({"a":{"0":"x"}})").call("-f d.json -r a.0").prints("x\n"),
      ToolCall("empty_steps_name_members_with_the_empty_name")
          .given("d.json", R"({"":{"":"deep"}})")
          .call("-f d.json -r .")
          .prints("deep\n"),
      ToolCall("a_name_that_holds_a_dot_cannot_be_reached")
          .given("d.json", R"({"a.b":1})")
          .call("-f d.json -r a.b")
          .reports("--read error : Path \"a.b\" does not exist\n"),
      ToolCall("names_are_compared_with_their_case")
          .given("d.json", R"({"Key":1})")
          .call("-f d.json -r key")
          .reports("--read error : Path \"key\" does not exist\n"),
      ToolCall("the_first_of_two_members_of_one_name_is_read")
          .given("d.json", R"({"a":{"b":1,"b":2},"a":{"b":3}})")
          .call("-f d.json -r a.b")
          .prints("1\n"),
      ToolCall("a_path_may_look_like_an_option")
          .given("d.json", R"({"--file":"x"})")
          .call("-r --file -f d.json")
          .prints("x\n"),
      ToolCall("a_selection_reads_from_the_first_match")
          .given("d.json", kPools)
          .call("-f d.json -r pools.id=7.name")
          .prints("y\n"),
      ToolCall("a_selection_as_last_step_prints_the_object")
          .given("d.json", kPools)
          .call("-f d.json -r pools.name=z")
          .prints("{\"id\":7,\"name\":\"z\"}\n"),
      ToolCall("a_selection_without_match_gives_its_own_report_only")
          .given("d.json", kPools)
          .call("-f d.json -r pools.id=9.name")
          .reports("Kovalt path not found with refKey=refValue \"id=9\"\n"),
      ToolCall("a_selection_over_a_wrong_element_gives_both_its_reports")
          .given("d.json", R"({"list":[3,{"id":1}]})")
          .call("-f d.json -r list.id=1")
          .reports("Kovalt path not found with refKey=refValue \"id=1\"\n"
                   "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of "
                   "objects, and refKey must be a bool/number/string/array of numbers/strings.\n"),
      ToolCall("a_member_missing_behind_a_selection_is_a_read_error")
          .given("d.json", kPools)
          .call("-f d.json -r pools.id=7.size")
          .reports("--read error : Path \"pools.id=7.size\" does not exist\n"),
      ToolCall("a_name_that_holds_an_equals_sign_is_a_selection")
          .given("d.json", R"({"a=b":1})")
          .call("-f d.json -r a=b")
          .reports("Kovalt path not found with refKey=refValue \"a=b\"\n"),
      ToolCall("a_missing_file_is_passed_over_and_not_made")
          .call("-f none.json -r a")
          .reports("--read error : Path \"a\" does not exist\n"),
      ToolCall("an_unparsable_file_is_reported_first_and_kept")
          .given("d.json", "{\"a\":1,}")
          .call("-f d.json -r a")
          .reports("Could not parse json file d.json\n--read error : Path \"a\" does not exist\n"),
      ToolCall("a_long_option_without_a_path_is_refused")
          .call("--read")
          .prints("Error: Error: missing argument(s) after --read\n")
          .exits(1),
      ToolCall("a_short_option_without_a_path_is_refused")
          .call("-as a b -r")
          .prints("Error: Error: missing argument(s) after -r\n")
          .exits(1),
      ToolCall("a_second_path_is_refused").call("-r a b").prints("Error: invalid argument b\n").exits(1),
  };
}

const Table kValueReading("ValueReading", rows);

}  // namespace
}  // namespace kovalt::test
