// Selected fields of an array of objects as one line of counted, sorted records.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kLetters = R"({"l":[{"a":"A","b":"B","c":"C","d":"D"}]})";

/// A concatenation of the array l, whose fields and separators are `list`, in a file that contains `content`.
ToolCall concatenation(const std::string& name, const std::string& content, const std::string& option,
                       const std::string& list) {
  return ToolCall(name).given("f.json", content).call("-f f.json " + option + " l " + list);
}

std::vector<ToolCall> fields() {
  return {
      concatenation("order_of_the_fields", R"({"l":[{"id":0,"port":2099},{"id":1,"port":3002}]})", "-roac",
                    "port id id")
          .printsLine("2099 0 0 3002 1 1"),
      concatenation("values_are_printed_as_read_prints_them",
                    R"({"l":[{"s":"x y","d":7.0,"t":true,"n":null,"o":{"k": "v"},"a":[1, "b"],"q":"\"\n\\","e":""}]})",
                    "-roacs", "s d t n o a q e |")
          .printsLine(R"(x y|7.0|true|null|{"k":"v"}|[1,"b"]|\"\n\\|)"),
      concatenation("records_are_not_escaped", R"({"l":[{"a":"x/y","b":"z w"}]})", "-roacs", "a b /")
          .printsLine("x/y/z w"),
      concatenation("first_of_equal_names", R"({"l":[{"a":1,"a":2}],"l":[]})", "-roac", "a").printsLine("1"),
      concatenation("fields_of_several_steps", R"({"l":[{"net":{"host":"h","port":1}},{"net":{"host":"k","port":2}}]})",
                    "-roacs", "net.host net.port :")
          .printsLine("h:1 k:2"),
      concatenation("field_that_selects",
                    R"({"l":[{"p":[{"n":"x","v":80},{"n":"y","v":90}]},{"p":[{"n":"y","v":91}]}]})", "-roac", "p.n=y.v")
          .printsLine("90 91"),
      concatenation("field_that_selects_in_an_array", R"({"l":[[{"id":1,"v":"x"}],[{"id":2,"v":"y"}]]})", "-roac",
                    "id=1.v")
          .printsLine(" x")
          .reports(notFound("id=1")),
      ToolCall("array_after_a_selection")
          .given("f.json", R"({"p":[{"n":"x","l":[{"id":1}]},{"n":"y","l":[{"id":2},{"id":3}]}]})")
          .call("-f f.json -roac p.n=y.l id")
          .printsLine("2 3"),
      ToolCall("root_array").given("f.json", R"([{"id":2},{"id":1}])").call("-f f.json -roac '' id").printsLine("1 2"),

      // Missing fields.
      concatenation("missing_field_leaves_its_separators", R"({"l":[{"a":0,"c":1},{"a":1,"b":"k","c":2}]})", "-roac",
                    "a b c")
          .printsLine("0  1 1 k 2")
          .reports(readError("b")),
      concatenation("missing_fields_are_reported_for_each_element", R"({"l":[{"a":1},{"b":2},{}]})", "-roacs", "b a /")
          .printsLine("/ /1 2/")
          .reports(readError("b") + readError("a") + readError("b") + readError("a")),
      concatenation("missing_and_empty_fields_are_equal", R"({"l":[{"a":1,"b":""},{"a":1},{"a":1}]})", "-roac", "a b")
          .printsLine("1 (3)")
          .reports(readError("b") + readError("b")),
      concatenation("missing_field_is_reported_by_its_whole_path", R"({"l":[{"net":{}}]})", "-roac", "net.host")
          .printsLine("")
          .reports(readError("net.host")),
      concatenation("elements_that_are_not_objects", R"({"l":[1,"x",null,{"a":1}]})", "-roac", "a")
          .printsLine("(3) 1")
          .reports(readError("a") + readError("a") + readError("a")),
      concatenation("failed_selection_in_a_field", R"({"l":[{"p":[3]},{"p":[]},{"p":[{"id":1}]},{}]})", "-roac",
                    "p.id=1")
          .printsLine(R"((3) {"id":1})")
          .reports(notComparable("id=1") + notFound("id=1") + readError("p.id=1")),

      // Anything but an array prints nothing.
      concatenation("empty_array", R"({"l":[]})", "-roac", "x").printsLine(""),
      concatenation("object", R"({"l":{"x":"a"}})", "-roac", "x"),
      concatenation("string_in_brackets", R"({"l":"[1]"})", "-roacs", "x /"),
      ToolCall("values_that_are_not_arrays").call("-an i 1 -ao o -roac i x -roacs o x /").printsLine("{}"),
      concatenation("missing_array_is_reported_once", "{}", "-roacs", "x y z /").reports(readError("l")),
      ToolCall("failed_selection_of_the_array")
          .given("f.json", R"({"l":[{"id":2,"m":[]}]})")
          .call("-f f.json -roac l.id=1.m x")
          .reports(notFound("id=1")),
  };
}

