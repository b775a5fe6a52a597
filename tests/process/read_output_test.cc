// Several reads in one call: one object that gathers their texts.

#include "tool_call.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> rows() {
  return {
      ToolCall("two_reads_gather_in_command_line_order")
          .given("d.json", R"({"a":"1st","b":"2nd"})")
          .call("--file d.json --read b --read a")
          .prints("{\n    \"b\": \"2nd\",\n    \"a\": \"1st\"\n}\n"),
      ToolCall("the_short_form_gathers_the_same")
          .given("d.json", R"({"a":"1st","b":"2nd"})")
          .call("-f d.json -r b -r a")
          .prints("{\n    \"b\": \"2nd\",\n    \"a\": \"1st\"\n}\n"),
      ToolCall("three_reads_gather_three_members")
          .given("d.json", R"({"a":"x","b":"y","c":"z"})")
          .call("-f d.json -r a --read b -r c")
          .prints("{\n    \"a\": \"x\",\n    \"b\": \"y\",\n    \"c\": \"z\"\n}\n"),
      ToolCall("every_gathered_value_is_a_string")
          .given("d.json", R"({"i":5,"f":2.50,"t":true,"n":null})")
          .call("-f d.json -r i -r f -r t -r n")
          .prints("{\n    \"i\": \"5\",\n    \"f\": \"2.5\",\n    \"t\": \"true\",\n    \"n\": \"null\"\n}\n"),
      ToolCall("objects_and_arrays_gather_as_escaped_compact_text")
          .given("d.json", R"({"o": {"k": "v", "l": {}}, "a": ["x", 1]})")
          .call("-f d.json -r o -r a")
          .prints(R"({
    "o": "{\"k\":\"v\",\"l\":{}}",
    "a": "[\"x\",1]"
}
)"),
      ToolCall("the_escapes_of_a_text_are_escaped_again")
          .given("d.json", R"({"q":"say \"hi\"","n":"1\n2","z":"x\u0000y"})")
          .call("-f d.json -r q -r n -r z")
          .prints(R"({
    "q": "say \\\"hi\\\"",
    "n": "1\\n2",
    "z": "x\\u0000y"
}
)"),
      ToolCall("bytes_that_are_not_ascii_gather_as_they_are")
          .given("d.json", "{\"\xC3\xA9\":\"\xC3\xBC\",\"b\":\"\xFF\"}")
          .call("-f d.json -r \xC3\xA9 -r b")
          .prints("{\n    \"\xC3\xA9\": \"\xC3\xBC\",\n    \"b\": \"\xFF\"\n}\n"),
      ToolCall("an_empty_string_gathers_as_an_empty_string")
          .given("d.json", R"({"a":"","b":{}})")
          .call("-f d.json -r a -r b")
          .prints("{\n    \"a\": \"\",\n    \"b\": \"{}\"\n}\n"),
      ToolCall("the_same_path_twice_gives_two_members")
          .given("d.json", R"({"a":"x"})")
          .call("-f d.json --read a --read a")
          .prints("{\n    \"a\": \"x\",\n    \"a\": \"x\"\n}\n"),
      ToolCall("a_member_is_named_by_the_whole_path")
          .given("d.json", R"({"a":{"b":{"":"x"}},"list":[{"id":7,"n":"y"},{"id":8,"n":"z"}]})")
          .call("-f d.json -r a.b. -r list.id=7.n -r list.id=8.n")
          .prints("{\n    \"a.b.\": \"x\",\n    \"list.id=7.n\": \"y\",\n    \"list.id=8.n\": \"z\"\n}\n"),
      ToolCall("an_empty_path_names_an_empty_member")
          .given("d.json", R"({"a":1})")
          .call({"-f", "d.json", "-r", "", "-r", "a"})
          .prints(R"({
    "": "{\"a\":1}",
    "a": "1"
}
)"),
      ToolCall("a_path_is_escaped_as_a_member_name")
          .given("d.json", R"({"say \"hi\"":"x","\t":"y"})")
          .call({"-f", "d.json", "-r", "say \"hi\"", "-r", "\t"})
          .prints(R"({
    "say \"hi\"": "x",
    "\t": "y"
}
)"),
      ToolCall("reads_of_different_kinds_gather_together")
          .given("d.json", R"({"a":"x","b":["p","q"]})")
          .call("--file d.json --read a --readArray b")
          .prints("{\n    \"a\": \"x\",\n    \"b\": \"p q\"\n}\n"),
      ToolCall("two_reads_of_which_none_is_a_plain_one_gather_too")
          .given("d.json", R"({"b":["p","q"],"l":[{"k":1},{"k":1}]})")
          .call("-f d.json -rac b -roac l k")
          .prints("{\n    \"b\": \"\\\"p\\\",\\\"q\\\"\",\n    \"l\": \"1(2)\"\n}\n"),
      ToolCall("two_missing_paths_give_two_reports_and_an_empty_object")
          .call("--read x --read y")
          .prints("{}\n")
          .reports("--read error : Path \"x\" does not exist\n--read error : Path \"y\" does not exist\n"),
      ToolCall("the_same_missing_path_is_reported_each_time")
          .call("-r x -r x")
          .prints("{}\n")
          .reports("--read error : Path \"x\" does not exist\n--read error : Path \"x\" does not exist\n"),
      ToolCall("a_missing_path_stops_no_other_read")
          .given("d.json", R"({"a":1,"c":3})")
          .call("-f d.json -r a -r b -r c")
          .prints("{\n    \"a\": \"1\",\n    \"c\": \"3\"\n}\n")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("two_reads_gather_even_when_one_of_them_is_missing")
          .given("d.json", R"({"a":1})")
          .call("-f d.json -r b -r a")
          .prints("{\n    \"a\": \"1\"\n}\n")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("a_failed_selection_leaves_its_member_out")
          .given("d.json", R"({"list":[{"id":1}],"a":1})")
          .call("-f d.json -r list.id=2 -r a")
          .prints("{\n    \"a\": \"1\"\n}\n")
          .reports("Kovalt path not found with refKey=refValue \"id=2\"\n"),
      ToolCall("reports_come_before_the_gathered_object")
          .given("d.json", R"({"a":1})")
          .call("-fd d.json -r a -r b")
          .withMergedStreams()
          .prints("{\n    \"a\": 1\n}\n--read error : Path \"b\" does not exist\n{\n    \"a\": \"1\"\n}\n"),
      ToolCall("a_displayed_document_comes_before_the_gathered_object")
          .given("d.json", R"({"a":1,"b":2})")
          .call("--fileDisplay d.json --read a --read b")
          .prints("{\n    \"a\": 1,\n    \"b\": 2\n}\n{\n    \"a\": \"1\",\n    \"b\": \"2\"\n}\n"),
      ToolCall("edits_between_reads_run_before_all_of_them")
          .call("-r a -as a x -r b -as b y -rm a")
          .prints("{\n    \"b\": \"y\"\n}\n")
          .reports("--read error : Path \"a\" does not exist\n"),
      ToolCall("gathering_adds_nothing_to_the_document")
          .given("d.json", R"({"a":1})")
          .call({"-f", "d.json", "-an", "b", "2", "-r", "a", "-r", "b", "-r", ""})
          .prints(R"({
    "a": "1",
    "b": "2",
    "": "{\"a\":1,\"b\":2}"
}
)")
          .leaves("d.json", "{\n  \"a\": 1,\n  \"b\": 2\n}"),
      ToolCall("reads_of_an_array_root_gather")
          .given("d.json", R"([1,"x"])")
          .call({"-f", "d.json", "-r", "", "-ra", ""})
          .prints(R"({
    "": "[1,\"x\"]",
    "": "1 x"
}
)"),
      ToolCall("an_unparsable_file_is_reported_before_the_missing_paths")
          .given("d.json", "")
          .call({"-f", "d.json", "-r", "a", "-r", ""})
          .prints("{\n    \"\": \"{}\"\n}\n")
          .reports("Could not parse json file d.json\n--read error : Path \"a\" does not exist\n"),
  };
}

const Table kReadOutput("ReadOutput", rows);

}  // namespace
}  // namespace kovalt::test
