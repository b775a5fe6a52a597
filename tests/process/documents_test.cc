// Loading, displaying and saving the document of a call.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

/// A file that does not parse stands for an empty object and is left as it is.
ToolCall unparsable(const std::string& name, const std::string& content) {
  return ToolCall(name)
      .given("f.json", content)
      .call("--file f.json")
      .prints("{}\n")
      .reports("Could not parse json file f.json\n");
}

/// A file that parses, as its compact text.
ToolCall parsable(const std::string& name, const std::string& content, const std::string& compact) {
  return ToolCall(name).given("f.json", content).call({"--file", "f.json", "--read", ""}).prints(compact + "\n");
}

std::vector<ToolCall> unparsableRows() {
  return {
      unparsable("empty_file", ""),
      unparsable("only_whitespace", " \t\r\n"),
      unparsable("more_whitespace_than_a_buffer", std::string(10000, ' ')),
      unparsable("two_values", "{} {}"),
      unparsable("text_after_the_value", "{\"a\":1} x"),
      unparsable("text_after_the_value_behind_a_buffer", "{}" + std::string(8192, ' ') + "x"),
      unparsable("nul_after_the_value", "{\"a\":1}\0"s),
      unparsable("nul_and_text_after_the_value", "{\"a\":1}\0 x"s),
      unparsable("nul_behind_a_whole_buffer", "{}" + std::string(8190, ' ') + "\0"s),
      unparsable("nul_as_the_last_byte_of_a_buffer", "{}" + std::string(8189, ' ') + "\0"s),
      unparsable("line_comment", "// text\n{}"),
      unparsable("block_comment", "{\"a\":/* text */1}"),
      unparsable("comment_after_the_value", "{}\n// text\n"),
      unparsable("trailing_comma_in_an_object", R"({"a":1,})"),
      unparsable("trailing_comma_in_an_array", "[1,2,]"),
      unparsable("missing_comma", "[1 2]"),
      unparsable("missing_colon", R"({"a" 1})"),
      unparsable("unterminated_object", R"({"a":1)"),
      unparsable("unterminated_array", "[1"),
      unparsable("unterminated_string", "\"abc"),
      unparsable("unquoted_name", "{a:1}"),
      unparsable("number_as_a_name", "{1:1}"),
      unparsable("single_quotes", "{'a':1}"),
      unparsable("nan", "[NaN]"),
      unparsable("infinity", "[Infinity]"),
      unparsable("short_infinity", "[-Inf]"),
      unparsable("capital_literal", "[True]"),
      unparsable("cut_literal", "nul"),
      unparsable("leading_zero", "[01]"),
      unparsable("plus_sign", "[+1]"),
      unparsable("lone_minus", "[-]"),
      unparsable("no_digit_before_the_point", "[.5]"),
      unparsable("no_digit_after_the_point", "[1.]"),
      unparsable("no_digit_in_the_exponent", "[1e]"),
      unparsable("hexadecimal_number", "[0x1F]"),
      unparsable("number_with_too_large_an_exponent", "[1e400]"),
      unparsable("number_just_too_large", "[1.8e308]"),
      unparsable("negative_number_too_large", "[-1e400]"),
      unparsable("unknown_escape", R"(["\x41"])"),
      unparsable("short_unicode_escape", R"(["\u12"])"),
      unparsable("high_surrogate_alone", R"(["\ud83d"])"),
      unparsable("raw_line_feed_in_a_string", "[\"a\nb\"]"),
      unparsable("raw_tab_in_a_string", "[\"a\tb\"]"),
      unparsable("raw_nul_in_a_string", "[\"a\0b\"]"s),
      unparsable("byte_order_mark", "\xEF\xBB\xBF{}"),
      unparsable("form_feed_is_no_whitespace", "\f{}"),
      unparsable("no_break_space_is_no_whitespace", "{}\xC2\xA0"),
  };
}

