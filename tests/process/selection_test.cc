// Selection steps: which object of an array "refKey=refValue" selects, and the messages if it selects none.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> matches() {
  return {
      // Numbers are compared as they are printed.
      reading("integer", R"({"l":[{"id":77},{"id":7,"n":"x"}]})", "l.id=7.n").printsLine("x"),
      reading("integers_of_64_bits", R"({"l":[{"id":-9223372036854775808},{"id":18446744073709551615,"n":"x"}]})",
              "l.id=18446744073709551615.n")
          .printsLine("x"),
      reading("negative_integer", R"({"l":[{"id":5},{"id":-5,"n":"x"}]})", "l.id=-5.n").printsLine("x"),
      reading("first_digits_of_an_integer", R"({"l":[{"id":55}]})", "l.id=5").reports(notFound("id=5")),
      reading("zero_is_not_an_empty_value", R"({"l":[{"id":0}]})", "l.id=").reports(notFound("id=")),
      reading("integer_with_a_sign", R"({"l":[{"id":5}]})", "l.id=+5").reports(notFound("id=+5")),
      reading("integer_with_a_leading_zero", R"({"l":[{"id":5}]})", "l.id=05").reports(notFound("id=05")),
      reading("double_is_not_an_integer", R"({"l":[{"id":7.0,"n":"x"}]})", "l.id=7.n").reports(notFound("id=7")),
      reading("double_with_an_exponent", R"({"l":[{"id":10e20,"n":"x"}]})", "l.id=1e21.n").printsLine("x"),
      reading("double_as_in_the_file", R"({"l":[{"id":10E20}]})", "l.id=10E20").reports(notFound("id=10E20")),

      // Booleans match two words.
      reading("true", R"({"l":[{"on":false,"n":1},{"on":true,"n":2}]})", "l.on=true.n").printsLine("2"),
      reading("false", R"({"l":[{"on":true,"n":1},{"on":false,"n":2}]})", "l.on=false.n").printsLine("2"),
      reading("boolean_is_not_a_digit", R"({"l":[{"on":true}]})", "l.on=1").reports(notFound("on=1")),
      reading("boolean_in_capitals", R"({"l":[{"on":true}]})", "l.on=True").reports(notFound("on=True")),

      // Strings match byte for byte, up to their first NUL.
      reading("string", R"({"l":[{"id":"ab","n":1},{"id":"a","n":2}]})", "l.id=a.n").printsLine("2"),
      reading("string_with_other_letters", R"({"l":[{"id":"Ab"},{"id":"ab "}]})", "l.id=ab").reports(notFound("id=ab")),
      reading("string_like_a_boolean", R"({"l":[{"id":"true","n":1}]})", "l.id=true.n").printsLine("1"),
      reading("string_with_escapes", R"({"l":[{"id":"\u00e9\/","n":1}]})", "l.id=é/.n").printsLine("1"),
      reading("string_with_the_escape_as_it_is_written", R"({"l":[{"id":"a\nb"}]})", R"(l.id=a\nb)")
          .reports(notFound(R"(id=a\nb)")),
      reading("string_that_begins_with_a_nul", R"({"l":[{"id":"\u0000b","n":1}]})", "l.id=.n").printsLine("1"),
      reading("string_with_a_nul", R"({"l":[{"id":"ab\u0000cd","n":1}]})", "l.id=ab.n").printsLine("1"),

      // Arrays match by any of their numbers and strings.
      reading("array_with_the_string", R"({"l":[{"tags":["blue","red"],"n":1}]})", "l.tags=red.n").printsLine("1"),
      reading("array_with_the_number", R"({"l":[{"tags":[22.0]},{"tags":[1,22],"n":1}]})", "l.tags=22.n")
          .printsLine("1"),
      reading("array_with_both", R"({"l":[{"tags":["1",2],"n":1}]})", "l.tags=2.n").printsLine("1"),
      reading("array_with_a_string_with_a_nul", R"({"l":[{"tags":["a\u0000b"],"n":1}]})", "l.tags=a.n").printsLine("1"),
      reading("array_is_not_compared_as_text", R"({"l":[{"tags":[1,2]}]})", "l.tags=[1,2]")
          .reports(notFound("tags=[1,2]")),
      reading("array_with_part_of_the_string", R"({"l":[{"tags":["reddish"]}]})", "l.tags=red")
          .reports(notFound("tags=red")),
      reading("array_with_other_items", R"({"l":[{"tags":[null,{},[],true,"red"],"n":1}]})", "l.tags=red.n")
          .printsLine("1"),
      reading("empty_array", R"({"l":[{"tags":[],"n":1},{"tags":["red"],"n":2}]})", "l.tags=red.n").printsLine("2"),
  };
}

