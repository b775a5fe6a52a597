// Additions of strings, empty objects, numbers and booleans.

#include "document_rows.h"
#include "messages.h"

namespace kovalt::test {
namespace {

std::vector<ToolCall> strings() {
  return {
      added("string_that_looks_like_another_value", "-as a 12 -as b TRUE -as c a,b -as d null -as e {}",
            R"({"a":"12","b":"TRUE","c":"a,b","d":"null","e":"{}"})"),
      added("string_is_not_decoded", R"(-as k a\n\u0041)", R"({"k":"a\\n\\u0041"})"),
      added("string_is_escaped", "-as k \"\\/\n\r\t\b\f\x01\x1F", R"({"k":"\"\\/\n\r\t\b\f\u0001\u001F"})"),
      added("last_value_stays", "-as k one -an k 2 -as k three", R"({"k":"three"})"),
      added("value_of_another_type_replaces_an_earlier_one", "-as k one -an k 2", R"({"k":2})"),
      changed("string_replaces_a_value_of_any_type", R"({"a":"x","b":{"y":1},"c":["z"],"d":null,"e":true,"f":1})",
              "-as a v -as b v -as c v -as d v -as e v -as f v",
              R"({"a":"v","b":"v","c":"v","d":"v","e":"v","f":"v"})"),
      changed("string_at_the_root", R"({"a":1})", "-as '' v", "v"),
      clashing("string_below_a_string", R"({"a":"s"})", "-as a.b v", "a"),
      clashing("string_below_an_array", R"({"items":["s"]})", "-as items.0 v", "items"),
      clashing("string_below_null", R"({"a":null})", "-as a.b v", "a"),
      clashing("clash_names_the_member_at_its_level", R"({"a":{"b":{"c":1}}})", "-as a.b.c.d.e v", "c"),
      clashing("clash_exits_before_later_additions", R"({"a":1})", "-as a.b v -an n abc -af missing.json", "a"),
  };
}

std::vector<ToolCall> objects() {
  return {
      added("object_below_missing_objects", "-ao a.b.c", R"({"a":{"b":{"c":{}}}})"),
      added("later_addition_fills_the_object", "-ao a -as a.b v", R"({"a":{"b":"v"}})"),
      added("object_discards_earlier_additions", "-as a.b v -ao a", R"({"a":{}})"),
      changed("object_replaces_a_value_of_any_type", R"({"a":{"x":1,"y":{}},"b":"s","c":[1],"d":2})",
              "-ao a -ao b -ao c", R"({"a":{},"b":{},"c":{},"d":2})"),
      changed("object_empties_the_root", R"({"a":1})", "-ao ''", "{}"),
      ToolCall("object_replaces_a_root_array")
          .given("f.json", "[1]")
          .call("--file f.json --addObject '' --addString a b")
          .leaves("f.json", R"({
  "a": "b"
})"),
      changed("object_empties_a_selected_object", R"({"l":[{"id":1},{"id":2}]})", "-ao l.id=2",
              R"({"l":[{"id":1},{}]})"),
      changed("object_after_a_failed_selection_is_merged", R"({"k=1":{"a":1}})", "-ao k=1", R"({"k=1":{"a":1}})")
          .reports(notFound("k=1")),
      clashing("object_below_a_number", R"({"a":1})", "-ao a.b", "a"),
  };
}

