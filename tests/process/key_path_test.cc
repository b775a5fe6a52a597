// How the text of a key path is cut into steps, and how a missing path is shown in messages and results.

#include "tool_call.h"

namespace kovalt::test {
namespace {

std::string readError(const std::string& path) { return "--read error : Path \"" + path + "\" does not exist\n"; }

std::vector<ToolCall> rows() {
  return {
      // No step at all.
      ToolCall("empty_path_reads_the_root")
          .given("f.json", R"({"a": {"b": 1}})")
          .call({"--file", "f.json", "--read", ""})
          .prints("{\"a\":{\"b\":1}}\n"),
      ToolCall("empty_path_adds_at_the_root").call({"--addString", "", "x"}).prints("\"x\"\n"),
      ToolCall("empty_path_has_an_empty_text")
          .given("f.json", R"({"a": 1})")
          .call({"--file", "f.json", "--read", "", "--read", "a"})
          .prints(R"({
    "": "{\"a\":1}",
    "a": "1"
}
)"),

      // Member steps.
      ToolCall("dots_separate_member_steps")
          .given("f.json", R"({"a": {"b": {"c": "deep"}}})")
          .call("--file f.json --read a.b.c")
          .prints("deep\n"),
      ToolCall("text_joins_the_steps_again").call("--read a.b.c").reports(readError("a.b.c")),
      ToolCall("one_step_without_a_dot").given("f.json", R"({"a": 5})").call("-f f.json -r a").prints("5\n"),
      ToolCall("digits_are_no_array_index")
          .given("f.json", R"({"items": ["zero", "one"]})")
          .call("--file f.json --read items.0")
          .reports(readError("items.0")),
      ToolCall("digits_name_a_member")
          .given("f.json", R"({"items": {"0": "zero"}})")
          .call("--file f.json --read items.0")
          .prints("zero\n"),
      ToolCall("digits_are_added_as_a_member")
          .call({"--addString", "items.0", "x", "--read", ""})
          .prints("{\"items\":{\"0\":\"x\"}}\n"),
      ToolCall("brackets_are_no_array_index")
          .call({"--addString", "l[0]", "x", "--read", ""})
          .prints("{\"l[0]\":\"x\"}\n"),

      // Empty steps name the member with the empty name.
      ToolCall("empty_step_in_the_middle_is_added")
          .call({"--addString", "a..b", "x", "--read", ""})
          .prints("{\"a\":{\"\":{\"b\":\"x\"}}}\n"),
      ToolCall("empty_first_step_is_added")
          .call({"--addString", ".a", "x", "--read", ""})
          .prints("{\"\":{\"a\":\"x\"}}\n"),
      ToolCall("empty_last_step_is_added")
          .call({"--addString", "a.", "x", "--read", ""})
          .prints("{\"a\":{\"\":\"x\"}}\n"),
      ToolCall("lone_dot_is_two_empty_steps")
          .call({"--addString", ".", "x", "--read", ""})
          .prints("{\"\":{\"\":\"x\"}}\n"),
      ToolCall("two_dots_are_three_empty_steps")
          .call({"--addString", "..", "x", "--read", ""})
          .prints("{\"\":{\"\":{\"\":\"x\"}}}\n"),
      ToolCall("empty_step_in_the_middle_is_read")
          .given("f.json", R"({"a": {"": {"b": "inner"}, "b": "outer"}})")
          .call("--file f.json --read a..b")
          .prints("inner\n"),
      ToolCall("empty_step_is_not_skipped")
          .given("f.json", R"({"a": {"b": 1}})")
          .call("--file f.json --read a..b")
          .reports(readError("a..b")),
      ToolCall("trailing_empty_step_is_not_skipped")
          .given("f.json", R"({"a": {"b": 1}})")
          .call("--file f.json --read a.")
          .reports(readError("a.")),
      ToolCall("leading_empty_step_is_not_skipped")
          .given("f.json", R"({"a": 1})")
          .call("--file f.json --read .a")
          .reports(readError(".a")),
      ToolCall("lone_dot_is_not_the_root")
          .given("f.json", R"({"a": 1})")
          .call("--file f.json --read .")
          .reports(readError(".")),
      ToolCall("texts_with_empty_steps_name_the_results")
          .given("f.json", R"({"": {"": 1, "a": 2}, "a": {"": {"b": 3}}, "z": {"": 4}})")
          .call("--file f.json --read . --read .a --read a..b --read z.")
          .prints(R"({
    ".": "1",
    ".a": "2",
    "a..b": "3",
    "z.": "4"
}
)"),
      ToolCall("empty_step_is_removed")
          .given("f.json", R"({"a":{"":1,"b":2}})")
          .call("--file f.json --remove a.")
          .leaves("f.json", "{\n  \"a\": {\n    \"b\": 2\n  }\n}"),

