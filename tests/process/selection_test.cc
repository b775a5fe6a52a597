// Selection steps: which object of an array "refKey=refValue" finds, and what is said when it finds none.

#include "tool_call.h"

namespace kovalt::test {
namespace {

std::string notFound(const std::string& step) {
  return "Kovalt path not found with refKey=refValue \"" + step + "\"\n";
}

std::string badArgument() {
  return "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
         "refKey must be a bool/number/string/array of numbers/strings.\n";
}

/// A read of `path` in a file with this content.
ToolCall reading(const std::string& name, const std::string& content, const std::string& path) {
  return ToolCall(name).given("f.json", content).call({"--file", "f.json", "--read", path});
}

std::vector<ToolCall> matchRows() {
  return {
      // Numbers are compared as the text that they print as.
      reading("integer_matches_its_text", R"({"list":[{"id":7,"name":"x"}]})", "list.id=7.name").prints("x\n"),
      reading("integer_with_a_leading_zero_does_not_match", R"({"list":[{"id":5}]})", "list.id=05")
          .reports(notFound("id=05")),
      reading("integer_with_a_plus_sign_does_not_match", R"({"list":[{"id":5}]})", "list.id=+5")
          .reports(notFound("id=+5")),
      reading("integer_with_a_space_does_not_match", R"({"list":[{"id":5}]})", "list.id= 5").reports(notFound("id= 5")),
      reading("prefix_of_an_integer_does_not_match", R"({"list":[{"id":51}]})", "list.id=5").reports(notFound("id=5")),
      reading("longer_text_does_not_match_an_integer", R"({"list":[{"id":5}]})", "list.id=51")
          .reports(notFound("id=51")),
      reading("empty_text_does_not_match_zero", R"({"list":[{"id":0}]})", "list.id=").reports(notFound("id=")),
      reading("negative_integer_matches", R"({"list":[{"id":5},{"id":-5,"n":"x"}]})", "list.id=-5.n").prints("x\n"),
      reading("largest_unsigned_integer_matches", R"({"list":[{"id":18446744073709551615,"n":"x"}]})",
              "list.id=18446744073709551615.n")
          .prints("x\n"),
      reading("smallest_integer_matches", R"({"list":[{"id":-9223372036854775808,"n":"x"}]})",
              "list.id=-9223372036854775808.n")
          .prints("x\n"),
      reading("whole_floating_number_does_not_match_an_integer_text", R"({"list":[{"id":7.0,"name":"x"}]})",
              "list.id=7.name")
          .reports(notFound("id=7")),
      reading("number_with_an_exponent_does_not_match_an_integer_text", R"({"list":[{"id":1e2}]})", "list.id=100")
          .reports(notFound("id=100")),
      reading("floating_number_matches_the_text_it_prints_as", R"({"list":[{"id":10e20,"n":"x"}]})", "list.id=1e21.n")
          .prints("x\n"),
      reading("small_floating_number_matches_the_text_it_prints_as", R"({"list":[{"id":0.0000001,"n":"x"}]})",
              "list.id=1e-7.n")
          .prints("x\n"),
      reading("floating_number_does_not_match_the_text_of_the_file", R"({"list":[{"id":10E20}]})", "list.id=10E20")
          .reports(notFound("id=10E20")),

      // Booleans match two exact words.
      reading("true_matches_its_word", R"({"list":[{"on":false,"n":1},{"on":true,"n":2}]})", "list.on=true.n")
          .prints("2\n"),
      reading("false_matches_its_word", R"({"list":[{"on":true,"n":1},{"on":false,"n":2}]})", "list.on=false.n")
          .prints("2\n"),
      reading("one_does_not_match_true", R"({"list":[{"on":true}]})", "list.on=1").reports(notFound("on=1")),
      reading("zero_does_not_match_false", R"({"list":[{"on":false}]})", "list.on=0").reports(notFound("on=0")),
      reading("capital_true_does_not_match", R"({"list":[{"on":true}]})", "list.on=True").reports(notFound("on=True")),
      reading("yes_does_not_match_true", R"({"list":[{"on":true}]})", "list.on=yes").reports(notFound("on=yes")),
      reading("empty_text_does_not_match_false", R"({"list":[{"on":false}]})", "list.on=").reports(notFound("on=")),

      // Strings match byte for byte, up to their first NUL.
      reading("string_matches_exactly", R"({"list":[{"id":"ab","n":1},{"id":"a","n":2}]})", "list.id=a.n")
          .prints("2\n"),
      reading("string_is_case_sensitive", R"({"list":[{"id":"Ab"}]})", "list.id=ab").reports(notFound("id=ab")),
      reading("string_is_not_trimmed", R"({"list":[{"id":"ab "}]})", "list.id=ab").reports(notFound("id=ab")),
      reading("string_of_digits_matches", R"({"list":[{"id":"05","n":1}]})", "list.id=05.n").prints("1\n"),
      reading("string_true_matches", R"({"list":[{"id":"true","n":1}]})", "list.id=true.n").prints("1\n"),
      reading("string_with_an_escape_matches_its_decoded_bytes", R"({"list":[{"id":"\u00e9\/","n":1}]})",
              "list.id=\xC3\xA9/.n")
          .prints("1\n"),
      reading("string_counts_up_to_its_first_nul", R"({"list":[{"id":"ab\u0000cd","n":1}]})", "list.id=ab.n")
          .prints("1\n"),
      reading("string_beginning_with_nul_matches_the_empty_text", R"({"list":[{"id":"\u0000x","n":1}]})", "list.id=.n")
          .prints("1\n"),

      // An array matches by any of its numbers and strings.
      reading("array_matches_by_a_string", R"({"list":[{"tags":["blue","red"],"n":1}]})", "list.tags=red.n")
          .prints("1\n"),
      reading("array_matches_by_a_number", R"({"list":[{"tags":[1,22],"n":1}]})", "list.tags=22.n").prints("1\n"),
      reading("array_matches_a_number_by_its_printed_text", R"({"list":[{"tags":[22.0],"n":1}]})", "list.tags=22.n")
          .reports(notFound("tags=22")),
      reading("array_string_counts_up_to_its_first_nul", R"({"list":[{"tags":["red\u0000x"],"n":1}]})",
              "list.tags=red.n")
          .prints("1\n"),
      reading("array_string_is_not_matched_in_part", R"({"list":[{"tags":["reddish"]}]})", "list.tags=red")
          .reports(notFound("tags=red")),
      reading("array_matches_after_an_item_of_another_type", R"({"list":[{"tags":[null,{},[],true,"red"],"n":1}]})",
              "list.tags=red.n")
          .prints("1\n"),
      reading("empty_array_does_not_match", R"({"list":[{"tags":[],"n":1},{"tags":["red"],"n":2}]})", "list.tags=red.n")
          .prints("2\n"),
      reading("empty_array_does_not_match_the_empty_text", R"({"list":[{"tags":[]}]})", "list.tags=")
          .reports(notFound("tags=")),
  };
}

std::vector<ToolCall> searchRows() {
  return {
      // Order of the search.
      reading("first_of_two_matches_is_selected", R"({"list":[{"id":1,"n":"one"},{"id":1,"n":"two"}]})", "list.id=1.n")
          .prints("one\n"),
      reading("number_and_string_match_in_array_order", R"({"list":[{"id":"5","n":"text"},{"id":5,"n":"number"}]})",
              "list.id=5.n")
          .prints("text\n"),
      reading("nothing_after_a_match_is_looked_at", R"({"list":[{"id":1,"n":"x"},3,{"id":null}]})", "list.id=1.n")
          .prints("x\n"),
      reading("first_of_two_equal_names_is_compared", R"({"list":[{"id":1,"id":2,"n":"x"}]})", "list.id=1.n")
          .prints("x\n"),
      reading("second_of_two_equal_names_is_not_compared", R"({"list":[{"id":1,"id":2}]})", "list.id=2")
          .reports(notFound("id=2")),
      reading("object_without_the_key_is_passed_over", R"({"list":[{},{"ID":1},{"id":1,"n":"x"}]})", "list.id=1.n")
          .prints("x\n"),
      reading("no_object_with_the_key", R"({"list":[{},{"ID":1}]})", "list.id=1").reports(notFound("id=1")),
      reading("selected_object_is_read_whole", R"({"list":[{"id":1,"n":"x"}]})", "list.id=1")
          .prints("{\"id\":1,\"n\":\"x\"}\n"),
      reading("root_array_is_selected_from", R"([{"id":1,"n":"x"}])", "id=1.n").prints("x\n"),
      reading("selections_nest", R"({"l":[{"id":1,"m":[{"k":"a","n":2},{"k":"b","n":3}]}]})", "l.id=1.m.k=b.n")
          .prints("3\n"),

      // Only the not-found message.
      reading("object_before_a_selection", R"({"list":{"id":1}})", "list.id=1").reports(notFound("id=1")),
      reading("string_before_a_selection", R"({"list":"id=1"})", "list.id=1").reports(notFound("id=1")),
      reading("null_before_a_selection", R"({"list":null})", "list.id=1").reports(notFound("id=1")),
      reading("root_object_before_a_selection", R"({"id":1})", "id=1").reports(notFound("id=1")),
      reading("empty_array_before_a_selection", R"({"list":[]})", "list.id=1").reports(notFound("id=1")),
      reading("selected_object_is_no_array", R"({"list":[{"id":1}]})", "list.id=1.id=1").reports(notFound("id=1")),
      reading("second_selection_names_itself", R"({"l":[{"id":1,"m":[{"k":"a"}]}]})", "l.id=1.m.k=b.n")
          .reports(notFound("k=b")),
      reading("message_keeps_the_text_of_the_step", R"({"list":[]})", "list. I d=a\"=\\b ")
          .reports(notFound(" I d=a\"=\\b ")),
      reading("message_with_empty_parts", R"({"list":[]})", "list.=").reports(notFound("=")),
      reading("failed_selection_adds_no_read_error", R"({"list":[{"id":1}]})", "list.id=2.name.more")
          .reports(notFound("id=2")),

      // Both messages.
      reading("number_element_stops_the_search", R"({"list":[3,{"id":1}]})", "list.id=1")
          .reports(notFound("id=1") + badArgument()),
      reading("string_element_stops_the_search", R"({"list":[{"id":2},"id",{"id":1}]})", "list.id=1")
          .reports(notFound("id=1") + badArgument()),
      reading("null_element_stops_the_search", R"({"list":[null,{"id":1}]})", "list.id=1")
          .reports(notFound("id=1") + badArgument()),
      reading("array_element_stops_the_search", R"({"list":[[{"id":1}]]})", "list.id=1")
          .reports(notFound("id=1") + badArgument()),
      reading("null_under_the_key_stops_the_search", R"({"list":[{"id":null},{"id":1}]})", "list.id=1")
          .reports(notFound("id=1") + badArgument()),
      reading("null_under_the_key_does_not_match_its_word", R"({"list":[{"id":null}]})", "list.id=null")
          .reports(notFound("id=null") + badArgument()),
      reading("object_under_the_key_stops_the_search", R"({"list":[{"id":{}},{"id":1}]})", "list.id=1")
          .reports(notFound("id=1") + badArgument()),
      reading("boolean_in_an_array_never_matches", R"({"list":[{"tags":[true,"blue"]}]})", "list.tags=true")
          .reports(notFound("tags=true") + badArgument()),
      reading("boolean_in_an_unmatched_array", R"({"list":[{"tags":[true,"blue"]}]})", "list.tags=red")
          .reports(notFound("tags=red") + badArgument()),
      reading("null_in_an_unmatched_array", R"({"list":[{"tags":["blue",null]}]})", "list.tags=null")
          .reports(notFound("tags=null") + badArgument()),
      reading("object_in_an_unmatched_array", R"({"list":[{"tags":[{"tags":"red"}]}]})", "list.tags=red")
          .reports(notFound("tags=red") + badArgument()),
      reading("array_in_an_unmatched_array", R"({"list":[{"tags":[["red"]]}]})", "list.tags=red")
          .reports(notFound("tags=red") + badArgument()),
      reading("bad_item_is_remembered_to_the_end", R"({"list":[{"tags":[null]},{"tags":["blue"]},{"tags":1}]})",
              "list.tags=red")
          .reports(notFound("tags=red") + badArgument()),
      reading("bad_item_does_not_stop_the_search", R"({"list":[{"tags":[null]},{"tags":["red"],"n":2}]})",
              "list.tags=red.n")
          .prints("2\n"),
      ToolCall("each_selection_remembers_its_own_bad_item")
          .given("f.json", R"({"a":[{"t":[null]},{"t":"x","b":[{"t":1}]}]})")
          .call("--file f.json --read a.t=x.b.t=2")
          .reports(notFound("t=2")),
  };
}

const Table kSelectionMatch("SelectionMatch", matchRows);
const Table kSelectionSearch("SelectionSearch", searchRows);

}  // namespace
}  // namespace kovalt::test