std::vector<ToolCall> searches() {
  return {
      reading("first_match_is_selected", R"({"l":[{"id":"5","n":"first"},{"id":5,"n":"second"}]})", "l.id=5.n")
          .printsLine("first"),
      reading("elements_after_the_match_are_not_examined", R"({"l":[{"id":1,"n":"x"},3,{"id":null}]})", "l.id=1.n")
          .printsLine("x"),
      reading("first_of_equal_names_is_compared", R"({"l":[{"id":1,"id":2},{"id":2,"n":"x"}]})", "l.id=2.n")
          .printsLine("x"),
      reading("objects_without_the_key_are_skipped", R"({"l":[{},{"ID":1},{"id":1,"n":"x"}]})", "l.id=1.n")
          .printsLine("x"),
      reading("selected_object_is_printed", R"({"l":[{"id":1,"n":"x"}]})", "l.id=1").printsLine(R"({"id":1,"n":"x"})"),
      reading("root_array", R"([{"id":1,"n":"x"}])", "id=1.n").printsLine("x"),
      reading("selection_in_a_selected_object", R"({"l":[{"id":1,"m":[{"k":"a","n":2},{"k":"b","n":3}]}]})",
              "l.id=1.m.k=b.n")
          .printsLine("3"),

      // Nothing is found.
      reading("no_object_matches", R"({"l":[{},{"id":2}]})", "l.id=1.n.o").reports(notFound("id=1")),
      reading("object_in_place_of_an_array", R"({"o":{"id":1}})", "o.id=1").reports(notFound("id=1")),
      reading("null_in_place_of_an_array", R"({"l":null})", "l.id=1").reports(notFound("id=1")),
      reading("root_object_in_place_of_an_array", R"({"id":1})", "id=1").reports(notFound("id=1")),
      reading("array_without_elements", R"({"l":[]})", "l.id=1").reports(notFound("id=1")),
      reading("selected_object_in_place_of_an_array", R"({"l":[{"id":1}]})", "l.id=1.k=b").reports(notFound("k=b")),
      reading("step_is_reported_as_typed", R"({"l":[]})", "l. I d=a\"=\\b ").reports(notFound(" I d=a\"=\\b ")),

      // An element that is not an object, and null or an object under the key, stop the search.
      reading("number_stops_the_search", R"({"l":[3,{"id":1}]})", "l.id=1").reports(notComparable("id=1")),
      reading("null_stops_the_search", R"({"l":[{"id":2},null,{"id":1}]})", "l.id=1").reports(notComparable("id=1")),
      reading("null_under_the_key_stops_the_search", R"({"l":[{"id":null},{"id":"null"}]})", "l.id=null")
          .reports(notComparable("id=null")),
      reading("object_under_the_key_stops_the_search", R"({"l":[{"id":{}},{"id":1}]})", "l.id=1")
          .reports(notComparable("id=1")),

      // Other items of an array never match; they are reported unless another element matches.
      reading("boolean_in_an_array", R"({"l":[{"tags":[true,"blue"]}]})", "l.tags=true")
          .reports(notComparable("tags=true")),
      reading("null_in_an_array", R"({"l":[{"tags":["blue",null]}]})", "l.tags=null")
          .reports(notComparable("tags=null")),
      reading("object_in_an_array", R"({"l":[{"tags":[{"tags":"red"}]}]})", "l.tags=red")
          .reports(notComparable("tags=red")),
      reading("array_in_an_array", R"({"l":[{"tags":[["red"]]}]})", "l.tags=red").reports(notComparable("tags=red")),
      reading("item_in_an_earlier_element", R"({"l":[{"tags":[null]},{"tags":["blue"]},{"tags":1}]})", "l.tags=red")
          .reports(notComparable("tags=red")),
      reading("item_before_a_match", R"({"l":[{"tags":[null]},{"tags":["red"],"n":2}]})", "l.tags=red.n")
          .printsLine("2"),
      reading("item_in_an_earlier_selection", R"({"a":[{"t":[null]},{"t":"x","b":[{"t":1}]}]})", "a.t=x.b.t=2")
          .reports(notFound("t=2")),
  };
}

const Table kSelectionMatches("SelectionMatches", matches);
const Table kSelectionSearches("SelectionSearches", searches);

}  // namespace
}  // namespace kovalt::test
