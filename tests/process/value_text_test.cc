// The text in which numbers and strings are written, whatever their text was in the file that they came from.

#include <array>

#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A file that holds the one value `text`, and the text as which it is displayed.
ToolCall value(const std::string& name, const std::string& text, const std::string& displayed) {
  return ToolCall(name).given("f.json", text).call("--file f.json").prints(displayed + "\n");
}

std::vector<ToolCall> numberRows() {
  return {
      value("integer", "7", "7"),
      value("negative_integer", "-7", "-7"),
      value("zero", "0", "0"),
      value("negative_zero_integer", "-0", "0"),
      value("integer_above_signed_32_bits", "2147483648", "2147483648"),
      value("integer_above_unsigned_32_bits", "4294967296", "4294967296"),
      value("integer_below_signed_32_bits", "-2147483649", "-2147483649"),
      value("integer_above_exact_floating_numbers", "9007199254740993", "9007199254740993"),
      value("largest_signed_integer", "9223372036854775807", "9223372036854775807"),
      value("smallest_integer", "-9223372036854775808", "-9223372036854775808"),
      value("largest_unsigned_integer", "18446744073709551615", "18446744073709551615"),
      value("integer_above_64_bits_becomes_floating", "20000000000000000000", "20000000000000000000.0"),
      value("integer_below_64_bits_becomes_floating", "-10000000000000000000", "-10000000000000000000.0"),

      value("whole_floating_number_keeps_its_point", "7.0", "7.0"),
      value("whole_floating_number_drops_spare_zeros", "7.000", "7.0"),
      value("floating_zero", "0.0", "0.0"),
      value("negative_floating_zero", "-0.0", "-0.0"),
      value("zero_with_an_exponent", "0e5", "0.0"),
      value("fraction", "0.1", "0.1"),
      value("fraction_drops_spare_zeros", "1.10", "1.1"),
      value("negative_fraction", "-2.5", "-2.5"),
      value("exponent_makes_a_floating_number", "1e5", "100000.0"),
      value("capital_exponent_with_a_sign", "1E+2", "100.0"),
      value("negative_exponent", "100e-2", "1.0"),
      value("fraction_with_an_exponent", "2.5e10", "25000000000.0"),
      value("largest_power_without_an_exponent", "1e20", "100000000000000000000.0"),
      value("smallest_power_with_an_exponent", "1e21", "1e21"),
      value("digits_with_an_exponent", "1.5e300", "1.5e300"),
      value("small_number_without_an_exponent", "1e-6", "0.000001"),
      value("small_number_with_an_exponent", "0.0000001", "1e-7"),
      value("small_digits_with_an_exponent", "0.00000015", "1.5e-7"),
      value("six_places", "176.359966", "176.359966"),
      value("six_places_below_one", "0.412994", "0.412994"),
      value("negative_six_places", "-176.359966", "-176.359966"),
      value("twenty_one_digits_without_an_exponent", "1.23456789012345e20", "123456789012345000000.0"),
      value("twenty_two_digits_with_an_exponent", "1.23456789012345e21", "1.23456789012345e21"),
      value("one_digit_with_an_exponent", "5e22", "5e22"),
      value("smallest_number", "5e-324", "5e-324"),
      value("largest_power", "1e308", "1e308"),
      value("too_small_a_number_is_zero", "1e-400", "0.0"),
      value("conversion_is_not_of_full_precision", "1e-23", "1.0000000000000001e-23"),
      value("conversion_rounds_each_step", "1e-30", "9.999999999999999e-31"),

      ToolCall("saved_numbers")
          .given("f.json", "[7,7.0,-0.0,1e5,1e21,1e-23]")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "[\n  7,\n  7.0,\n  -0.0,\n  100000.0,\n  1e21,\n  1.0000000000000001e-23\n]"),
      ToolCall("saved_numbers_of_six_places")
          .given("f.json", "[176.359966,0.412994,[-0.412994]]")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "[\n  176.359966,\n  0.412994,\n  [\n    -0.412994\n  ]\n]"),
      ToolCall("compact_numbers_of_six_places")
          .given("f.json", "[176.359966, 0.412994, [-0.412994]]")
          .call({"--file", "f.json", "--read", ""})
          .prints("[176.359966,0.412994,[-0.412994]]\n"),
      ToolCall("selection_by_a_number_with_an_exponent")
          .given("f.json", R"({"list":[{"x":1,"y":2},{"x":[1e-7,5e22],"y":3}]})")
          .call({"--file", "f.json", "--read", "list.x=1e-7.y", "--read", "list.x=5e22.y"})
          .prints("{\n    \"list.x=1e-7.y\": \"3\",\n    \"list.x=5e22.y\": \"3\"\n}\n"),
      ToolCall("compact_numbers")
          .given("f.json", "[7, 7.0, -0.0, 1e5, 1e21, 0.10]")
          .call({"--file", "f.json", "--read", ""})
          .prints("[7,7.0,-0.0,100000.0,1e21,0.1]\n"),
  };
}