std::vector<ToolCall> records() {
  return {
      concatenation("equal_records_are_counted",
                    R"({"l":[{"x":"b"},{"x":"a"},{"x":"b"},{"x":"c"},{"x":"a"},{"x":"a"}]})", "-roac", "x")
          .printsLine("a(3) b(2) c"),
      concatenation("whole_records_are_counted", R"({"l":[{"a":"x","b":1},{"a":"x","b":2},{"a":"x","b":1}]})", "-roacs",
                    "a b :")
          .printsLine("x:1(2) x:2"),
      concatenation("records_of_equal_bytes_are_equal", R"({"l":[{"a":"x y","b":1},{"a":"x","b":"y 1"}]})", "-roac",
                    "a b")
          .printsLine("x y 1(2)"),
      concatenation("number_and_string_of_equal_bytes_are_equal", R"({"l":[{"x":1},{"x":"1"},{"x":1.0}]})", "-roac",
                    "x")
          .printsLine("1(2) 1.0"),
      concatenation("record_that_looks_counted", R"*({"l":[{"x":"a(2)"},{"x":"a"},{"x":"a"}]})*", "-roac", "x")
          .printsLine("a(2) a(2)"),
      concatenation("count_is_not_part_of_the_order", R"({"l":[{"x":"a!"},{"x":"a"},{"x":"a"}]})", "-roac", "x")
          .printsLine("a(2) a!"),
      ToolCall("count_of_two_digits").call("-aan l 7,7,7,7,7,7,7,7,7,7,7,7 -roac l ,").printsLine("7(12)"),
      concatenation("bytes_are_sorted_as_unsigned",
                    "{\"l\":[{\"x\":\"\xFF\"},{\"x\":\"b\"},{\"x\":\"\x80\"},{\"x\":\"B\"},{\"x\":\"\"},{\"x\":\"10\"},"
                    "{\"x\":9},{\"x\":-1},{\"x\":\"ab\"},{\"x\":\"a\"},{\"x\":\"a\xFF\"}]}",
                    "-roac", "x")
          .printsLine(" -1 10 9 B a ab a\xFF b \x80 \xFF"),
      concatenation("whole_records_are_sorted", R"({"l":[{"a":"x","b":1},{"a":"xy","b":1}]})", "-roacs", "a b ~")
          .printsLine("xy~1 x~1"),
      ToolCall("elements_of_merged_files_are_counted_together")
          .given("one.json", R"({"l":[{"x":"a"}]})")
          .given("two.json", R"({"l":[{"x":"b"},{"x":"a"}]})")
          .call("-af one.json -af two.json -roac l x")
          .printsLine("a(2) b"),
  };
}

