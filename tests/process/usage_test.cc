// The usage text, and the calls that it shows.

#include "tool_call.h"

namespace kovalt::test {
namespace {

// The text ends with a line end of its own, and the call writes one more after it.
constexpr const char* kUsageText = R"(Usage:

  Kovalt

  --addArray or -aa                : [keypath]  (optional)[string value](separator...) add array key. All following arguments will be added as string until next '-', using comma or space as separator
  --addArrayBoolean or -aab        : [keypath]  (optional)[boolean value](...) add array key. All following arguments will be added as number until next '-', using comma or space as separator
  --addArrayNumber or -aan         : [keypath]  (optional)[number value](...) add array key. All following arguments will be added as number until next '-', using comma or space as separator
  --addFile or -af                 : [filepath] file that will be merged with output file
  --addFileAt or -afat             : [keypath]  [filepath], that will be merged with output file at keypath
  --addBoolean or -ab              : [keypath]  [boolean value], add key with a boolean value in output file
  --addNumber or -an               : [keypath]  [number value], add key with a number value in output file
  --addObject or -ao               : [keypath]  add an empty object key, no arguments
  --addString or -as               : [keypath]  [string value], add key with a string value in output file
  --file or -f                     : [filepath] file in which we add, remove or read keys. If not specified, generated json will be logged out. If not keys are added or remove, file will not be saved
  --fileDisplay or -fd             : [filepath] same as --file, but will also log out result file content
  --read or -r                     : [keypath]  to read. If multiple --read option are asked, then a json will be logged, otherwise only the string value of the key
  --readArray or -ra               : [keypath]  equivalent of readArraySpaceNoQuote or racq
  --readArraySpace or -ras         : [keypath]  to read an array key without the surrounding bracket '[]', space separator
  --readArraySpaceNoQuote or -rasq : [keypath]  to read an array key without the surrounding bracket '[]', space separator, no quote around strings
  --readArrayComma or -rac         : [keypath]  to read an array key without the surrounding bracket '[]', comma separator
  --readArrayCommaNoQuote or -racq : [keypath]  to read an array key without the surrounding bracket '[]', comma separator, no quote around strings
  --remove or -rm                  : [keypath]  to remove a key, do not remove empty remaining objects
  --removeAndClear or -rmc         : [keypath]  to remove a key, and clear empty remaining objects
  --readObjectArrayConcat or -roac : [keypath] [keypath in object] (optional other [keypath in object]...). Read
  --readObjectArrayConcatSep or -roacs : [keypath] [keypath in object] (optional other [keypath in object]...) one_char_separator(s). Separator == "/:" with 3 fields will output field1/field2:field3

  JSON result will be displayed if --fileDisplay is specified, or if there isn't any --readXXX option AND no output file is modified.
  --readXXX option will always be displayed.

About [keypath]
  Specify a path in the json, with "." as separator, like "network.webSocketPort".
  An element of an array of Objects can be selected with the format "refKey=refValue", the refKey must be a boolean, number, string or array of number or string.
    For instance "processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor".

Examples:

  Kovalt --addString object1.object2.stringKey stringValue                  # keyPath sample, result is { "object1" : { "object2": { "stringKey": "stringValue" } } }
  Kovalt --addBoolean k1 true -ab k2 1 -ab k3 FalSe -ab k4 0 -ab k5 hello   # { "k1": true, "k2": true, "k3": false, "k4": false, "k5": null }
  Kovalt --addNumber key 666                                                # { "key": 666 }
  Kovalt --addArray key stringValue1 stringValue2 stringValue3              # variable argument string, { "key": [ "stringValue1", "stringValue2", "stringValue3" ] }
  Kovalt --addArrayBoolean key TRUE 1 FalSe 0 hello                         # { "k1": [ true, true, false, false, null ] }
  Kovalt --addArrayNumber key 0 1 2 3                                       # variable argument number, { "key": [ 1, 2, 3 ] }
  Kovalt --addObject objectKey                                              # empty object only, result is { "objectKey" :{} }
  Kovalt --file /tmp/outputFile.json --addString key value                  # output file specified, no output log is generated
  Kovalt --addFile /tmp/fileToMerge.json                                    # json file merged to result, which is displayed in this case because --file isn't specified
  Kovalt --addObject objectKey --addFileAt objectKey /tmp/fileToMerge.json  # fileToMerge placed in objectKey property
  Kovalt --addFileAt objectKey /tmp/fileToMerge.json                        # same as above
  Kovalt --fileDisplay outputFile --addString key value                     # output file will always be displayed in output log

