// Calls that use several kinds of option at once, and what fails in them without or with an end of the call.

#include "tool_call.h"

namespace kovalt::test {
namespace {

using namespace std::string_literals;

constexpr auto kExtra = R"({"list":[{"id":1,"h":"k"}]})";

constexpr auto kReads = R"({
    "s": "v",
    "as": "\"x\" \"y\"",
    "as": "x y",
    "as": "x y",
    "as": "\"x\",\"y\"",
    "as": "x,y",
    "list": "1 k",
    "list": "1/k"
}
)";

constexpr auto kDisplayed = R"({
    "s": "v",
    "list": [
        {
            "id": 1,
            "h": "k"
        }
    ],
    "n": 5,
    "o": {},
    "as": [
        "x",
        "y"
    ],
    "ab": [
        true,
        false
    ],
    "an": [
        1,
        2
    ]
}
)";

constexpr auto kSaved = R"({
  "s": "v",
  "list": [
    {
      "id": 1,
      "h": "k"
    }
  ],
  "n": 5,
  "o": {},
  "as": [
    "x",
    "y"
  ],
  "ab": [
    true,
    false
  ],
  "an": [
    1,
    2
  ]
})";

std::vector<ToolCall> rows() {
  return {
      ToolCall("a_typical_call_saves_and_prints_only_the_read")
          .given("conf.json", R"({"network":{"webSocketPort":"80","host":"h"}})")
          .call("--file conf.json --addString network.webSocketPort 9000 --read network.webSocketPort")
          .prints("9000\n")
          .leaves("conf.json", "{\n  \"network\": {\n    \"webSocketPort\": \"9000\",\n    \"host\": \"h\"\n  }\n}"),
      ToolCall("a_typical_call_creates_the_file_and_the_missing_section")
          .call("-f conf.json -as network.webSocketPort 9000 -r network.webSocketPort")
          .prints("9000\n")
          .leaves("conf.json", "{\n  \"network\": {\n    \"webSocketPort\": \"9000\"\n  }\n}"),
      ToolCall("the_order_of_the_options_does_not_matter_between_kinds")
          .given("conf.json", R"({"a":"1","b":"2"})")
          .call(
              {"--read", "", "--remove", "c", "--addString", "c", "3", "--addString", "d", "4", "--file", "conf.json"})
          .prints("{\"a\":\"1\",\"b\":\"2\",\"d\":\"4\"}\n")
          .leaves("conf.json", "{\n  \"a\": \"1\",\n  \"b\": \"2\",\n  \"d\": \"4\"\n}"),
      ToolCall("additions_and_merges_run_in_command_line_order")
          .given("more.json", R"({"k":"merged"})")
          .call("-as k first -af more.json -as l x -as k last -r k")
          .prints("last\n"),
      ToolCall("a_merge_after_an_addition_replaces_its_value")
          .given("more.json", R"({"k":"merged"})")
          .call("-as k first -af more.json -r k")
          .prints("merged\n"),
      ToolCall("every_long_form_in_one_call")
          .given("extra.json", kExtra)
          .call("--addString s v --addBoolean b true --addNumber n 5 --addObject o --addArray as x y --addArrayBoolean "
                "ab 1 0 --addArrayNumber an 1 2 --addFile extra.json --addFileAt at extra.json --remove b "
                "--removeAndClear at.list --read s --readArraySpace as --readArraySpaceNoQuote as --readArray as "
                "--readArrayComma as --readArrayCommaNoQuote as --readObjectArrayConcat list id h "
                "--readObjectArrayConcatSep list id h / --fileDisplay out.json")
          .prints(std::string(kDisplayed) + kReads)
          .leaves("out.json", kSaved),
      ToolCall("every_short_form_in_one_call")
          .given("extra.json", kExtra)
          .call("-as s v -ab b true -an n 5 -ao o -aa as x y -aab ab 1 0 -aan an 1 2 -af extra.json -afat at "
                "extra.json -rm b -rmc at.list -r s -ras as -rasq as -ra as -rac as -racq as -roac list id h -roacs "
                "list id h / -f out.json")
          .prints(kReads)
          .leaves("out.json", kSaved),
      ToolCall("the_short_file_display_form_prints_and_saves")
          .call("-fd out.json -as a b")
          .prints("{\n    \"a\": \"b\"\n}\n")
          .leaves("out.json", "{\n  \"a\": \"b\"\n}"),
      ToolCall("a_parse_error_ends_the_call_before_anything_is_read_or_written")
          .given("bad.json", "{nothing")
          .call("-f bad.json -as a b -r a nonsense")
          .prints("Error: invalid argument nonsense\n")
          .exits(1),
      ToolCall("failed_edits_removals_reads_and_loads_leave_the_status_at_zero")
          .given("bad.json", "{nothing")
          .call("-f bad.json -af none.json -rm gone -r a")
          .reports("Could not parse json file bad.json\n"
                   "Could not open document: none.json\n"
                   "--read error : Path \"a\" does not exist\n")
          .leaves("bad.json", "{}"),
      ToolCall("a_failed_save_still_prints_the_reads_and_gives_status_one")
          .call("--file missing/conf.json --addString a b --read a")
          .prints("b\n")
          .reports("Could not write document: missing/conf.json\n")
          .exits(1),
      ToolCall("a_failed_save_comes_after_the_display")
          .call("--fileDisplay missing/conf.json --addString a b --read a")
          .withMergedStreams()
          .prints("{\n    \"a\": \"b\"\n}\nCould not write document: missing/conf.json\nb\n")
          .exits(1),
      ToolCall("a_type_clash_ends_the_call_before_display_save_and_reads")
          .given("conf.json", R"({"a":"text"})")
          .call("--fileDisplay conf.json --addString a.b x --read a")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("a_number_that_is_none_ends_the_call_abnormally_before_any_output")
          .given("conf.json", R"({"a":1})")
          .call("-fd conf.json -an b abc -r a")
          .aborts(),
      ToolCall("a_merged_file_without_an_object_ends_the_call_abnormally")
          .given("conf.json", R"({"a":1})")
          .given("list.json", "[1]")
          .call("-fd conf.json -af list.json -r a")
          .aborts("IsObject()"),
      ToolCall("the_streams_interleave_in_the_order_of_the_work")
          .given("conf.json", R"({"a":1})")
          .call("-r a -r gone -ab b maybe -fd conf.json")
          .withMergedStreams()
          .prints("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, maybe rejected.\n"
                  "{\n    \"a\": 1,\n    \"b\": null\n}\n"
                  "--read error : Path \"gone\" does not exist\n"
                  "{\n    \"a\": \"1\"\n}\n")
          .leaves("conf.json", "{\n  \"a\": 1,\n  \"b\": null\n}"),
  };
}