      // A name with a dot cannot be addressed: nothing escapes or quotes.
      ToolCall("dotted_name_cannot_be_read")
          .given("f.json", R"({"a.b": 1})")
          .call("--file f.json --read a.b")
          .reports(readError("a.b")),
      ToolCall("backslash_escapes_no_dot")
          .call({"--addString", "a\\.b", "x", "--read", ""})
          .prints("{\"a\\\\\":{\"b\":\"x\"}}\n"),
      ToolCall("quotes_protect_no_dot")
          .call({"--addString", "\"a.b\"", "x", "--read", ""})
          .prints("{\"\\\"a\":{\"b\\\"\":\"x\"}}\n"),

      // Steps are taken verbatim.
      ToolCall("spaces_are_kept")
          .call({"--addString", " a . b ", "x", "--read", ""})
          .prints("{\" a \":{\" b \":\"x\"}}\n"),
      ToolCall("letter_case_matters")
          .given("f.json", R"({"key": 1})")
          .call("--file f.json --read Key")
          .reports(readError("Key")),
      ToolCall("prefix_of_a_name_does_not_match")
          .given("f.json", R"({"keys": 1})")
          .call("--file f.json --read key")
          .reports(readError("key")),
      ToolCall("non_ascii_name_is_compared_by_bytes")
          .given("f.json", R"({"\u00e9t\u00e9": "summer"})")
          .call("--file f.json --read \xC3\xA9t\xC3\xA9")
          .prints("summer\n"),
      ToolCall("escape_sequence_in_a_step_is_not_decoded")
          .call({"--addString", "\\u0041", "x", "--read", ""})
          .prints("{\"\\\\u0041\":\"x\"}\n"),
      ToolCall("name_holding_a_nul_is_another_name")
          .given("f.json", R"({"a\u0000b": 1})")
          .call("--file f.json --read a")
          .reports(readError("a")),
      ToolCall("missing_path_is_shown_as_typed").call({"--read", " A..\"b\"\t."}).reports(readError(" A..\"b\"\t.")),

      // Selection steps are cut at their first equals sign.
      ToolCall("selection_value_keeps_later_equals_signs")
          .given("f.json", R"({"pools": [{"name": "alpha", "size": 1}, {"name": "alpha=beta", "size": 2}]})")
          .call("--file f.json --read pools.name=alpha=beta.size")
          .prints("2\n"),
      ToolCall("selection_key_ends_at_the_first_equals_sign")
          .given("f.json", R"({"pools": [{"name=alpha": "beta", "size": 1}]})")
          .call("--file f.json --read pools.name=alpha=beta.size")
          .reports("Kovalt path not found with refKey=refValue \"name=alpha=beta\"\n"),
      ToolCall("selection_key_may_be_empty")
          .given("f.json", R"({"list": [{"id": "x", "n": 1}, {"": "x", "n": 2}]})")
          .call("--file f.json --read list.=x.n")
          .prints("2\n"),
      ToolCall("selection_value_may_be_empty")
          .given("f.json", R"({"list": [{"id": "x", "n": 1}, {"id": "", "n": 2}]})")
          .call("--file f.json --read list.id=.n")
          .prints("2\n"),
      ToolCall("selection_key_and_value_may_both_be_empty")
          .given("f.json", R"({"list": [{"": "x", "n": 1}, {"": "", "n": 2}]})")
          .call("--file f.json --read list.=.n")
          .prints("2\n"),
      ToolCall("double_equals_selects_a_value_with_an_equals_sign")
          .given("f.json", R"({"list": [{"id": "x", "n": 1}, {"id": "=x", "n": 2}]})")
          .call("--file f.json --read list.id==x.n")
          .prints("2\n"),
      ToolCall("dot_ends_a_selection_value")
          .given("f.json", R"({"list": [{"v": 2.5}, {"v": 2, "5": "cut"}]})")
          .call("--file f.json --read list.v=2.5")
          .prints("cut\n"),
      ToolCall("selection_text_names_a_result")
          .given("f.json", R"({"list": [{"id": "a=b", "n": 1}]})")
          .call("--file f.json --read list.id=a=b.n --read list")
          .prints(R"({
    "list.id=a=b.n": "1",
    "list": "[{\"id\":\"a=b\",\"n\":1}]"
}
)"),
      ToolCall("member_named_with_an_equals_sign_cannot_be_read")
          .given("f.json", R"({"a=b": 1})")
          .call("--file f.json --read a=b")
          .reports("Kovalt path not found with refKey=refValue \"a=b\"\n"),
      ToolCall("removal_takes_an_equals_sign_as_part_of_a_name")
          .given("f.json", R"({"a=b":1,"c":2})")
          .call("--file f.json --remove a=b")
          .leaves("f.json", "{\n  \"c\": 2\n}"),
  };
}

const Table kKeyPath("KeyPath", rows);

}  // namespace
}  // namespace kovalt::test
