// The array reads: one flat line without brackets, by commas or spaces, with or without quotes.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kMixed = R"({"a": ["a", "b c", 1, true, null]})";

std::vector<ToolCall> rows() {
  return {
      ToolCall("string_in_brackets_counts_as_an_array_for_the_comma_form")
          .given("d.json", R"({"a":"[x,y]"})")
          .call("-f d.json -rac a")
          .prints("x,y\n"),
      ToolCall("an_empty_array_prints_an_empty_line")
          .given("d.json", R"({"a":[ ]})")
          .call("-f d.json -ra a")
          .prints("\n"),
      ToolCall("an_empty_array_by_commas_prints_an_empty_line")
          .given("d.json", R"({"a":[]})")
          .call("-f d.json -rac a")
          .prints("\n"),
      ToolCall("one_number_prints_alone").given("d.json", R"({"a":[5]})").call("-f d.json -ras a").prints("5\n"),
      ToolCall("one_empty_string_prints_its_quotes")
          .given("d.json", R"({"a":[""]})")
          .call("-f d.json -ras a")
          .prints("\"\"\n"),
      ToolCall("one_empty_string_without_quotes_prints_an_empty_line")
          .given("d.json", R"({"a":[""]})")
          .call("-f d.json -rasq a")
          .prints("\n"),
      ToolCall("empty_strings_without_quotes_leave_their_separators")
          .given("d.json", R"({"a":["","",""]})")
          .call("-f d.json -racq a")
          .prints(",,\n"),
      ToolCall("numbers_without_any_quote_print_by_spaces")
          .given("d.json", R"({"a":[1,2,3]})")
          .call("-f d.json -ras a")
          .prints("1 2 3\n"),
      ToolCall("numbers_print_by_commas")
          .given("d.json", R"({"a":[ 1 , 2 , 3 ]})")
          .call("-f d.json -rac a")
          .prints("1,2,3\n"),
      ToolCall("numbers_print_in_the_writers_form")
          .given("d.json", R"({"a":[7.0,1e2,-5,18446744073709551615]})")
          .call("-f d.json -ra a")
          .prints("7.0 100.0 -5 18446744073709551615\n"),
      ToolCall("a_comma_inside_a_quoted_string_survives")
          .given("d.json", R"({"a":["a,b","c"]})")
          .call("-f d.json -ras a")
          .prints("\"a,b\" \"c\"\n"),
      ToolCall("a_comma_inside_a_string_survives_the_removal_of_quotes")
          .given("d.json", R"({"a":["a,b","c"]})")
          .call("-f d.json -rasq a")
          .prints("a,b c\n"),
      ToolCall("a_string_that_is_a_comma_survives")
          .given("d.json", R"({"a":[",",","]})")
          .call("-f d.json -ras a")
          .prints("\",\" \",\"\n"),
      ToolCall("spaces_inside_strings_stay")
          .given("d.json", R"({"a":[" x  y ","z"]})")
          .call("-f d.json -racq a")
          .prints(" x  y ,z\n"),
      ToolCall("nested_arrays_and_objects_lose_their_commas_too")
          .given("d.json", R"({"a":[[1,2],{"k":"v"}]})")
          .call("-f d.json -ras a")
          .prints("[1 2] {\"k\":\"v\"}\n"),
      ToolCall("nested_quotes_go_with_the_outer_ones")
          .given("d.json", R"({"a":[[1,2],{"k":"v"}]})")
          .call("-f d.json -rasq a")
          .prints("[1 2] {k:v}\n"),
      ToolCall("by_commas_nested_values_stay_whole")
          .given("d.json", R"({"a":[[1,2],{"k":"v"}]})")
          .call("-f d.json -rac a")
          .prints("[1,2],{\"k\":\"v\"}\n"),
      ToolCall("by_commas_without_quotes_nested_values_lose_theirs")
          .given("d.json", R"({"a":[[1,2],{"k":"v"}]})")
          .call("-f d.json -racq a")
          .prints("[1,2],{k:v}\n"),
      ToolCall("members_of_a_nested_object_are_parted_by_spaces")
          .given("d.json", R"({"a":[{"k":1,"l":"x,y"}]})")
          .call("-f d.json -ras a")
          .prints("{\"k\":1 \"l\":\"x,y\"}\n"),
      ToolCall("only_the_outermost_brackets_go")
          .given("d.json", R"({"a":[[[1],[2]]]})")
          .call("-f d.json -ra a")
          .prints("[[1] [2]]\n"),
      ToolCall("an_escaped_quote_turns_the_guard_over")
          .given("d.json", R"({"a":["a\"b,c","d"]})")
          .call("-f d.json -ras a")
          .prints("\"a\\\"b c\",\"d\"\n"),
      ToolCall("an_escaped_quote_goes_and_leaves_its_backslash")
          .given("d.json", R"({"a":["a\"b,c","d"]})")
          .call("-f d.json -rasq a")
          .prints("a\\b c,d\n"),
      ToolCall("an_escaped_quote_protects_all_later_separators")
          .given("d.json", R"({"a":["5\" disk","b","c"]})")
          .call("-f d.json -ras a")
          .prints("\"5\\\" disk\",\"b\",\"c\"\n"),
      ToolCall("a_pair_of_escaped_quotes_turns_the_guard_back")
          .given("d.json", R"({"a":["say \"x,y\"","b,c","d"]})")
          .call("-f d.json -ras a")
          .prints("\"say \\\"x y\\\"\" \"b,c\" \"d\"\n"),
      ToolCall("an_escaped_backslash_before_the_closing_quote_is_no_escaped_quote")
          .given("d.json", R"({"a":["x\\","y"]})")
          .call("-f d.json -ras a")
          .prints("\"x\\\\\" \"y\"\n"),
      ToolCall("by_commas_escapes_stay_as_written")
          .given("d.json", R"({"a":["a\"b,c","\n\\\u0001"]})")
          .call("-f d.json -rac a")
          .prints("\"a\\\"b,c\",\"\\n\\\\\\u0001\"\n"),
      ToolCall("by_commas_without_quotes_every_quote_goes")
          .given("d.json", R"({"a":["\"q\"","\n"]})")
          .call("-f d.json -racq a")
          .prints("\\q\\,\\n\n"),
      ToolCall("bytes_that_are_not_ascii_pass")
          .given("d.json", "{\"a\":[\"\xC3\xA9\",\"\xFF\"]}")
          .call("-f d.json -ra a")
          .prints("\xC3\xA9 \xFF\n"),
      ToolCall("a_string_in_brackets_counts_as_an_array")
          .given("d.json", R"({"a":"[x,y]"})")
          .call("-f d.json -ras a")
          .prints("x y\n"),
      ToolCall("a_string_in_brackets_loses_only_them_by_commas")
          .given("d.json", R"({"a":"[x,y]"})")
          .call("-f d.json -racq a")
          .prints("x,y\n"),
      ToolCall("a_string_of_two_brackets_prints_an_empty_line")
          .given("d.json", R"({"a":"[]"})")
          .call("-f d.json -ra a")
          .prints("\n"),
      ToolCall("a_string_of_one_opening_bracket_stays")
          .given("d.json", R"({"a":"["})")
          .call("-f d.json -ra a")
          .prints("[\n"),
      ToolCall("a_string_of_one_closing_bracket_stays")
          .given("d.json", R"({"a":"]"})")
          .call("-f d.json -ra a")
          .prints("]\n"),
      ToolCall("a_string_that_only_opens_a_bracket_stays")
          .given("d.json", R"({"a":"[x,y"})")
          .call("-f d.json -ra a")
          .prints("[x,y\n"),
      ToolCall("a_string_that_only_closes_a_bracket_stays")
          .given("d.json", R"({"a":"x,y]"})")
          .call("-f d.json -ra a")
          .prints("x,y]\n"),
      ToolCall("a_string_around_one_comma_prints_one_space")
          .given("d.json", R"({"a":"[,]"})")
          .call("-f d.json -ras a")
          .prints(" \n"),
      ToolCall("a_last_comma_becomes_a_space_where_no_quote_is")
          .given("d.json", R"({"a":"[x,]"})")
          .call("-f d.json -ras a")
          .prints("x \n"),
      ToolCall("a_last_comma_is_never_looked_at_where_a_quote_is")
          .given("d.json", R"({"a":"[\"x\",y,]"})")
          .call("-f d.json -ras a")
          .prints("\\\"x\\\" y,\n"),
      ToolCall("a_last_comma_stays_when_quotes_go")
          .given("d.json", R"({"a":"[\"x\",y,]"})")
          .call("-f d.json -rasq a")
          .prints("\\x\\ y,\n"),
      ToolCall("an_object_prints_unchanged_by_commas")
          .given("d.json", R"({"o":{"a":1,"b":["x","y"]}})")
          .call("-f d.json -rac o")
          .prints("{\"a\":1,\"b\":[\"x\",\"y\"]}\n"),
      ToolCall("an_object_prints_unchanged_by_commas_without_quotes")
          .given("d.json", R"({"o":{"a":1,"b":["x","y"]}})")
          .call("-f d.json -racq o")
          .prints("{\"a\":1,\"b\":[\"x\",\"y\"]}\n"),
      ToolCall("an_object_prints_unchanged_by_spaces")
          .given("d.json", R"({"o":{"a":1,"b":["x","y"]}})")
          .call("-f d.json -ras o")
          .prints("{\"a\":1,\"b\":[\"x\",\"y\"]}\n"),
      ToolCall("an_object_prints_unchanged_by_spaces_without_quotes")
          .given("d.json", R"({"o":{"a":1,"b":["x","y"]}})")
          .call("-f d.json -rasq o")
          .prints("{\"a\":1,\"b\":[\"x\",\"y\"]}\n"),
      ToolCall("a_plain_string_keeps_its_commas_and_escaped_quotes")
          .given("d.json", R"({"s":"say \"x,y\""})")
          .call("-f d.json -ra s")
          .prints("say \\\"x,y\\\"\n"),
      ToolCall("a_number_prints_as_read_prints_it")
          .given("d.json", R"({"n":7.0})")
          .call("-f d.json -ras n")
          .prints("7.0\n"),
      ToolCall("null_prints_as_read_prints_it")
          .given("d.json", R"({"n":null})")
          .call("-f d.json -racq n")
          .prints("null\n"),
      ToolCall("a_missing_path_is_reported_as_a_plain_read_reports_it")
          .call("--readArrayComma a.b")
          .reports("--read error : Path \"a.b\" does not exist\n"),
      ToolCall("a_missing_path_prints_nothing_for_the_space_form")
          .given("d.json", R"({"a":[1]})")
          .call("-f d.json -ra a.0")
          .reports("--read error : Path \"a.0\" does not exist\n"),
      ToolCall("a_failed_selection_gives_its_own_report")
          .given("d.json", R"({"l":[{"id":1,"t":[1,2]}]})")
          .call("-f d.json -rasq l.id=2.t")
          .reports("Kovalt path not found with refKey=refValue \"id=2\"\n"),
      ToolCall("an_array_behind_a_selection_is_read")
          .given("d.json", R"({"l":[{"id":1,"t":[1,2]}]})")
          .call("-f d.json -rasq l.id=1.t")
          .prints("1 2\n"),
      ToolCall("an_empty_path_reads_an_array_root")
          .given("d.json", R"(["x",2])")
          .call({"-f", "d.json", "-ras", ""})
          .prints("\"x\" 2\n"),
      ToolCall("the_reworked_texts_are_gathered")
          .given("d.json", kMixed)
          .call("-f d.json -rac a -racq a -ras a -rasq a -ra a")
          .prints(R"({
    "a": "\"a\",\"b c\",1,true,null",
    "a": "a,b c,1,true,null",
    "a": "\"a\" \"b c\" 1 true null",
    "a": "a b c 1 true null",
    "a": "a b c 1 true null"
}
)"),
      ToolCall("an_empty_array_gathers_an_empty_string_and_a_missing_one_nothing")
          .given("d.json", R"({"a":[]})")
          .call("-f d.json -ra a -rac b")
          .prints("{\n    \"a\": \"\"\n}\n")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("a_displayed_document_comes_before_the_line")
          .given("d.json", R"({"a":["x","y"]})")
          .call("--fileDisplay d.json --readArrayComma a")
          .prints("{\n    \"a\": [\n        \"x\",\n        \"y\"\n    ]\n}\n\"x\",\"y\"\n"),
      ToolCall("an_array_replaced_and_saved_reads_as_it_is_now")
          .given("d.json", R"({"a":[1,2]})")
          .call("-f d.json -aan a 3,4 -ra a")
          .prints("3 4\n")
          .leaves("d.json", "{\n  \"a\": [\n    3,\n    4\n  ]\n}"),
      ToolCall("merged_arrays_read_joined")
          .given("d.json", R"({"a":["x"]})")
          .given("more.json", R"({"a":["y","x"]})")
          .call("-fd d.json -af more.json -racq a")
          .prints("{\n    \"a\": [\n        \"x\",\n        \"y\",\n        \"x\"\n    ]\n}\nx,y,x\n")
          .leaves("d.json", "{\n  \"a\": [\n    \"x\",\n    \"y\",\n    \"x\"\n  ]\n}"),
      ToolCall("a_rejected_boolean_word_reads_as_null")
          .call("-aab k TRUE maybe -ra k")
          .prints("true null\n")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, [ true maybe ] rejected.\n"),
      ToolCall("an_array_added_without_values_prints_an_empty_line").call("-aa k -ras k").prints("\n"),
      ToolCall("a_removed_array_is_missing")
          .call("-aa k x -rm k -ra k")
          .reports("--read error : Path \"k\" does not exist\n"),
  };
}

const Table kArrayReading("ArrayReading", rows);

}  // namespace
}  // namespace kovalt::test