std::vector<ToolCall> numbers() {
  return {
      added("signs", "-an a -5 -an b +7 -an c -0", R"({"a":-5,"b":7,"c":0})"),
      added("leading_whitespace", "-an a ' \t\n\v\f\r42' -an b '  -42'", R"({"a":42,"b":-42})"),
      added("conversion_stops_at_the_first_other_character",
            "-an a 12abc -an b 3.9 -an c -3.9 -an d 0x1F -an e 1e3 -an f '1 2'",
            R"({"a":12,"b":3,"c":-3,"d":0,"e":1,"f":1})"),
      added("number_is_decimal", "-an k 010", R"({"k":10})"),
      added("limits", "-an a 2147483647 -an b -2147483648", R"({"a":2147483647,"b":-2147483648})"),
      added("number_at_the_root", "-an '' 5", "5"),
      ToolCall("number_above_the_range").call("--addNumber k 2147483648").aborts(),
      ToolCall("number_below_the_range").call("--addNumber k -2147483649").aborts(),
      ToolCall("number_beyond_64_bits").call("--addNumber k 99999999999999999999").aborts(),
      ToolCall("word").call("--addNumber k abc").aborts(),
      ToolCall("empty_number").call("--addNumber k ''").aborts(),
      ToolCall("lone_sign").call("--addNumber k -").aborts(),
      ToolCall("two_signs").call("--addNumber k --5").aborts(),
      ToolCall("whitespace_alone").call("--addNumber k ' '").aborts(),
      ToolCall("bad_number_aborts_before_any_output")
          .given("f.json", R"({"k":1})")
          .call("--fileDisplay f.json --addString l v --addNumber k x --read k")
          .aborts(),
      ToolCall("bad_number_aborts_in_its_turn")
          .given("f.json", "{")
          .call("--file f.json --addBoolean b maybe --addNumber n x --addFile missing.json")
          .reports(cannotParse("f.json") + rejected("maybe"))
          .aborts(),
      changed("number_replaces_a_value_of_any_type", R"({"a":1.5,"b":[1],"c":{"d":2}})", "-an a 2 -an b 2 -an c 2",
              R"({"a":2,"b":2,"c":2})"),
      changed("number_in_a_selected_object", R"({"l":[{"names":["W"],"max":1},{"names":["X","Y"],"max":1}]})",
              "-an l.names=X.max 5", R"({"l":[{"names":["W"],"max":1},{"names":["X","Y"],"max":5}]})"),
  };
}

std::vector<ToolCall> booleans() {
  return {
      added("words_in_capitals", "-ab a TRUE -ab b False", R"({"a":true,"b":false})"),
      added("rejected_words", "-ab a True1 -ab b '' -ab c YES -ab d ' true ' -ab e 01",
            R"({"a":null,"b":null,"c":null,"d":null,"e":null})")
          .reports(rejected("true1") + rejected("") + rejected("yes") + rejected(" true ") + rejected("01")),
      added("only_ascii_letters_become_small", "-ab k \xC3\x89T\xC9", R"({"k":null})")
          .reports(rejected("\xC3\x89t\xC9")),
      added("rejected_below_missing_objects", "-ab a.b no", R"({"a":{"b":null}})").reports(rejected("no")),
      added("rejected_once_for_a_new_key_and_twice_for_null", "-ab k no -ab k never", R"({"k":null})")
          .reports(rejected("no") + rejected("never") + rejected("never")),
      added("boolean_replaces_the_null_of_a_rejected_one", "-ab k no -ab k 1", R"({"k":true})").reports(rejected("no")),
      added("boolean_at_the_root", "-ab '' 1", "true"),
      changed("boolean_replaces_a_value_of_any_type", R"({"a":true,"b":{"c":1},"d":"s"})", "-ab a 0 -ab b 1 -ab d 1",
              R"({"a":false,"b":true,"d":true})"),
      changed("rejected_for_an_existing_null", R"({"a":{"k":null}})", "-ab a.k no", R"({"a":{"k":null}})")
          .reports(rejected("no") + rejected("no")),
      clashing("rejected_for_an_existing_boolean", R"({"k":true})", "-ab k no", "k")
          .reports(rejected("no") + rejected("no") + clash("k")),
      clashing("rejected_for_an_existing_string", R"({"a":{"k":"s"}})", "-ab a.k No", "k")
          .reports(rejected("no") + rejected("no") + clash("k")),
      clashing("rejected_below_a_string", R"({"a":"s"})", "-ab a.b no", "a").reports(rejected("no") + clash("a")),
      clashing("rejected_in_a_selected_object", R"({"list":[{"id":1,"on":null}]})", "-ab list.id=1.on no", "list")
          .reports(rejected("no") + rejected("no") + clash("list")),
      added("rejected_after_a_failed_selection", "-ab id=1 no", R"({"id=1":null})")
          .reports(notFound("id=1") + rejected("no")),
      clashing("boolean_after_a_failed_selection_is_never_replaced", "{}", "-ab k=1 true -ab k=1 false", "k=1")
          .reports(notFound("k=1") + notFound("k=1") + clash("k=1")),
      ToolCall("rejected_at_the_root")
          .given("f.json", R"({"a":1})")
          .call("--file f.json --addBoolean '' no")
          .reports(rejected("no") + rejected("no"))
          .aborts("IsObject()"),
  };
}

const Table kStringAdditions("StringAdditions", strings);
const Table kObjectAdditions("ObjectAdditions", objects);
const Table kNumberAdditions("NumberAdditions", numbers);
const Table kBooleanAdditions("BooleanAdditions", booleans);

}  // namespace
}  // namespace kovalt::test