std::vector<ToolCall> separators() {
  return {
      concatenation("space_by_default", kLetters, "-roac", "a b c d").printsLine("A B C D"),
      concatenation("one_separator_is_repeated", kLetters, "-roacs", "a b c d /").printsLine("A/B/C/D"),
      concatenation("last_of_two_separators_is_repeated", kLetters, "-roacs", "a b c d /:").printsLine("A/B:C:D"),
      concatenation("as_many_separators_as_needed", kLetters, "-roacs", "a b c d /:-").printsLine("A/B:C-D"),
      concatenation("more_separators_than_needed", kLetters, "-roacs", "a b c /:-+").printsLine("A/B:C"),
      concatenation("separator_of_one_field", kLetters, "-roacs", "a /").printsLine("A"),
      concatenation("no_separator", kLetters, "-roacs", "a,b,c,,").printsLine("ABC"),
      concatenation("no_separator_of_one_field", kLetters, "-roacs", "a,,").printsLine("A"),
      concatenation("spaces", kLetters, "-roacs", "a b c '  '").printsLine("A B C"),
      concatenation("quote_and_backslash", kLetters, "-roacs", "a b c \"\\").printsLine("A\"B\\C"),
      concatenation("bytes_of_one_letter", kLetters, "-roacs", "a b c \xC3\xA9")
          .printsLine("A\xC3"
                      "B\xA9"
                      "C"),
      concatenation("last_field_is_mistaken_for_separators", R"({"l":[{"id":0,"host":"h","port":1}]})", "-roacs",
                    "id host port")
          .printsLine("0ph"),
      concatenation("separators_are_escaped_among_several_reads", kLetters, "-roacs", "a b c \"\\ -r l.a=A.a")
          .prints(R"({
    "l": "A\"B\\C",
    "l.a=A.a": "A"
}
)"),
  };
}

/// Fields and separators are a list of values, which ValueLists describes.
std::vector<ToolCall> lists() {
  return {
      concatenation("one_value_is_split_into_fields", kLetters, "--readObjectArrayConcat", "a,b,c,")
          .printsLine("A B C"),
      concatenation("one_value_is_split_into_fields_and_separators", kLetters, "-roacs", "a,b,c,-+")
          .printsLine("A-B+C"),
      concatenation("comma_after_the_separators", kLetters, "-roacs", "a,b,/,").printsLine("A/B"),
      concatenation("comma_as_separator", kLetters, "-roacs", "a b c ,/").printsLine("A,B/C"),
      concatenation("two_values_are_not_split", R"({"l":[{"a,b":"x","a":"A","c":"C"}]})", "-roac", "a,b c")
          .printsLine("x C"),
      concatenation("field_before_its_separators_is_not_split", R"({"l":[{"a,b":"x","a":"A"}]})", "-roacs", "a,b /")
          .printsLine("x"),
      concatenation("empty_piece_is_the_whole_element", R"({"l":[{"a":1},{"a":0}]})", "-roac", ",a")
          .printsLine(R"({"a":0} 0 {"a":1} 1)"),
      concatenation("empty_field_and_no_separator", R"({"l":["x"]})", "-roacs", ",,").printsLine("x"),
      ToolCall("list_ends_at_an_option").given("f.json", kLetters).call("-roacs l a b / -f f.json").printsLine("A/B"),
      ToolCall("no_field_and_one_element").given("f.json", kLetters).call("-roac l -f f.json").printsLine(""),
      ToolCall("no_field_counts_the_elements").call("-roac l -aa l x y z").printsLine("(3)"),
      ToolCall("no_field_and_no_element").call("-roac l -aa l").printsLine(""),
      concatenation("dash_ends_the_list", kLetters, "-roacs", "a b -").prints(invalidArgument("-")).exits(1),
      concatenation("empty_argument_ends_the_list", kLetters, "-roacs", "a b ''").prints(invalidArgument("")).exits(1),
      concatenation("empty_argument_in_place_of_fields", kLetters, "-roac", "''").prints(invalidArgument("")).exits(1),
  };
}

const Table kConcatenationFields("ConcatenationFields", fields);
const Table kConcatenationRecords("ConcatenationRecords", records);
const Table kConcatenationSeparators("ConcatenationSeparators", separators);
const Table kConcatenationLists("ConcatenationLists", lists);

}  // namespace
}  // namespace kovalt::test