std::vector<ToolCall> loadingRows() {
  return {
      parsable("all_four_kinds_of_whitespace", " \t\r\n{ \t\r\n\"a\" \t\r\n: \t\r\n1 \t\r\n} \t\r\n", R"({"a":1})"),
      parsable("carriage_returns_and_line_feeds", "{\r\n\"a\": 1,\r\n\"b\": 2\r\n}\r\n", R"({"a":1,"b":2})"),
      parsable("no_line_end_at_the_end", R"({"a":1})", R"({"a":1})"),
      parsable("compact_text_has_no_spaces", R"({ "a" : 1, "b" : [ true, null ] })", R"({"a":1,"b":[true,null]})"),
      parsable("compact_empty_values", R"([ { }, [ ], "x" ])", R"([{},[],"x"])"),
      parsable("equal_names_are_kept", R"({"a":1,"a":2})", R"({"a":1,"a":2})"),
      parsable("scalar_root", " false ", "false"),
      parsable("file_of_exactly_one_buffer", R"({"a":")" + std::string(8184, 'x') + "\"}",
               R"({"a":")" + std::string(8184, 'x') + "\"}"),
      parsable("value_behind_a_buffer_of_whitespace", std::string(8191, ' ') + "[12345]", "[12345]"),
      parsable("string_of_several_buffers", "[\"" + std::string(20000, 'x') + "\"]",
               "[\"" + std::string(20000, 'x') + "\"]"),
      parsable("forty_levels", std::string(40, '[') + std::string(40, ']'),
               std::string(40, '[') + std::string(40, ']')),
      ToolCall("missing_file_is_silent_and_stays_missing").call("--file none.json").prints("{}\n"),
      ToolCall("missing_file_with_a_read").call({"--file", "none.json", "--read", ""}).prints("{}\n"),
      ToolCall("file_below_a_file_is_a_missing_file").given("plain", "").call("--file plain/f.json").prints("{}\n"),
      ToolCall("dangling_link_is_a_missing_file")
          .givenSymbolicLink("f.json", "none.json")
          .call("--file f.json")
          .prints("{}\n"),
      ToolCall("path_is_shown_as_typed")
          .given("f.json", "{")
          .call("--file .//./f.json")
          .prints("{}\n")
          .reports("Could not parse json file .//./f.json\n"),
      ToolCall("short_form_reports_the_same")
          .given("f.json", "{")
          .call("-f f.json")
          .prints("{}\n")
          .reports("Could not parse json file f.json\n"),
      ToolCall("directory_is_a_file_that_does_not_parse")
          .givenDirectory("d")
          .call("--file d")
          .prints("{}\n")
          .reports("Could not parse json file d\n"),
      ToolCall("nothing_is_kept_of_a_file_that_does_not_parse")
          .given("f.json", R"({"a":1,"b":2,})")
          .call("--file f.json --addString k v")
          .reports("Could not parse json file f.json\n")
          .leaves("f.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("failed_load_removal_and_read_keep_the_status")
          .given("f.json", "{")
          .call("--file f.json --remove a --read b")
          .reports("Could not parse json file f.json\n--read error : Path \"b\" does not exist\n"),
  };
}

std::vector<ToolCall> displayRows() {
  return {
      ToolCall("display_indents_by_four_spaces")
          .given("f.json", R"({"a":[1,2]})")
          .call("--file f.json")
          .prints("{\n    \"a\": [\n        1,\n        2\n    ]\n}\n"),
      ToolCall("display_of_empty_values")
          .given("f.json", R"({"a":{ },"b":[ ],"c":"","d":[{},[]]})")
          .call("--file f.json")
          .prints(R"({
    "a": {},
    "b": [],
    "c": "",
    "d": [
        {},
        []
    ]
}
)"),
      ToolCall("display_of_nested_values")
          .given("f.json", R"([{"a":null,"b":[true,{"c":false}]},"x"])")
          .call("--file f.json")
          .prints(R"([
    {
        "a": null,
        "b": [
            true,
            {
                "c": false
            }
        ]
    },
    "x"
]
)"),
      ToolCall("display_of_an_empty_array").given("f.json", " [\n] ").call("--file f.json").prints("[]\n"),
      ToolCall("display_of_null").given("f.json", "null").call("--file f.json").prints("null\n"),
      ToolCall("display_of_a_string").given("f.json", "\"x y\"").call("--file f.json").prints("\"x y\"\n"),
      ToolCall("displayed_file_keeps_its_bytes")
          .given("f.json", "\r\n\t{\"a\" :1.50}\r\n")
          .call("--file f.json")
          .prints("{\n    \"a\": 1.5\n}\n"),
      ToolCall("file_display_of_an_unchanged_file_does_not_save")
          .given("f.json", "{\"a\":1}\n")
          .call("--fileDisplay f.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("display_and_save_differ_in_indentation")
          .given("f.json", R"({"a":[1]})")
          .call("--fileDisplay f.json --addString b v")
          .prints("{\n    \"a\": [\n        1\n    ],\n    \"b\": \"v\"\n}\n")
          .leaves("f.json", "{\n  \"a\": [\n    1\n  ],\n  \"b\": \"v\"\n}"),
  };
}

