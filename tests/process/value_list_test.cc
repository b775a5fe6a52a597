// Which arguments belong to a list of values, and how a single one is split at commas.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call that reads the whole document, which is `added`.
ToolCall listed(const std::string& name, const std::string& arguments, const std::string& added) {
  return ToolCall(name).call(arguments + " --read ''").printsLine(added);
}

/// A call whose list ends before `argument`, which the parser then rejects as an option.
ToolCall ended(const std::string& name, const std::string& argument) {
  return ToolCall(name).prints(invalidArgument(argument)).exits(1);
}

std::vector<ToolCall> valueListRows() {
  return {
      listed("empty_lists", "--addArray a --addArrayNumber b --addArrayBoolean c", R"({"a":[],"b":[],"c":[]})"),
      listed("lists_end_at_an_option", "-aan k 1 2 -aab l 1 0 -aa m x -as n y",
             R"({"k":[1,2],"l":[true,false],"m":["x"],"n":"y"})"),
      ToolCall("empty_list_of_strings_at_the_end").call("-r k --addArray k").printsLine("[]"),
      ToolCall("empty_list_of_numbers_at_the_end").call("-r k --addArrayNumber k").printsLine("[]"),
      ToolCall("empty_list_of_booleans_at_the_end").call("-r k --addArrayBoolean k").printsLine("[]"),

      // A single value is split at its commas, several values are not.
      listed("one_value", "-aa k x", R"({"k":["x"]})"),
      listed("one_string_is_split", "-aa k a,b,c", R"({"k":["a","b","c"]})"),
      listed("one_value_of_numbers_is_split", "-aan k 1,2,-3", R"({"k":[1,2,-3]})"),
      listed("one_value_of_booleans_is_split", "-aab k TRUE,0", R"({"k":[true,false]})"),
      listed("one_value_before_an_option_is_split", "-aa k a,b -as l m", R"({"k":["a","b"],"l":"m"})"),
      listed("two_strings_are_not_split", "-aa k a,b c,d", R"({"k":["a,b","c,d"]})"),
      listed("two_numbers_are_not_split", "-aan k 1,2 3", R"({"k":[1,3]})"),
      listed("two_booleans_are_not_split", "-aab k 1,0 1", R"({"k":[null,true]})").reports(rejected("[ 1,0 1 ]")),

      // Empty pieces are kept, but none follows the last comma.
      listed("comma_at_each_place", "-aa k ,a,,b,", R"({"k":["","a","","b"]})"),
      listed("lone_comma", "-aa k ,", R"({"k":[""]})"),
      listed("two_commas_at_the_end", "-aa k a,,", R"({"k":["a",""]})"),
      listed("comma_after_the_last_number", "-aan k 1,2,", R"({"k":[1,2]})"),
      listed("empty_piece_of_booleans", "-aab k 1,,0", R"({"k":[true,null,false]})").reports(rejected("[ 1  0 ]")),
      ToolCall("empty_piece_of_numbers").call("-aan k 1,,2").aborts(),

      // No other character separates values, and none protects a comma.
      listed("other_separators", "-aa k 'a b;c|d=e-f'", R"({"k":["a b;c|d=e-f"]})"),
      listed("ends_of_lines", "-aa k a\nb,c", R"({"k":["a\nb","c"]})"),
      listed("backslash", R"(-aa k a\,b)", R"({"k":["a\\","b"]})"),
      listed("quotes", R"(-aa k "a,b")", R"({"k":["\"a","b\""]})"),
      listed("spaces", "-aa k 'a , b'", R"({"k":["a "," b"]})"),

      // An empty argument or one that begins with a dash ends the list.
      ended("empty_argument_in_place_of_values", "").call("--addArray k ''"),
      ended("empty_argument_between_values", "").call("-aa k a '' b"),
      ended("lone_dash", "-").call("-aa k a -"),
      ended("two_dashes", "--").call("-aa k -- a"),
      ended("negative_number", "-5").call("-aan k 1 -5"),
      ended("negative_number_before_a_comma", "-5,1").call("-aan k -5,1"),
      listed("piece_that_begins_with_a_dash", "-aa k a,-b", R"({"k":["a","-b"]})"),
      listed("space_before_a_dash", "-aan k ' -5' 6", R"({"k":[-5,6]})"),
      listed("minus_sign_that_is_not_ascii", "-aa k −5", R"({"k":["−5"]})"),
  };
}

const Table kValueLists("ValueLists", valueListRows);

}  // namespace
}  // namespace kovalt::test