std::vector<ToolCall> failures() {
  return {
      // A file that does not parse is an empty object, and is overwritten only by a change.
      ToolCall("broken_file_and_an_edit")
          .given("conf.json", R"({"a":1,)")
          .call("--file conf.json --addString k v")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("broken_file_alone")
          .given("conf.json", R"({"a":1,)")
          .call("--file conf.json")
          .prints("{}\n")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("broken_file_for_display")
          .given("conf.json", R"({"a":1}})")
          .call("--fileDisplay conf.json")
          .prints("{}\n")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("broken_file_and_a_read")
          .given("conf.json", R"({"a":1} x)")
          .call("--file conf.json -r a")
          .reports("Could not parse json file conf.json\n--read error : Path \"a\" does not exist\n"),
      ToolCall("broken_file_and_a_failed_removal")
          .given("conf.json", R"({"a":1} x)")
          .call("--file conf.json -rm a")
          .prints("{}\n")
          .reports("Could not parse json file conf.json\n"),
      ToolCall("broken_array_leaves_an_object")
          .given("conf.json", "[1,2")
          .call("-fd conf.json -as k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("empty_file_and_an_edit")
          .given("conf.json", "")
          .call("-f conf.json -as k v")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),

      // A failed save gives status 1 and stops nothing.
      ToolCall("failed_save")
          .call("--file no/such/conf.json -as k v")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("failed_save_after_the_display")
          .call("--fileDisplay no/such/conf.json -as k v")
          .prints("{\n    \"k\": \"v\"\n}\n")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("failed_save_before_a_failing_read")
          .call("--file no/such/conf.json -as k v -r l")
          .reports("Could not write document: no/such/conf.json\n--read error : Path \"l\" does not exist\n")
          .exits(1),
      ToolCall("failed_save_after_a_removal")
          .call("--file no/such/conf.json -rm a.b")
          .reports("Could not write document: no/such/conf.json\n")
          .exits(1),
      ToolCall("path_that_cannot_be_saved_is_no_failure_without_a_change")
          .call("--file no/such/conf.json")
          .prints("{}\n"),

      // Nothing else gives a status of its own.
      ToolCall("failed_removals_and_reads_are_a_success")
          .call("-rm a -r b -r c")
          .prints("{}\n")
          .reports("--read error : Path \"b\" does not exist\n--read error : Path \"c\" does not exist\n"),

      // A clash of types and a bad number end the call before anything is shown or saved.
      ToolCall("clash_of_types")
          .given("conf.json", R"({"a":"text"})")
          .call("-fd conf.json -as a.b v -r a")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("clash_of_types_before_a_later_edit")
          .given("conf.json", R"({"a":"text"})")
          .call("-f conf.json -as a.b v -af missing.json")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("clash_of_types_behind_an_earlier_edit")
          .given("conf.json", R"({"a":"text"})")
          .call("-f conf.json -as k v -as a.b v")
          .reports("Incompatible types for key a\n")
          .exits(1),
      ToolCall("bad_number").given("conf.json", R"({"a":1})").call("-fd conf.json -as k v -an a abc -r k").aborts(),
      ToolCall("merged_file_that_holds_no_object")
          .given("conf.json", R"({"a":1})")
          .given("more.json", "[1]")
          .call("-fd conf.json -as k v -af more.json -r k")
          .aborts("IsObject()"),
      ToolCall("bad_number_behind_a_message")
          .given("conf.json", "{")
          .call("-f conf.json -an a 2147483648")
          .reports("Could not parse json file conf.json\n")
          .aborts(),
  };
}

const Table kWholeCall("WholeCall", rows);
const Table kRunFailures("RunFailures", failures);

}  // namespace
}  // namespace kovalt::test