std::vector<ToolCall> savingRows() {
  return {
      ToolCall("save_indents_by_two_spaces_without_a_final_line_end")
          .given("f.json", "[1,2]\n")
          .call({"--file", "f.json", "--addObject", "", "--addArrayNumber", "a", "1", "2"})
          .leaves("f.json", "{\n  \"a\": [\n    1,\n    2\n  ]\n}"),
      ToolCall("save_of_empty_values")
          .given("f.json", R"({"a":{},"b":[],"c":[{},[]]})")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", R"({
  "a": {},
  "b": [],
  "c": [
    {},
    []
  ]
})"),
      ToolCall("save_of_an_empty_root").call({"--file", "f.json", "--addObject", ""}).leaves("f.json", "{}"),
      ToolCall("save_of_an_empty_array_root").call({"--file", "f.json", "--addArray", ""}).leaves("f.json", "[]"),
      ToolCall("save_of_a_string_root").call({"--file", "f.json", "--addString", "", "x"}).leaves("f.json", "\"x\""),
      ToolCall("save_of_an_empty_string_root")
          .call({"--file", "f.json", "--addString", "", ""})
          .leaves("f.json", "\"\""),
      ToolCall("save_of_a_number_root").call({"--file", "f.json", "--addNumber", "", "-5"}).leaves("f.json", "-5"),
      ToolCall("save_of_a_floating_number_root")
          .given("f.json", " 1.50\n")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "1.5"),
      ToolCall("save_of_a_true_root").call({"--file", "f.json", "--addBoolean", "", "true"}).leaves("f.json", "true"),
      ToolCall("save_of_a_false_root").call({"--file", "f.json", "--addBoolean", "", "0"}).leaves("f.json", "false"),
      ToolCall("save_of_a_null_root")
          .given("f.json", " null\n")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "null"),
      ToolCall("save_of_a_long_string_root")
          .call({"--file", "f.json", "--addString", "", std::string(70000, 'x')})
          .leaves("f.json", "\"" + std::string(70000, 'x') + "\""),
      ToolCall("save_of_more_than_a_buffer")
          .given("f.json", R"({"a":")" + std::string(140000, 'x') + "\"}")
          .call("--file f.json --addString b v")
          .leaves("f.json", "{\n  \"a\": \"" + std::string(140000, 'x') + "\",\n  \"b\": \"v\"\n}"),
      ToolCall("save_truncates_a_longer_file")
          .given("f.json", "{\"a\":1}" + std::string(500, '\n'))
          .call("--file f.json --remove a")
          .leaves("f.json", "{}"),
      ToolCall("save_turns_carriage_returns_into_line_feeds_alone")
          .given("f.json", "{\r\n\"a\": 1\r\n}\r\n")
          .call("--file f.json --addString b v")
          .leaves("f.json", "{\n  \"a\": 1,\n  \"b\": \"v\"\n}"),
      ToolCall("save_keeps_equal_names")
          .given("f.json", R"({"a":1,"a":2})")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "{\n  \"a\": 1,\n  \"a\": 2\n}"),
      ToolCall("save_keeps_the_mode_of_the_file")
          .given("f.json", R"({"a":1})", 0600)
          .call("--file f.json --remove a")
          .leaves("f.json", "{}"),
      ToolCall("save_goes_through_a_link")
          .given("real.json", R"({"a":1})")
          .givenSymbolicLink("f.json", "real.json")
          .call("--file f.json --remove a")
          .leaves("real.json", "{}"),
      ToolCall("save_creates_a_missing_file_silently")
          .call("--file f.json --addString k v")
          .leaves("f.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("missing_folder_fails_the_save")
          .call("--file ./no/f.json --addString k v")
          .reports("Could not write document: ./no/f.json\n")
          .exits(1),
      ToolCall("failed_save_comes_after_the_display_and_before_the_reads")
          .call("--fileDisplay no/f.json --addString k v --read k")
          .prints("{\n    \"k\": \"v\"\n}\nv\n")
          .reports("Could not write document: no/f.json\n")
          .exits(1),
      ToolCall("directory_fails_the_save")
          .givenDirectory("d")
          .call("--file d --addString k v")
          .reports("Could not parse json file d\nCould not write document: d\n")
          .exits(1),
      ToolCall("read_only_file_fails_the_save")
          .given("f.json", "{}", 0444)
          .withoutPrivileges()
          .call("--file f.json --addString k v")
          .reports("Could not write document: f.json\n")
          .exits(1),
      ToolCall("null_device_is_an_empty_file_that_can_be_saved")
          .call("--file /dev/null --addString k v")
          .reports("Could not parse json file /dev/null\n"),
      ToolCall("write_error_after_opening_is_a_success")
          .call("--file /dev/full --addString k v")
          .reports("Could not parse json file /dev/full\n"),
  };
}

const Table kUnparsableDocuments("UnparsableDocuments", unparsableRows);
const Table kDocumentLoading("DocumentLoading", loadingRows);
const Table kDocumentDisplay("DocumentDisplay", displayRows);
const Table kDocumentSaving("DocumentSaving", savingRows);

}  // namespace
}  // namespace kovalt::test
