// How documents are displayed, saved and read: their layout, and the text of numbers and strings.

#include "document_rows.h"

namespace kovalt::test {
namespace {

/// A root that is displayed and saved as the same `text`.
ToolCall root(const std::string& name, const std::string& content, const std::string& text) {
  return ToolCall(name).given("f.json", content).call("-fd f.json -rm ''").printsLine(text).leaves("f.json", text);
}

constexpr auto kNested =
    " { \"a\" :[ ],\"b\":\r\n{},\"c\":[{\t},[null ,{\"d\":true}]] , \"e\":\"\",\"e\":false}\r\n\r\n";

constexpr auto kNumbers =
    "[0,-0,-9223372036854775808,2147483648,-2147483649,4294967296,18446744073709551615,7.0,-0.0,"
    "1e5,1e21,1e-7,1e-23,176.359966]";

constexpr auto kStrings = R"({"\"\\\u0000\u001f\/\u00e9":"\b\f\n\r\t\"\\\/\u0000\u0001\u001f\u00e9\ud83d\ude00<&>'"})";

std::vector<ToolCall> layout() {
  return {
      ToolCall("display_indents_by_four_spaces").given("f.json", kNested).call("-f f.json").prints(R"({
    "a": [],
    "b": {},
    "c": [
        {},
        [
            null,
            {
                "d": true
            }
        ]
    ],
    "e": "",
    "e": false
}
)"),
      ToolCall("save_indents_by_two_spaces").given("f.json", kNested).call("-f f.json -rm ''").leaves("f.json", R"({
  "a": [],
  "b": {},
  "c": [
    {},
    [
      null,
      {
        "d": true
      }
    ]
  ],
  "e": "",
  "e": false
})"),
      reading("read_has_no_whitespace", kNested, "")
          .printsLine(R"({"a":[],"b":{},"c":[{},[null,{"d":true}]],"e":"","e":false})"),
      root("empty_object", "{ }", "{}"),
      root("empty_array", "[\n]", "[]"),
      root("string", "\t\"x y\" ", R"("x y")"),
      root("empty_string", R"( "")", R"("")"),
      root("integer", "-5\n", "-5"),
      root("double", " 1.50", "1.5"),
      root("true", "true ", "true"),
      root("false", "false\r", "false"),
      root("null", " null", "null"),
      ToolCall("save_truncates_a_longer_file")
          .given("f.json", "7" + std::string(500, '\n'))
          .call("--file f.json --addNumber '' 8")
          .leaves("f.json", "8"),
  };
}

std::vector<ToolCall> texts() {
  return {
      ToolCall("displayed_numbers").given("f.json", kNumbers).call("-f f.json").prints(R"([
    0,
    0,
    -9223372036854775808,
    2147483648,
    -2147483649,
    4294967296,
    18446744073709551615,
    7.0,
    -0.0,
    100000.0,
    1e21,
    1e-7,
    1.0000000000000001e-23,
    176.359966
]
)"),
      ToolCall("saved_numbers").given("f.json", kNumbers).call("-f f.json -rm ''").leaves("f.json", R"([
  0,
  0,
  -9223372036854775808,
  2147483648,
  -2147483649,
  4294967296,
  18446744073709551615,
  7.0,
  -0.0,
  100000.0,
  1e21,
  1e-7,
  1.0000000000000001e-23,
  176.359966
])"),
      reading("read_numbers", kNumbers, "")
          .printsLine("[0,0,-9223372036854775808,2147483648,-2147483649,4294967296,18446744073709551615,7.0,-0.0,"
                      "100000.0,1e21,1e-7,"
                      "1.0000000000000001e-23,176.359966]"),
      reading("numbers_are_as_short_as_possible",
              "[7.000,100e-2,2.5e10,-2.50,0.00000015,1.23456789012345e20,1.23456789012345e21,1e-30]", "")
          .printsLine("[7.0,1.0,25000000000.0,-2.5,1.5e-7,123456789012345000000.0,1.23456789012345e21,"
                      "9.999999999999999e-31]"),
      ToolCall("displayed_strings").given("f.json", kStrings).call("-f f.json").prints(R"({
    "\"\\\u0000\u001F/é": "\b\f\n\r\t\"\\/\u0000\u0001\u001Fé😀<&>'"
}
)"),
      ToolCall("saved_strings").given("f.json", kStrings).call("-f f.json -rm ''").leaves("f.json", R"({
  "\"\\\u0000\u001F/é": "\b\f\n\r\t\"\\/\u0000\u0001\u001Fé😀<&>'"
})"),
      reading("read_strings", kStrings, "")
          .printsLine(R"({"\"\\\u0000\u001F/é":"\b\f\n\r\t\"\\/\u0000\u0001\u001Fé😀<&>'"})"),
      root("bytes_that_are_not_utf_8", "\"\xFF\xC3\x7F\" ", "\"\xFF\xC3\x7F\""),
  };
}

/// Strings around the sizes of the buffers, of 8,192 bytes for input and 65,536 for output.
std::vector<ToolCall> sizes() {
  std::vector<ToolCall> rows;
  for (const std::size_t size : {8190U, 8191U, 20000U, 65534U, 65535U, 140000U, 200000U}) {
    const std::string text = '"' + std::string(size, 'x') + '"';
    rows.push_back(root("string_of_" + std::to_string(size), text, text));
  }
  return rows;
}

const Table kLayout("Layout", layout);
const Table kTexts("Texts", texts);
const Table kSizes("Sizes", sizes);

}  // namespace
}  // namespace kovalt::test
