// The arguments of the concatenations: the field list and the separators taken from it.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kLetters = R"({"l":[{"a":"A","b":"B","c":"C","d":"D"}]})";

/// From none to four separator characters, each with one to four fields.
std::vector<ToolCall> rowsOfSeparators() {
  return {
      ToolCall("no_separator_and_one_field").given("d.json", kLetters).call("-f d.json -roacs l a,,").prints("A\n"),
      ToolCall("no_separator_and_two_fields")
          .given("d.json", kLetters)
          .call("-f d.json --readObjectArrayConcatSep l a,b,,")
          .prints("AB\n"),
      ToolCall("no_separator_and_three_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a,b,c,,")
          .prints("ABC\n"),
      ToolCall("no_separator_and_four_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a,b,c,d,,")
          .prints("ABCD\n"),
      ToolCall("one_separator_and_one_field").given("d.json", kLetters).call("-f d.json -roacs l a /").prints("A\n"),
      ToolCall("one_separator_and_two_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b /")
          .prints("A/B\n"),
      ToolCall("one_separator_and_three_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c /")
          .prints("A/B/C\n"),
      ToolCall("one_separator_and_four_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c d /")
          .prints("A/B/C/D\n"),
      ToolCall("two_separators_and_one_field").given("d.json", kLetters).call("-f d.json -roacs l a /:").prints("A\n"),
      ToolCall("two_separators_and_two_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b /:")
          .prints("A/B\n"),
      ToolCall("two_separators_and_three_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c /:")
          .prints("A/B:C\n"),
      ToolCall("two_separators_and_four_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c d /:")
          .prints("A/B:C:D\n"),
      ToolCall("three_separators_and_one_field")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a /:-")
          .prints("A\n"),
      ToolCall("three_separators_and_two_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b /:-")
          .prints("A/B\n"),
      ToolCall("three_separators_and_three_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c /:-")
          .prints("A/B:C\n"),
      ToolCall("three_separators_and_four_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c d /:-")
          .prints("A/B:C-D\n"),
      ToolCall("four_separators_and_one_field")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a /:-+")
          .prints("A\n"),
      ToolCall("four_separators_and_two_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b /:-+")
          .prints("A/B\n"),
      ToolCall("four_separators_and_three_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c /:-+")
          .prints("A/B:C\n"),
      ToolCall("four_separators_and_four_fields")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c d /:-+")
          .prints("A/B:C-D\n"),
      ToolCall("the_default_separator_repeats_for_every_field")
          .given("d.json", kLetters)
          .call("-f d.json -roac l a b c d")
          .prints("A B C D\n"),
      ToolCall("spaces_are_separators_like_any_other")
          .given("d.json", kLetters)
          .call({"-f", "d.json", "-roacs", "l", "a", "b", "c", "  "})
          .prints("A B C\n"),
      ToolCall("a_comma_may_be_the_separator")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b ,")
          .prints("A,B\n"),
      ToolCall("a_quote_and_a_backslash_may_be_separators")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c \"\\")
          .prints("A\"B\\C\n"),
      ToolCall("separators_are_escaped_when_gathered")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c \"\\ -r l.a=A.a")
          .prints("{\n    \"l\": \"A\\\"B\\\\C\",\n    \"l.a=A.a\": \"A\"\n}\n"),
      ToolCall("separators_are_bytes_not_letters")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b c \xC3\xA9")
          .prints("A\xC3"
                  "B\xA9"
                  "C\n"),
      ToolCall("a_forgotten_separator_takes_the_last_field")
          .given("d.json", R"({"l":[{"id":0,"host":"h","port":1}]})")
          .call("-f d.json -roacs l id host port")
          .prints("0ph\n"),
      ToolCall("separators_stand_around_missing_fields")
          .given("d.json", R"({"l":[{}]})")
          .call("-f d.json -roacs l a b c /:")
          .prints("/:\n")
          .reports("--read error : Path \"a\" does not exist\n"
                   "--read error : Path \"b\" does not exist\n"
                   "--read error : Path \"c\" does not exist\n"),
  };
}

const Table kConcatenationSeparators("ConcatenationSeparators", rowsOfSeparators);

