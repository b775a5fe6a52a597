// Selected fields of an array of objects as one line of counted, sorted records.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kLinks = R"({"links":[{"id":0,"hostname":"h","port":2099},{"id":1,"hostname":"k","port":3002}]})";

constexpr auto kBothSelectionReports =
    "Kovalt path not found with refKey=refValue \"id=1\"\n"
    "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and refKey "
    "must be a bool/number/string/array of numbers/strings.\n";

std::vector<ToolCall> rows() {
  return {
      ToolCall("an_empty_object_prints_nothing_at_all").given("d.json", R"({"l":{}})").call("-f d.json -roac l x"),
      ToolCall("readObjectArrayConcat_joins_fields_by_spaces")
          .given("d.json", kLinks)
          .call("--file d.json --readObjectArrayConcat links id hostname port")
          .prints("0 h 2099 1 k 3002\n"),
      ToolCall("roac_joins_fields_by_spaces")
          .given("d.json", kLinks)
          .call("-roac links id hostname port -f d.json")
          .prints("0 h 2099 1 k 3002\n"),
      ToolCall("readObjectArrayConcatSep_joins_fields_by_separators")
          .given("d.json", kLinks)
          .call("--file d.json --readObjectArrayConcatSep links id hostname port /:")
          .prints("0/h:2099 1/k:3002\n"),
      ToolCall("roacs_joins_fields_by_separators")
          .given("d.json", kLinks)
          .call("-roacs links id hostname port /: -f d.json")
          .prints("0/h:2099 1/k:3002\n"),
      ToolCall("the_order_of_the_fields_is_that_of_the_arguments")
          .given("d.json", kLinks)
          .call("-f d.json -roac links port id")
          .prints("2099 0 3002 1\n"),
      ToolCall("a_field_may_be_named_twice")
          .given("d.json", kLinks)
          .call("-f d.json -roac links id id")
          .prints("0 0 1 1\n"),
      ToolCall("one_field_prints_without_separators")
          .given("d.json", kLinks)
          .call("-f d.json -roac links hostname")
          .prints("h k\n"),
      ToolCall("values_print_as_read_prints_them")
          .given("d.json", R"({"l":[{"s":"x y","n":7.0,"t":true,"z":null,"o":{"k": "v"},"a":[1, "b"],"e":""}]})")
          .call("-f d.json -roacs l s n t z o a e |")
          .prints("x y|7.0|true|null|{\"k\":\"v\"}|[1,\"b\"]|\n"),
      ToolCall("strings_keep_their_escapes")
          .given("d.json", R"({"l":[{"a":"\"q\"","b":"1\n2\\"}]})")
          .call("-f d.json -roac l a b")
          .prints("\\\"q\\\" 1\\n2\\\\\n"),
      ToolCall("records_are_joined_without_escaping")
          .given("d.json", R"({"l":[{"a":"x/y","b":"z w"}]})")
          .call("-f d.json -roacs l a b /")
          .prints("x/y/z w\n"),
      ToolCall("the_first_of_two_members_of_one_name_is_the_field")
          .given("d.json", R"({"l":[{"a":1,"a":2}],"l":[]})")
          .call("-f d.json -roac l a")
          .prints("1\n"),
      ToolCall("a_field_may_have_several_steps")
          .given("d.json", R"({"l":[{"net":{"host":"h","port":1}},{"net":{"host":"k","port":2}}]})")
          .call("-f d.json -roacs l net.host net.port :")
          .prints("h:1 k:2\n"),
      ToolCall("a_field_may_select")
          .given("d.json", R"({"l":[{"p":[{"n":"http","v":80},{"n":"ws","v":90}]},{"p":[{"n":"ws","v":91}]}]})")
          .call("-f d.json -roac l p.n=ws.v")
          .prints("90 91\n"),
      ToolCall("a_field_may_select_in_an_element_that_is_an_array")
          .given("d.json", R"({"l":[[{"id":1,"v":"x"}],[{"id":2,"v":"y"}]]})")
          .call("-f d.json -roac l id=1.v")
          .prints(" x\n")
          .reports("Kovalt path not found with refKey=refValue \"id=1\"\n"),
      ToolCall("an_empty_field_of_a_comma_list_is_the_whole_element")
          .given("d.json", R"({"l":[{"id":1},{"id":0}]})")
          .call("-f d.json -roac l ,id")
          .prints("{\"id\":0} 0 {\"id\":1} 1\n"),
      ToolCall("an_empty_field_counts_equal_scalars").call("-aan n 3,1,3 -roac n ,").prints("1 3(2)\n"),
      ToolCall("the_array_may_stand_behind_several_steps_and_a_selection")
          .given("d.json", R"({"a":{"p":[{"n":"x","l":[{"id":1}]},{"n":"y","l":[{"id":2},{"id":3}]}]}})")
          .call("-f d.json -roac a.p.n=y.l id")
          .prints("2 3\n"),
      ToolCall("an_array_root_is_read_with_an_empty_path")
          .given("d.json", R"([{"id":2},{"id":1}])")
          .call({"-f", "d.json", "-roac", "", "id"})
          .prints("1 2\n"),
      // Counts.
      ToolCall("three_equal_records_are_counted")
          .given("d.json", R"({"l":[{"x":"a"},{"x":"a"},{"x":"a"}]})")
          .call("-f d.json -roac l x")
          .prints("a(3)\n"),
      ToolCall("two_records_each_seen_twice_both_get_their_count")
          .given("d.json", R"({"l":[{"x":"b"},{"x":"a"},{"x":"b"},{"x":"a"}]})")
          .call("-f d.json -roac l x")
          .prints("a(2) b(2)\n"),
      ToolCall("a_count_of_one_is_not_shown")
          .given("d.json", R"({"l":[{"x":"b"},{"x":"a"},{"x":"b"}]})")
          .call("-f d.json -roac l x")
          .prints("a b(2)\n"),
      ToolCall("a_count_may_have_two_digits").call("-aan n 7,7,7,7,7,7,7,7,7,7,7,7 -roac n ,").prints("7(12)\n"),
      ToolCall("a_whole_record_is_counted_not_a_field")
          .given("d.json", R"({"l":[{"a":"x","b":1},{"a":"x","b":2},{"a":"x","b":1}]})")
          .call("-f d.json -roacs l a b :")
          .prints("x:1(2) x:2\n"),
      ToolCall("records_of_equal_bytes_count_as_one_whatever_their_fields")
          .given("d.json", R"({"l":[{"a":"x y","b":"z"},{"a":"x","b":"y z"}]})")
          .call("-f d.json -roac l a b")
          .prints("x y z(2)\n"),
      ToolCall("a_number_and_its_string_count_as_one")
          .given("d.json", R"({"l":[{"x":1},{"x":"1"},{"x":1.0}]})")
          .call("-f d.json -roac l x")
          .prints("1(2) 1.0\n"),
      ToolCall("records_that_differ_in_case_or_length_are_not_equal")
          .given("d.json", R"({"l":[{"x":"a"},{"x":"A"},{"x":"a "}]})")
          .call("-f d.json -roac l x")
          .prints("A a a \n"),
      ToolCall("a_record_that_looks_counted_is_a_record_of_its_own")
          .given("d.json", R"*({"l":[{"x":"a(2)"},{"x":"a"},{"x":"a"}]})*")
          .call("-f d.json -roac l x")
          .prints("a(2) a(2)\n"),
      // Order.
      ToolCall("numbers_sort_as_bytes")
          .given("d.json", R"({"l":[{"x":9},{"x":10}]})")
          .call("-f d.json -roac l x")
          .prints("10 9\n"),
      ToolCall("a_minus_sign_sorts_before_digits")
          .given("d.json", R"({"l":[{"x":2},{"x":10},{"x":0},{"x":-1}]})")
          .call("-f d.json -roac l x")
          .prints("-1 0 10 2\n"),
      ToolCall("capital_letters_sort_before_small_ones")
          .given("d.json", R"({"l":[{"x":"b"},{"x":"a"},{"x":"B"},{"x":"A"}]})")
          .call("-f d.json -roac l x")
          .prints("A B a b\n"),
      ToolCall("a_prefix_sorts_first")
          .given("d.json", R"({"l":[{"x":"abc"},{"x":"ab"},{"x":"b"},{"x":"a"}]})")
          .call("-f d.json -roac l x")
          .prints("a ab abc b\n"),
      ToolCall("the_empty_record_sorts_first")
          .given("d.json", R"({"l":[{"x":"b"},{"x":""}]})")
          .call("-f d.json -roac l x")
          .prints(" b\n"),
      ToolCall("letters_that_are_not_ascii_sort_last")
          .given("d.json", "{\"l\":[{\"x\":\"\xC3\xA9\"},{\"x\":\"~\"},{\"x\":\"z\"}]}")
          .call("-f d.json -roac l x")
          .prints("z ~ \xC3\xA9\n"),
      ToolCall("bytes_sort_as_unsigned")
          .given("d.json",
                 "{\"l\":[{\"x\":\"\xFF\"},{\"x\":\"\x80\"},{\"x\":\"\x7F\"},{\"x\":\"a\"},{\"x\":\"a\xFF\"},"
                 "{\"x\":\"aa\"}]}")
          .call("-f d.json -roac l x")
          .prints("a aa a\xFF \x7F \x80 \xFF\n"),
      ToolCall("the_count_plays_no_part_in_the_order")
          .given("d.json", R"({"l":[{"x":"a!"},{"x":"a"},{"x":"a"}]})")
          .call("-f d.json -roac l x")
          .prints("a(2) a!\n"),
      ToolCall("the_order_is_that_of_whole_records_not_of_fields")
          .given("d.json", R"({"l":[{"a":"x","b":1},{"a":"xy","b":1}]})")
          .call("-f d.json -roacs l a b ~")
          .prints("xy~1 x~1\n"),
      // Empty arrays and targets that are no arrays.
      ToolCall("an_empty_array_prints_an_empty_line")
          .given("d.json", R"({"l":[]})")
          .call("-f d.json -roac l x")
          .prints("\n"),
      ToolCall("an_empty_array_gathers_an_empty_string")
          .given("d.json", R"({"l":[],"a":1})")
          .call("-f d.json -roac l x -r a")
          .prints("{\n    \"l\": \"\",\n    \"a\": \"1\"\n}\n"),
      ToolCall("an_object_prints_nothing_at_all").given("d.json", R"({"l":{"x":"a"}})").call("-f d.json -roac l x"),
      ToolCall("a_string_in_brackets_is_no_array").given("d.json", R"({"l":"[1]"})").call("-f d.json -roacs l x /"),
      ToolCall("a_selected_object_is_no_array")
          .given("d.json", R"({"l":[{"id":1,"x":"a"}]})")
          .call("-f d.json -roac l.id=1 x"),
      ToolCall("targets_that_are_no_arrays_gather_nothing")
          .given("d.json", R"({"n":null,"i":1})")
          .call("-f d.json -roac n x -roacs i x /")
          .prints("{}\n"),
      ToolCall("a_missing_array_is_a_read_error")
          .given("d.json", kLinks)
          .call("-f d.json -roac links.gone id")
          .reports("--read error : Path \"links.gone\" does not exist\n"),
      ToolCall("a_missing_array_is_reported_once_and_not_for_each_field")
          .call("-roacs a.b x y z /")
          .reports("--read error : Path \"a.b\" does not exist\n"),
      ToolCall("a_failed_selection_of_the_array_gives_its_own_report")
          .given("d.json", R"({"l":[{"id":2,"m":[]}]})")
          .call("-f d.json -roac l.id=1.m x")
          .reports("Kovalt path not found with refKey=refValue \"id=1\"\n"),
      // Missing fields.
      ToolCall("a_missing_field_leaves_its_separators")
          .given("d.json", R"({"l":[{"id":0,"port":1},{"id":1,"hostname":"k","port":2}]})")
          .call("-f d.json -roac l id hostname port")
          .prints("0  1 1 k 2\n")
          .reports("--read error : Path \"hostname\" does not exist\n"),
      ToolCall("missing_fields_are_reported_element_by_element_and_field_by_field")
          .given("d.json", R"({"l":[{"a":1},{"b":2},{}]})")
          .call("-f d.json -roacs l b a /")
          .prints("/ /1 2/\n")
          .reports("--read error : Path \"b\" does not exist\n"
                   "--read error : Path \"a\" does not exist\n"
                   "--read error : Path \"b\" does not exist\n"
                   "--read error : Path \"a\" does not exist\n"),
      ToolCall("equal_records_with_missing_fields_are_counted_and_each_reported")
          .given("d.json", R"({"l":[{"a":1},{"a":1}]})")
          .call("-f d.json -roac l a b")
          .prints("1 (2)\n")
          .reports("--read error : Path \"b\" does not exist\n--read error : Path \"b\" does not exist\n"),
      ToolCall("a_missing_field_and_an_empty_one_give_equal_records")
          .given("d.json", R"({"l":[{"a":1,"b":""},{"a":1}]})")
          .call("-f d.json -roac l a b")
          .prints("1 (2)\n")
          .reports("--read error : Path \"b\" does not exist\n"),
      ToolCall("a_missing_field_is_reported_by_its_own_whole_path")
          .given("d.json", R"({"l":[{"net":{}}]})")
          .call("-f d.json -roac l net.host")
          .prints("\n")
          .reports("--read error : Path \"net.host\" does not exist\n"),
      ToolCall("elements_that_are_no_objects_give_separators_alone")
          .given("d.json", R"({"l":[1,"x",null,{"a":1}]})")
          .call("-f d.json -roac l a b")
          .prints(" (3) 1 \n")
          .reports("--read error : Path \"a\" does not exist\n--read error : Path \"b\" does not exist\n"
                   "--read error : Path \"a\" does not exist\n--read error : Path \"b\" does not exist\n"
                   "--read error : Path \"a\" does not exist\n--read error : Path \"b\" does not exist\n"
                   "--read error : Path \"b\" does not exist\n"),
      ToolCall("a_field_with_a_failing_selection_gives_the_selections_reports")
          .given("d.json", R"({"l":[{"p":[3]},{"p":[]},{"p":[{"id":1}]},{}]})")
          .call("-f d.json -roac l p.id=1")
          .prints("(3) {\"id\":1}\n")
          .reports(std::string(kBothSelectionReports) + "Kovalt path not found with refKey=refValue \"id=1\"\n" +
                   "--read error : Path \"p.id=1\" does not exist\n"),
      // Beside other options.
      ToolCall("several_concatenations_gather_under_their_array")
          .given("d.json", kLinks)
          .call("-f d.json -roac links id -roacs links id port :")
          .prints("{\n    \"links\": \"0 1\",\n    \"links\": \"0:2099 1:3002\"\n}\n"),
      ToolCall("the_escapes_of_fields_are_escaped_again_when_gathered")
          .given("d.json", R"({"l":[{"x":"q\"","o":{"k":1}}]})")
          .call("-f d.json -roac l x o -roac gone x")
          .prints("{\n    \"l\": \"q\\\\\\\" {\\\"k\\\":1}\"\n}\n")
          .reports("--read error : Path \"gone\" does not exist\n"),
      ToolCall("a_displayed_document_comes_before_the_line")
          .given("d.json", R"({"l":[{"x":"b"},{"x":"a"}]})")
          .call("--fileDisplay d.json --readObjectArrayConcat l x")
          .prints("{\n    \"l\": [\n        {\n            \"x\": \"b\"\n        },\n        {\n"
                  "            \"x\": \"a\"\n        }\n    ]\n}\na b\n"),
      ToolCall("reports_of_fields_stand_between_the_display_and_the_line")
          .given("d.json", R"({"l":[{}]})")
          .call("-fd d.json -roac l x")
          .withMergedStreams()
          .prints("{\n    \"l\": [\n        {}\n    ]\n}\n--read error : Path \"x\" does not exist\n\n"),
      ToolCall("edits_inside_an_element_are_seen")
          .given("d.json", R"({"l":[{"id":1,"x":"a"},{"id":2,"x":"a"}]})")
          .call("-roac l x -as l.id=2.x b -f d.json")
          .prints("a b\n")
          .leaves("d.json",
                  "{\n  \"l\": [\n    {\n      \"id\": 1,\n      \"x\": \"a\"\n    },\n    {\n      \"id\": 2,\n"
                  "      \"x\": \"b\"\n    }\n  ]\n}"),
      ToolCall("merged_elements_are_counted_with_the_old_ones")
          .given("one.json", R"({"l":[{"x":"a"}]})")
          .given("two.json", R"({"l":[{"x":"b"},{"x":"a"}]})")
          .call("-af one.json -af two.json -roac l x")
          .prints("a(2) b\n"),
      ToolCall("a_removed_array_is_missing")
          .given("d.json", R"({"l":[{"x":"a"}],"m":1})")
          .call("-f d.json -rm l -roac l x")
          .reports("--read error : Path \"l\" does not exist\n")
          .leaves("d.json", "{\n  \"m\": 1\n}"),
  };
}

const Table kConcatenation("Concatenation", rows);

}  // namespace
}  // namespace kovalt::test
