// The usage text, and the calls that it shows.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

// The text ends with an end of line, and the program writes one more.
constexpr auto kUsageText = R"(Usage:

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

constexpr auto kGraph = R"({"links": [{"id": 0, "hostname": "192.168.1.10", "port": 2099},
           {"id": 1, "hostname": "192.168.1.11", "port": 3002}]})";

std::vector<ToolCall> usage() {
  return {
      ToolCall("no_argument_prints_the_usage").call({}).prints(kUsageText),
      ToolCall("usage_on_a_closed_output_is_a_success").withClosedOutput().call({}),
      ToolCall("usage_on_a_full_output_is_a_success").withFullOutput().call({}),
      ToolCall("empty_argument_is_invalid").call("''").prints(invalidArgument("")).exits(1),
      ToolCall("space_is_invalid").call("' '").prints(invalidArgument(" ")).exits(1),
      ToolCall("help_is_not_an_option").call("--help").prints(invalidArgument("--help")).exits(1),
      ToolCall("version_is_not_an_option").call("--version").prints(invalidArgument("--version")).exits(1),
  };
}

std::vector<ToolCall> examples() {
  return {
      ToolCall("add_string").call("--addString object1.object2.stringKey stringValue").prints(R"({
    "object1": {
        "object2": {
            "stringKey": "stringValue"
        }
    }
}
)"),
      ToolCall("add_boolean")
          .call("--addBoolean k1 true -ab k2 1 -ab k3 FalSe -ab k4 0 -ab k5 hello")
          .prints(R"({
    "k1": true,
    "k2": true,
    "k3": false,
    "k4": false,
    "k5": null
}
)")
          .reports(rejected("hello")),
      ToolCall("add_number").call("--addNumber key 666").prints(R"({
    "key": 666
}
)"),
      ToolCall("add_array").call("--addArray key stringValue1 stringValue2 stringValue3").prints(R"({
    "key": [
        "stringValue1",
        "stringValue2",
        "stringValue3"
    ]
}
)"),
      // The usage text shows another key.
      ToolCall("add_array_boolean")
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
          .reports(rejected("[ true 1 false 0 hello ]")),
      // The usage text shows three numbers.
      ToolCall("add_array_number").call("--addArrayNumber key 0 1 2 3").prints(R"({
    "key": [
        0,
        1,
        2,
        3
    ]
}
)"),
      ToolCall("add_object").call("--addObject objectKey").prints(R"({
    "objectKey": {}
}
)"),
      ToolCall("file").call("--file outputFile.json --addString key value").leaves("outputFile.json", R"({
  "key": "value"
})"),
      ToolCall("add_file").given("fileToMerge.json", R"({"a":1})").call("--addFile fileToMerge.json").prints(R"({
    "a": 1
}
)"),
      ToolCall("add_file_at_an_added_object")
          .given("fileToMerge.json", R"({"a":1})")
          .call("--addObject objectKey --addFileAt objectKey fileToMerge.json")
          .prints(R"({
    "objectKey": {
        "a": 1
    }
}
)"),
      ToolCall("add_file_at_a_new_key_does_the_same")
          .given("fileToMerge.json", R"({"a":1})")
          .call("--addFileAt objectKey fileToMerge.json")
          .prints(R"({
    "objectKey": {
        "a": 1
    }
}
)"),
      ToolCall("file_display")
          .call("--fileDisplay outputFile --addString key value")
          .prints(R"({
    "key": "value"
}
)")
          .leaves("outputFile", R"({
  "key": "value"
})"),
      ToolCall("read").call("--read key --addString key value").printsLine("value"),
      ToolCall("read_array").call("--readArray key --addArray key val1 val2").printsLine("val1 val2"),
      ToolCall("read_array_space").call("--readArraySpace key --addArray key val1 val2").printsLine(R"("val1" "val2")"),
      // The usage text omits the key path.
      ToolCall("read_array_space_no_quote_is_rejected")
          .call("--readArraySpaceNoQuote --addArray key val1 val2")
          .prints(invalidArgument("key"))
          .exits(1),
      ToolCall("read_array_comma").call("--readArrayComma key --addArray key val1 val2").printsLine(R"("val1","val2")"),
      ToolCall("read_array_comma_no_quote")
          .call("--readArrayCommaNoQuote key --addArray key val1 val2")
          .printsLine("val1,val2"),
      ToolCall("remove").call("--remove obj.key --addString obj.key value").prints(R"({
    "obj": {}
}
)"),
      ToolCall("remove_and_clear").call("--removeAndClear obj.key --addString obj.key value").printsLine("{}"),
      ToolCall("selection")
          .given("conf.json", R"({"processProvisioning": {"pools": [
              {"names": ["Other"], "maxNumberOfNodesForThisHypervisor": 3},
              {"names": ["Third", "Dastrel"], "maxNumberOfNodesForThisHypervisor": 8}]}})")
          .call("--file conf.json --read processProvisioning.pools.names=Dastrel.maxNumberOfNodesForThisHypervisor")
          .printsLine("8"),
      // The usage text puts -f in place of the key path; the words after it are fields.
      ToolCall("concatenation_reads_the_key_path_f")
          .given("hyperGraph.json", kGraph)
          .call("--readObjectArrayConcat -f hyperGraph.json links id hostname port")
          .reports(readError("-f")),
      ToolCall("concatenation_reads_the_file_name_as_a_field")
          .given("graph.json", R"({"-f": [{"hyperGraph": {"json": "h"}, "links": "l"}]})")
          .call("--addFile graph.json --readObjectArrayConcat -f hyperGraph.json links")
          .printsLine("h l"),
      ToolCall("concatenation_with_the_file_first")
          .given("hyperGraph.json", kGraph)
          .call("-f hyperGraph.json --readObjectArrayConcat links id hostname port")
          .printsLine("0 192.168.1.10 2099 1 192.168.1.11 3002"),
      ToolCall("separated_concatenation_reads_the_key_path_f")
          .given("hypervisorGraph.json", kGraph)
          .call("-roacs -f hypervisorGraph.json links id hostname port /:")
          .reports(readError("-f")),
      ToolCall("separated_concatenation_with_the_file_first")
          .given("hypervisorGraph.json", kGraph)
          .call("-f hypervisorGraph.json -roacs links id hostname port /:")
          .printsLine("0/192.168.1.10:2099 1/192.168.1.11:3002"),
  };
}

const Table kUsage("Usage", usage);
const Table kUsageExamples("UsageExamples", examples);

}  // namespace
}  // namespace kovalt::test