std::vector<ToolCall> rowsOfLists() {
  return {
      ToolCall("one_value_is_split_at_commas_into_fields")
          .given("d.json", kLetters)
          .call("-f d.json --readObjectArrayConcat l a,b,c")
          .prints("A B C\n"),
      ToolCall("one_value_is_split_into_fields_and_separators")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a,b,c,/:")
          .prints("A/B:C\n"),
      ToolCall("a_separator_that_begins_with_a_dash_fits_into_a_comma_list")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a,b,c,-+")
          .prints("A-B+C\n"),
      ToolCall("a_last_comma_gives_no_separator_of_its_own")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a,b,")
          .prints("A\n"),
      ToolCall("a_last_comma_gives_no_field_of_its_own")
          .given("d.json", kLetters)
          .call("-f d.json -roac l a,b,")
          .prints("A B\n"),
      ToolCall("an_empty_piece_in_the_middle_is_the_whole_element")
          .given("d.json", R"({"l":[{"a":1}]})")
          .call("-f d.json -roac l a,,a")
          .prints("1 {\"a\":1} 1\n"),
      ToolCall("two_values_are_not_split")
          .given("d.json", R"({"l":[{"a,b":"x","a":"A","c":"C"}]})")
          .call("-f d.json -roac l a,b c")
          .prints("x C\n"),
      ToolCall("a_field_beside_its_separator_is_not_split")
          .given("d.json", R"({"l":[{"a,b":"x","a":"A","b":"B"}]})")
          .call("-f d.json -roacs l a,b /")
          .prints("x\n"),
      ToolCall("two_commas_give_one_empty_field_and_no_separator")
          .given("d.json", R"({"l":["x"]})")
          .call("-f d.json -roacs l ,,")
          .prints("x\n"),
      ToolCall("an_option_behind_the_path_leaves_no_field_and_one_empty_record")
          .given("d.json", R"({"l":[{"a":1}]})")
          .call("-roac l -f d.json")
          .prints("\n"),
      ToolCall("no_field_counts_the_elements")
          .given("d.json", R"({"l":[{"a":1},{"a":2},3]})")
          .call("--readObjectArrayConcat l --file d.json")
          .prints("(3)\n"),
      ToolCall("no_field_of_an_empty_array_prints_an_empty_line")
          .given("d.json", R"({"l":[]})")
          .call("-roac l -f d.json")
          .prints("\n"),
      ToolCall("no_field_gathers_the_bare_count")
          .call("-roac l -aa l x y -ra l")
          .prints("{\n    \"l\": \"(2)\",\n    \"l\": \"x y\"\n}\n"),
      ToolCall("an_option_where_the_path_belongs_is_the_path")
          .given("data.json", R"({"links":[{"id":1}]})")
          .call("--readObjectArrayConcat -f data.json links id")
          .reports("--read error : Path \"-f\" does not exist\n"),
      ToolCall("an_option_where_the_path_belongs_is_the_path_of_the_separated_form")
          .given("data.json", R"({"links":[{"id":1,"hostname":"h","port":2}]})")
          .call("-roacs -f data.json links id hostname port /:")
          .reports("--read error : Path \"-f\" does not exist\n"),
      ToolCall("the_list_ends_at_the_next_option")
          .given("d.json", kLetters)
          .call("-roacs l a b / -f d.json")
          .prints("A/B\n"),
      ToolCall("a_separator_that_begins_with_a_dash_ends_the_list")
          .given("d.json", kLetters)
          .call("-f d.json -roacs l a b -")
          .prints("Error: invalid argument -\n")
          .exits(1),
      ToolCall("an_empty_separator_argument_ends_the_list_and_is_refused")
          .given("d.json", kLetters)
          .call({"-f", "d.json", "-roacs", "l", "a", "b", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("an_empty_field_argument_ends_the_list_and_is_refused")
          .given("d.json", kLetters)
          .call({"-f", "d.json", "-roac", "l", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("a_path_alone_misses_its_fields")
          .call("-roac l")
          .prints("Error: Error: missing argument(s) after -roac\n")
          .exits(1),
      ToolCall("a_path_alone_misses_its_fields_in_long_form")
          .call("--readObjectArrayConcat l")
          .prints("Error: Error: missing argument(s) after --readObjectArrayConcat\n")
          .exits(1),
      ToolCall("a_path_alone_misses_its_separator")
          .call("-roacs l")
          .prints("Error: Error: missing argument(s) after -roacs\n")
          .exits(1),
      ToolCall("a_separator_without_a_field_is_refused")
          .call("--readObjectArrayConcatSep l /")
          .prints("Error: Error: missing argument(s) after --readObjectArrayConcatSep\n")
          .exits(1),
      ToolCall("a_lone_comma_is_one_empty_piece_and_no_field")
          .call("-roacs l ,")
          .prints("Error: Error: missing argument(s) after -roacs\n")
          .exits(1),
      ToolCall("an_option_where_the_fields_belong_leaves_no_separator")
          .given("d.json", kLetters)
          .call("-roacs l -f d.json")
          .prints("Error: Error: missing argument(s) after -roacs\n")
          .exits(1),
      ToolCall("an_empty_argument_where_the_fields_belong_leaves_no_separator")
          .call({"-roacs", "l", ""})
          .prints("Error: Error: missing argument(s) after -roacs\n")
          .exits(1),
  };
}

const Table kConcatenationLists("ConcatenationLists", rowsOfLists);

}  // namespace
}  // namespace kovalt::test
