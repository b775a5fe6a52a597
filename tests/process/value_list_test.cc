// The arguments that belong to a list of values or fields, and how a single one is cut at commas.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr const char* kLinks =
    R"({"links": [{"id": 0, "port": 2099, "a,b": "c"}, {"id": 1, "port": 3002, "a,b": "d"}]})";

/// The display of the document {"k": [...]} for the given lines of the array.
std::string shown(const std::string& elements) { return "{\n    \"k\": [\n" + elements + "\n    ]\n}\n"; }

std::vector<ToolCall> lists() {
  return {
      // A list may be empty.
      ToolCall("no_value_for_add_array").call("--addArray k").prints("{\n    \"k\": []\n}\n"),
      ToolCall("no_value_for_add_array_number").call("--addArrayNumber k").prints("{\n    \"k\": []\n}\n"),
      ToolCall("no_value_for_add_array_boolean").call("--addArrayBoolean k").prints("{\n    \"k\": []\n}\n"),
      ToolCall("short_option_in_place_of_a_value").call("--addArray k -as a b").prints(R"({
    "k": [],
    "a": "b"
}
)"),
      ToolCall("long_option_in_place_of_a_value").call("--addArrayNumber k --addString a b").prints(R"({
    "k": [],
    "a": "b"
}
)"),
      ToolCall("option_behind_the_values").call("-aa k x y -as a b").prints(R"({
    "k": [
        "x",
        "y"
    ],
    "a": "b"
}
)"),
      ToolCall("list_behind_a_list").call("-aan k 1 2 -aab a 1 0").prints(R"({
    "k": [
        1,
        2
    ],
    "a": [
        true,
        false
    ]
}
)"),
      ToolCall("key_path_with_a_dash_before_the_values").call("-aa -k x y").prints(R"({
    "-k": [
        "x",
        "y"
    ]
}
)"),

      // A single value is cut at its commas; several values stay as they are.
      ToolCall("one_value").call("-aa k x").prints(shown(R"(        "x")")),
      ToolCall("three_values").call("-aan k 1 2 3").prints(shown("        1,\n        2,\n        3")),
      ToolCall("one_value_of_three_pieces").call("-aan k 1,2,3").prints(shown("        1,\n        2,\n        3")),
      ToolCall("one_value_of_three_strings")
          .call("-aa k a,b,c")
          .prints(shown("        \"a\",\n        \"b\",\n        \"c\"")),
      ToolCall("one_value_of_three_booleans")
          .call("-aab k TRUE,0,1")
          .prints(shown("        true,\n        false,\n        true")),
      ToolCall("rejected_pieces_are_listed_apart")
          .call("-aab k TRUE,maybe")
          .prints(shown("        true,\n        null"))
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, [ true maybe ] rejected.\n"),
      ToolCall("comma_in_the_first_of_two_strings")
          .call("-aa k 1,2 3")
          .prints(shown("        \"1,2\",\n        \"3\"")),
      ToolCall("comma_in_the_second_of_two_strings")
          .call("-aa k 1 2,3")
          .prints(shown("        \"1\",\n        \"2,3\"")),
      ToolCall("commas_in_both_strings").call("-aa k a,b c,d").prints(shown("        \"a,b\",\n        \"c,d\"")),
      ToolCall("comma_in_the_first_of_two_numbers_ends_that_number")
          .call("-aan k 1,2 3")
          .prints(shown("        1,\n        3")),
      ToolCall("comma_in_one_of_two_booleans_is_rejected")
          .call("-aab k 1,0 1")
          .prints(shown("        null,\n        true"))
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, [ 1,0 1 ] rejected.\n"),
      ToolCall("option_behind_a_single_value_leaves_it_single").call("-aa k a,b -as l m").prints(R"({
    "k": [
        "a",
        "b"
    ],
    "l": "m"
}
)"),

      // Empty pieces are kept, but none follows the last comma.
      ToolCall("two_commas_side_by_side")
          .call("-aa k a,,b")
          .prints(shown("        \"a\",\n        \"\",\n        \"b\"")),
      ToolCall("trailing_comma").call("-aa k a,b,").prints(shown("        \"a\",\n        \"b\"")),
      ToolCall("two_trailing_commas").call("-aa k a,,").prints(shown("        \"a\",\n        \"\"")),
      ToolCall("leading_comma").call("-aa k ,a").prints(shown("        \"\",\n        \"a\"")),
      ToolCall("comma_alone").call("-aa k ,").prints(shown("        \"\"")),
      ToolCall("two_commas_alone").call("-aa k ,,").prints(shown("        \"\",\n        \"\"")),
      ToolCall("trailing_comma_behind_numbers").call("-aan k 1,2,").prints(shown("        1,\n        2")),
      ToolCall("comma_alone_among_two_values").call("-aa k , ,").prints(shown("        \",\",\n        \",\"")),
      ToolCall("empty_piece_is_no_number").call("-aan k 1,,2").aborts(),
      ToolCall("comma_alone_is_no_number").call("-aan k ,").aborts(),
      ToolCall("empty_piece_is_no_boolean")
          .call("-aab k 1,,0")
          .prints(shown("        true,\n        null,\n        false"))
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, [ 1  0 ] rejected.\n"),

      // Pieces are taken as they stand.
      ToolCall("blanks_around_a_comma").call({"-aa", "k", "a , b"}).prints(shown("        \"a \",\n        \" b\"")),
      ToolCall("blank_alone").call({"-aa", "k", " "}).prints(shown("        \" \"")),
      ToolCall("blanks_do_not_cut").call({"-aa", "k", "a b c"}).prints(shown("        \"a b c\"")),
      ToolCall("line_end_does_not_cut").call("-aa k a\nb,c").prints(shown("        \"a\\nb\",\n        \"c\"")),
      ToolCall("other_separators_do_not_cut").call("-aa k a;b|c\td").prints(shown(R"(        "a;b|c\td")")),
      ToolCall("backslash_protects_no_comma")
          .call({"-aa", "k", R"(a\,b)"})
          .prints(shown("        \"a\\\\\",\n        \"b\"")),
      ToolCall("quotes_protect_no_comma")
          .call({"-aa", "k", R"("a,b")"})
          .prints(shown("        \"\\\"a\",\n        \"b\\\"\"")),
      ToolCall("equals_sign_in_a_value").call("-aa k a=b").prints(shown("        \"a=b\"")),
      ToolCall("dash_inside_a_value").call("-aa k a-b").prints(shown("        \"a-b\"")),
      ToolCall("dash_at_the_start_of_a_piece").call("-aa k a,-b").prints(shown("        \"a\",\n        \"-b\"")),
      ToolCall("minus_sign_beyond_ascii_ends_no_list").call("-aa k −5").prints(shown("        \"−5\"")),
      ToolCall("blank_before_a_dash_ends_no_list").call({"-aan", "k", " -5"}).prints(shown("        -5")),
      ToolCall("plus_sign_ends_no_list").call("-aan k +5 6").prints(shown("        5,\n        6")),

      // A negative number stands in a comma list, and not at its start.
      ToolCall("negative_number_in_a_comma_list").call("-aan k 1,-5").prints(shown("        1,\n        -5")),
      ToolCall("negative_number_alone").call("-aan k -5").prints("Error: invalid argument -5\n").exits(1),
      ToolCall("negative_number_behind_another").call("-aan k 1 -5").prints("Error: invalid argument -5\n").exits(1),
      ToolCall("negative_number_at_the_start_of_a_comma_list")
          .call("-aan k -5,1")
          .prints("Error: invalid argument -5,1\n")
          .exits(1),

      // An empty argument ends a list and is refused as an option.
      ToolCall("empty_argument_in_place_of_a_value")
          .call({"--addArray", "k", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("empty_argument_between_values")
          .call({"-aa", "k", "a", "", "b"})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("empty_argument_behind_the_values")
          .call({"-aan", "k", "1", "2", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("dash_alone_ends_a_list").call("-aa k a -").prints("Error: invalid argument -\n").exits(1),
      ToolCall("two_dashes_end_a_list").call("-aa k -- a").prints("Error: invalid argument --\n").exits(1),
      ToolCall("value_that_begins_with_a_dash")
          .call("-aa k -value")
          .prints("Error: invalid argument -value\n")
          .exits(1),
  };
}

std::vector<ToolCall> fieldLists() {
  return {
      ToolCall("fields_apart")
          .given("links.json", kLinks)
          .call("-f links.json -roac links id port")
          .prints("0 2099 1 3002\n"),
      ToolCall("fields_in_one_comma_list")
          .given("links.json", kLinks)
          .call("-f links.json -roac links id,port")
          .prints("0 2099 1 3002\n"),
      ToolCall("comma_in_one_of_two_fields_stays")
          .given("links.json", kLinks)
          .call("-f links.json -roac links a,b id")
          .prints("c 0 d 1\n"),
      ToolCall("list_ends_at_an_option")
          .given("links.json", kLinks)
          .call("-roac links port id -f links.json")
          .prints("2099 0 3002 1\n"),
      ToolCall("comma_alone_is_the_whole_element")
          .given("links.json", R"({"links":[{"id":7}]})")
          .call("-f links.json -roac links ,")
          .prints("{\"id\":7}\n"),
      ToolCall("no_field_before_an_option")
          .given("links.json", kLinks)
          .call("-roac links -f links.json")
          .prints("(2)\n"),
      ToolCall("no_field_and_one_element")
          .given("links.json", R"({"links":[{"id":7}]})")
          .call("--readObjectArrayConcat links --file links.json")
          .prints("\n"),
      ToolCall("empty_argument_in_place_of_a_field")
          .given("links.json", kLinks)
          .call({"-f", "links.json", "-roac", "links", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("separator_behind_fields")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id port /")
          .prints("0/2099 1/3002\n"),
      ToolCall("separator_in_a_comma_list")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id,port,/")
          .prints("0/2099 1/3002\n"),
      ToolCall("separator_at_the_end_of_a_comma_list")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id,port,/,")
          .prints("0/2099 1/3002\n"),
      ToolCall("comma_as_a_separator")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id port ,")
          .prints("0,2099 1,3002\n"),
      ToolCall("separators_with_a_comma")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id port id ,/")
          .prints("0,2099/0 1,3002/1\n"),
      ToolCall("blank_as_a_separator")
          .given("links.json", kLinks)
          .call({"-f", "links.json", "-roacs", "links", "id", "port", " "})
          .prints("0 2099 1 3002\n"),
      ToolCall("separator_before_an_option")
          .given("links.json", kLinks)
          .call("-roacs links id port / -f links.json")
          .prints("0/2099 1/3002\n"),
      ToolCall("two_values_are_a_field_and_an_unused_separator")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id port")
          .prints("0 1\n"),
      ToolCall("separator_may_begin_with_no_dash")
          .given("links.json", kLinks)
          .call("-f links.json -roacs links id port -")
          .prints("Error: invalid argument -\n")
          .exits(1),
      ToolCall("empty_separator_behind_values_is_refused")
          .given("links.json", kLinks)
          .call({"-f", "links.json", "-roacs", "links", "id", "port", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
  };
}

const Table kValueLists("ValueLists", lists);
const Table kFieldLists("FieldLists", fieldLists);

}  // namespace
}  // namespace kovalt::test