  Kovalt --read key --addString key value                                   # value
  Kovalt --readArray key --addArray key val1 val2                           # val1 val2
  Kovalt --readArraySpace key --addArray key val1 val2                      # "val1" "val2"
  Kovalt --readArraySpaceNoQuote --addArray key val1 val2                   # val1 val2
  Kovalt --readArrayComma key --addArray key val1 val2                      # "val1","val2"
  Kovalt --readArrayCommaNoQuote key --addArray key val1 val2               # val1,val2
  Kovalt --remove obj.key --addString obj.key value                         # {"obj":{}}
  Kovalt --removeAndClear obj.key --addString obj.key value                 # {}
  Kovalt --readObjectArrayConcat -f hyperGraph.json links id hostname port  # 0 192.168.1.10 2099 1 192.168.1.11 3002
  Kovalt -roacs -f hypervisorGraph.json links id hostname port /:           # 0/192.168.1.10:2099 1/192.168.1.11:3002

)";

constexpr const char* kGraph = R"({"links": [{"id": 0, "hostname": "192.168.1.10", "port": 2099},
           {"id": 1, "hostname": "192.168.1.11", "port": 3002}]})";

std::vector<ToolCall> rows() {
  return {
      ToolCall("no_argument_prints_the_usage").call({}).prints(kUsageText),
      ToolCall("the_usage_leaves_every_file_alone").given("conf.json", "{}").call({}).prints(kUsageText),
      ToolCall("the_usage_on_a_closed_output_is_a_success").withClosedOutput().call({}),
      ToolCall("the_usage_on_a_full_output_is_a_success").withFullOutput().call({}),

      // Any argument at all goes to the parser; there is no option that asks for help.
      ToolCall("an_empty_argument_is_parsed_and_refused").call({""}).prints("Error: invalid argument \n").exits(1),
      ToolCall("a_blank_argument_is_parsed_and_refused").call({" "}).prints("Error: invalid argument  \n").exits(1),
      ToolCall("two_empty_arguments_are_refused_at_the_first")
          .call({"", ""})
          .prints("Error: invalid argument \n")
          .exits(1),
      ToolCall("long_help_is_refused").call("--help").prints("Error: invalid argument --help\n").exits(1),
      ToolCall("short_help_is_refused").call("-h").prints("Error: invalid argument -h\n").exits(1),
      ToolCall("version_is_refused").call("--version").prints("Error: invalid argument --version\n").exits(1),

      // The calls that the usage shows.
      ToolCall("example_add_string").call("--addString object1.object2.stringKey stringValue").prints(R"({
    "object1": {
        "object2": {
            "stringKey": "stringValue"
        }
    }
}
)"),
      ToolCall("example_add_boolean")
          .call("--addBoolean k1 true -ab k2 1 -ab k3 FalSe -ab k4 0 -ab k5 hello")
          .prints(R"({
    "k1": true,
    "k2": true,
    "k3": false,
    "k4": false,
    "k5": null
}
)")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, hello rejected.\n"),
      ToolCall("example_add_number").call("--addNumber key 666").prints("{\n    \"key\": 666\n}\n"),
      ToolCall("example_add_array").call("--addArray key stringValue1 stringValue2 stringValue3").prints(R"({
    "key": [
        "stringValue1",
        "stringValue2",
        "stringValue3"
    ]
}
)"),
      ToolCall("example_add_object").call("--addObject objectKey").prints("{\n    \"objectKey\": {}\n}\n"),
      ToolCall("example_file")
          .call("--file outputFile.json --addString key value")
          .leaves("outputFile.json", "{\n  \"key\": \"value\"\n}"),
      ToolCall("example_add_file")
          .given("fileToMerge.json", R"({"a":1})")
          .call("--addFile fileToMerge.json")
          .prints("{\n    \"a\": 1\n}\n"),
      ToolCall("example_add_file_at_an_added_object")
          .given("fileToMerge.json", R"({"a":1})")
          .call("--addObject objectKey --addFileAt objectKey fileToMerge.json")
          .prints(R"({
    "objectKey": {
        "a": 1
    }
}
)"),
      ToolCall("example_add_file_at_a_new_key_gives_the_same")
          .given("fileToMerge.json", R"({"a":1})")
          .call("--addFileAt objectKey fileToMerge.json")
          .prints(R"({
    "objectKey": {
        "a": 1
    }
}
)"),
      ToolCall("example_file_display")
          .call("--fileDisplay outputFile --addString key value")
          .prints("{\n    \"key\": \"value\"\n}\n")
          .leaves("outputFile", "{\n  \"key\": \"value\"\n}"),
      ToolCall("example_read").call("--read key --addString key value").prints("value\n"),
      ToolCall("example_read_array").call("--readArray key --addArray key val1 val2").prints("val1 val2\n"),
      ToolCall("example_read_array_space")
          .call("--readArraySpace key --addArray key val1 val2")
          .prints("\"val1\" \"val2\"\n"),
      ToolCall("example_read_array_comma")
          .call("--readArrayComma key --addArray key val1 val2")
          .prints("\"val1\",\"val2\"\n"),
      ToolCall("example_read_array_comma_no_quote")
          .call("--readArrayCommaNoQuote key --addArray key val1 val2")
          .prints("val1,val2\n"),
      ToolCall("example_remove").call("--remove obj.key --addString obj.key value").prints("{\n    \"obj\": {}\n}\n"),
      ToolCall("example_remove_and_clear").call("--removeAndClear obj.key --addString obj.key value").prints("{}\n"),
      ToolCall("example_selection_by_an_array_of_names")
          .given("conf.json", R"({"processProvisioning": {"pools": [
              {"names": ["Other"], "maxNumberOfNodesForThisHypervisor": 3},
              {"names": ["Third", "Dastrel"], "maxNumberOfNodesForThisHypervisor": 8}]}})")
          .call("--file conf.json --read processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor")
          .prints("8\n"),

      // Where the usage and the parser disagree, the parser holds and the usage stays as it is.
      ToolCall("read_array_takes_no_commas_as_racq_does")
          .call("--readArray key -aa key val1 val2")
          .prints("val1 val2\n"),
      ToolCall("ra_takes_no_commas_as_racq_does").call("-ra key -aa key val1 val2").prints("val1 val2\n"),
      ToolCall("add_array_boolean_adds_no_numbers").call("--addArrayBoolean key 1 0").prints(R"({
    "key": [
        true,
        false
    ]
}
)"),
      ToolCall("add_object_needs_its_key_path")
          .call("--addObject")
          .prints("Error: Error: missing argument(s) after --addObject\n")
          .exits(1),
      ToolCall("the_separator_is_the_whole_last_value")
          .given("graph.json", kGraph)
          .call("--file graph.json -roacs links id hostname port /:+")
          .prints("0/192.168.1.10:2099 1/192.168.1.11:3002\n"),
      ToolCall("the_key_of_example_add_array_boolean_is_the_one_given")
          .call("--addArrayBoolean key TRUE 1 FalSe 0 hello")
          .prints(R"({
    "key": [
        true,
        true,
        false,
        false,
        null
    ]
}
)")
          .reports("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, [ true 1 false 0 hello ] "
                   "rejected.\n"),
      ToolCall("the_numbers_of_example_add_array_number_are_four").call("--addArrayNumber key 0 1 2 3").prints(R"({
    "key": [
        0,
        1,
        2,
        3
    ]
}
)"),
      ToolCall("example_read_array_space_no_quote_is_refused")
          .call("--readArraySpaceNoQuote --addArray key val1 val2")
          .prints("Error: invalid argument key\n")
          .exits(1),
      ToolCall("example_concat_takes_the_file_option_as_its_key_path")
          .given("hyperGraph.json", kGraph)
          .call("--readObjectArrayConcat -f hyperGraph.json links id hostname port")
          .reports("--read error : Path \"-f\" does not exist\n"),
      ToolCall("example_concat_takes_the_file_name_as_a_field_path")
          .given("graph.json", R"({"-f": [{"hyperGraph": {"json": "h"}, "links": "l"}]})")
          .call("--addFile graph.json --readObjectArrayConcat -f hyperGraph.json links")
          .prints("h l\n"),
      ToolCall("example_concat_with_the_file_first")
          .given("hyperGraph.json", kGraph)
          .call("-f hyperGraph.json --readObjectArrayConcat links id hostname port")
          .prints("0 192.168.1.10 2099 1 192.168.1.11 3002\n"),
      ToolCall("example_concat_sep_takes_the_file_option_as_its_key_path")
          .given("hypervisorGraph.json", kGraph)
          .call("-roacs -f hypervisorGraph.json links id hostname port /:")
          .reports("--read error : Path \"-f\" does not exist\n"),
      ToolCall("example_concat_sep_with_the_file_first")
          .given("hypervisorGraph.json", kGraph)
          .call("-f hypervisorGraph.json -roacs links id hostname port /:")
          .prints("0/192.168.1.10:2099 1/192.168.1.11:3002\n"),
  };
}

const Table kUsage("Usage", rows);

}  // namespace
}  // namespace kovalt::test
