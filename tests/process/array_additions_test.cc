// Additions of arrays of strings, numbers and booleans. ValueLists shows which arguments are their elements.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> arrayAdditionsRows() {
  return {
      // Strings.
      added("strings_keep_their_order_and_bytes", "-aa k b a b 1 TRUE \"\n\xC3\xA9\xFF",
            "{\"k\":[\"b\",\"a\",\"b\",\"1\",\"TRUE\",\"\\\"\\n\xC3\xA9\xFF\"]}"),
      added("array_below_missing_objects", "-aa a.b x", R"({"a":{"b":["x"]}})"),
      added("last_of_two_arrays_stays", "-aa k a b -aa k c", R"({"k":["c"]})"),
      changed("array_replaces_a_value_of_any_type", R"({"a":["x","y"],"b":{"c":1},"d":"s","e":["x"]})",
              "-aa a z -aa b z -aa d z -aa e", R"({"a":["z"],"b":["z"],"d":["z"],"e":[]})"),
      changed("array_in_a_selected_object", R"({"l":[{"id":1,"tags":["x"]}]})", "-aa l.id=1.tags y",
              R"({"l":[{"id":1,"tags":["y"]}]})"),
      added("array_after_a_failed_selection_is_appended", "-aa k=1 a b -aa k=1 a", R"({"k=1":["a","b","a"]})")
          .reports(notFound("k=1") + notFound("k=1")),
      ToolCall("array_replaces_the_root")
          .given("f.json", R"({"k":1})")
          .call("-f f.json -aa '' x y")
          .leaves("f.json", R"([
  "x",
  "y"
])"),
      clashing("array_below_a_string", R"({"a":"s"})", "-aa a.b x", "a"),
      clashing("array_below_an_array", R"({"a":["s"]})", "-aa a.b x", "a"),

      // Numbers.
      added("numbers_stop_at_the_first_other_character", "-aan k 12abc 3.9 0x1F ' +7' 010", R"({"k":[12,3,0,7,10]})"),
      added("limits", "-aan k 2147483647,-2147483648", R"({"k":[2147483647,-2147483648]})"),
      changed("numbers_replace_an_array", R"({"k":[1,2]})", "-aan k 3", R"({"k":[3]})"),
      ToolCall("word_among_numbers").call("--addArrayNumber k 1 two").aborts(),
      ToolCall("number_above_the_range").call("--addArrayNumber k 1 2147483648").aborts(),
      ToolCall("number_below_the_range").call("--addArrayNumber k 1,-2147483649").aborts(),
      ToolCall("bad_number_keeps_the_file")
          .given("f.json", R"({"k":[1]})")
          .call("--fileDisplay f.json --addArrayNumber k 1 x")
          .aborts(),
      clashing("numbers_below_a_number", R"({"a":1})", "-aan a.b 1", "a"),

      // Booleans. A message lists all values of its array.
      added("booleans", "-aab k true FALSE 1 0", R"({"k":[true,false,true,false]})"),
      added("several_rejected_words_give_one_message", "-aab k YES true No", R"({"k":[null,true,null]})")
          .reports(rejected("[ yes true no ]")),
      added("rejected_word_with_a_space_and_with_letters_that_are_not_ascii", "-aab k ' true' \xC3\x89T",
            R"({"k":[null,null]})")
          .reports(rejected("[  true \xC3\x89t ]")),
      added("each_array_has_its_own_message", "-aab k x -aab l 1 -aab m y", R"({"k":[null],"l":[true],"m":[null]})")
          .reports(rejected("[ x ]") + rejected("[ y ]")),
      added("rejected_below_missing_objects", "-aab a.b no", R"({"a":{"b":[null]}})").reports(rejected("[ no ]")),
      added("rejected_at_the_root", "-aab '' no", "[null]").reports(rejected("[ no ]")),
      changed("rejected_for_existing_values_gives_one_message_each", R"({"k":[true,true],"l":"s"})",
              "-aab k no -aab l never", R"({"k":[null],"l":[null]})")
          .reports(rejected("[ no ]") + rejected("[ never ]")),
      clashing("rejected_below_a_string", R"({"a":"s"})", "-aab a.b no", "a").reports(rejected("[ no ]") + clash("a")),
  };
}

const Table kArrayAdditions("ArrayAdditions", arrayAdditionsRows);

}  // namespace
}  // namespace kovalt::test