std::vector<ToolCall> stringRows() {
  return {
      value("quote_and_backslash", R"("a\"b\\c")", R"("a\"b\\c")"),
      value("short_escapes", R"("\b\f\n\r\t")", R"("\b\f\n\r\t")"),
      value("short_escapes_given_by_number", R"("\u0008\u000c\u000a\u000d\u0009")", R"("\b\f\n\r\t")"),
      value("control_characters_have_capital_digits", R"("\u0001\u000b\u001f")", R"("\u0001\u000B\u001F")"),
      value("nul", R"("a\u0000b")", R"("a\u0000b")"),
      value("delete_is_no_control_character", R"("\u007f")", "\"\x7F\""),
      value("slash_is_not_escaped", R"("a\/b/c")", R"("a/b/c")"),
      value("escaped_letter", R"("\u0041")", R"("A")"),
      value("apostrophe_and_markup", R"("'<&>")", R"("'<&>")"),
      value("non_ascii_bytes", "\"\xC3\xA9\xE2\x82\xAC\"", "\"\xC3\xA9\xE2\x82\xAC\""),
      value("non_ascii_escapes", R"("\u00e9\u20AC")", "\"\xC3\xA9\xE2\x82\xAC\""),
      value("surrogate_pair", R"("\ud83d\ude00")", "\"\xF0\x9F\x98\x80\""),
      value("bytes_that_are_no_utf8_are_kept", "\"\xFF\xC3\"", "\"\xFF\xC3\""),
      ToolCall("names_are_escaped_like_strings")
          .given("f.json", R"({"\"\\\u0000\u001f\/\u00e9":1})")
          .call("--file f.json")
          .prints("{\n    \"\\\"\\\\\\u0000\\u001F/\xC3\xA9\": 1\n}\n"),
      ToolCall("saved_strings")
          .given("f.json", R"(["\u0001\u001f\n\"\\\/\u00e9\u0000"])")
          .call({"--file", "f.json", "--remove", ""})
          .leaves("f.json", "[\n  \"\\u0001\\u001F\\n\\\"\\\\/\xC3\xA9\\u0000\"\n]"),
      ToolCall("compact_strings")
          .given("f.json", R"(["\u0001\u001f\n\"\\\/\u00e9\u0000"])")
          .call({"--file", "f.json", "--read", ""})
          .prints("[\"\\u0001\\u001F\\n\\\"\\\\/\xC3\xA9\\u0000\"]\n"),
  };
}

/// A control character as the last one below the blank are: written as an escape, refused as it is. The rows hold them
/// inside strings that are long enough for vectorised scanning, which some builds of RapidJSON offer and which lets
/// some of these characters through.
struct Control {
  char byte;
  const char* escape;
};

constexpr std::array<Control, 8> kControls = {{{'\x01', "\\u0001"},
                                               {'\x19', "\\u0019"},
                                               {'\x1A', "\\u001A"},
                                               {'\x1B', "\\u001B"},
                                               {'\x1C', "\\u001C"},
                                               {'\x1D', "\\u001D"},
                                               {'\x1E', "\\u001E"},
                                               {'\x1F', "\\u001F"}}};

std::string rowEnd(const Control& control) { return std::string(control.escape).substr(1); }

/// A long text around `middle`.
std::string around(const std::string& middle) { return std::string(40, 'x') + middle + std::string(40, 'x'); }

/// The compact text of an object that holds `text`.
std::string objectOf(const std::string& text) { return R"({"k":")" + text + R"("})"; }

std::vector<ToolCall> writtenRows() {
  std::vector<ToolCall> rows;
  for (const Control& control : kControls) {
    const std::string raw = around(std::string(1, control.byte));
    const std::string escaped = around(control.escape);
    rows.push_back(ToolCall("saved_as_an_escape_" + rowEnd(control))
                       .call({"--file", "f.json", "--addString", "k", raw})
                       .leaves("f.json", "{\n  \"k\": \"" + escaped + "\"\n}"));
    rows.push_back(ToolCall("displayed_as_an_escape_" + rowEnd(control))
                       .call({"--addString", "k", raw})
                       .prints("{\n    \"k\": \"" + escaped + "\"\n}\n"));
    rows.push_back(ToolCall("read_as_an_escape_" + rowEnd(control))
                       .call({"--addString", "k", raw, "--read", "k"})
                       .prints(escaped + "\n"));
  }
  return rows;
}

std::vector<ToolCall> loadedRows() {
  std::vector<ToolCall> rows;
  for (const Control& control : kControls) {
    rows.push_back(ToolCall("refused_as_it_is_" + rowEnd(control))
                       .given("f.json", objectOf(around(std::string(1, control.byte))))
                       .call({"--file", "f.json", "--read", ""})
                       .prints("{}\n")
                       .reports("Could not parse json file f.json\n"));
    rows.push_back(ToolCall("taken_as_an_escape_" + rowEnd(control))
                       .given("f.json", objectOf(around(control.escape)))
                       .call("--file f.json --read k")
                       .prints(around(control.escape) + "\n"));
  }
  return rows;
}

const Table kNumberText("NumberText", numberRows);
const Table kStringText("StringText", stringRows);
const Table kControlCharactersWritten("ControlCharactersWritten", writtenRows);
const Table kControlCharactersLoaded("ControlCharactersLoaded", loadedRows);

}  // namespace
}  // namespace kovalt::test
