// How the text of a key path is split into steps, and how it appears in messages and results.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> memberSteps() {
  return {
      reading("empty_path_is_the_root", R"({"a": {"b": 1}})", "").printsLine(R"({"a":{"b":1}})"),
      reading("dots_separate_steps", R"({"a":{"b":{"c":"deep"}}})", "a.b.c").printsLine("deep"),
      reading("digits_name_a_member", R"({"items":{"0":"zero"}})", "items.0").printsLine("zero"),
      reading("digits_are_not_an_index", R"({"items":["zero"]})", "items.0").reports(readError("items.0")),
      added("added_digits_and_brackets_name_members", "-as l.0 x -as l[0] y", R"({"l":{"0":"x"},"l[0]":"y"})"),

      // Empty steps name members with the empty name.
      added("empty_steps_are_added", "-as a..b 1 -as .c 2 -as d. 3 -as . 4",
            R"({"a":{"":{"b":"1"}},"":{"c":"2","":"4"},"d":{"":"3"}})"),
      ToolCall("empty_steps_are_read")
          .given("f.json", R"({"": {"": 1, "a": 2}, "a": {"": {"b": 3}}, "z": {"": 4}})")
          .call("--file f.json --read . --read .a --read a..b --read z.")
          .prints(R"({
    ".": "1",
    ".a": "2",
    "a..b": "3",
    "z.": "4"
}
)"),
      ToolCall("empty_steps_are_not_skipped")
          .given("f.json", R"({"a":{"b":1}})")
          .call("--file f.json --read . --read .a --read a..b --read a.")
          .printsLine("{}")
          .reports(readError(".") + readError(".a") + readError("a..b") + readError("a.")),

      // The text of a step is the whole name.
      reading("dot_in_a_name_is_not_reached", R"({"a.b":1})", "a.b").reports(readError("a.b")),
      added("nothing_protects_a_dot", R"(-as a\.b x -as "c.d" y)", R"({"a\\":{"b":"x"},"\"c":{"d\"":"y"}})"),
      added("spaces_and_escapes_are_kept", R"(-as ' a . \u0041 ' x)", R"({" a ":{" \\u0041 ":"x"}})"),
      added("any_other_bytes", "-as max-age--s 1 -as @t/p 2 -as 100%s 3 -as größe 4 -as 😀 5 -as \xff\t\" 6",
            "{\"max-age--s\":\"1\",\"@t/p\":\"2\",\"100%s\":\"3\",\"größe\":\"4\",\"😀\":\"5\",\"\xff\\t\\\"\":\"6\"}"),
      reading("names_are_compared_whole", R"({"Key":1,"keys":2,"key\u0000":3})", "key").reports(readError("key")),
      reading("escaped_names_are_compared_decoded", R"({"\u00e9t\u00e9": "summer"})", "été").printsLine("summer"),
      ToolCall("very_long_name")
          .call("-as " + std::string(100000, 'x') + " v -r " + std::string(100000, 'x'))
          .printsLine("v"),
      reading("path_is_reported_as_typed", "{}", " A..\"b\"\t\\n 100%s größe.")
          .reports(readError(" A..\"b\"\t\\n 100%s größe.")),
  };
}

std::vector<ToolCall> selectionSteps() {
  return {
      reading("value_keeps_later_equals_signs", R"({"l":[{"name":"a","n":1},{"name":"a=b","n":2}]})", "l.name=a=b.n")
          .printsLine("2"),
      reading("key_ends_at_the_first_equals_sign", R"({"l":[{"name=a":"b","n":1}]})", "l.name=a=b.n")
          .reports(notFound("name=a=b")),
      reading("key_is_empty", R"({"l":[{"id":"x","n":1},{"":"x","n":2}]})", "l.=x.n").printsLine("2"),
      reading("value_is_empty", R"({"l":[{"id":"x","n":1},{"id":"","n":2}]})", "l.id=.n").printsLine("2"),
      reading("key_and_value_are_empty", R"({"l":[{"":"x","n":1},{"":"","n":2}]})", "l.=.n").printsLine("2"),
      reading("value_begins_with_an_equals_sign", R"({"l":[{"id":"x","n":1},{"id":"=x","n":2}]})", "l.id==x.n")
          .printsLine("2"),
      reading("dot_ends_the_value", R"({"l":[{"v":2.5},{"v":2,"5":"cut"}]})", "l.v=2.5").printsLine("cut"),
      reading("equals_sign_in_a_name_is_not_reached", R"({"a=b":1})", "a=b").reports(notFound("a=b")),
  };
}

const Table kMemberSteps("MemberSteps", memberSteps);
const Table kSelectionSteps("SelectionSteps", selectionSteps);

}  // namespace
}  // namespace kovalt::test
