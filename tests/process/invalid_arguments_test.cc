#include "tool_case.h"

namespace kovalt::test {
namespace {

/// A call that the parser refuses, with all that it prints.
Case refused(const std::string& name, std::vector<std::string> arguments, const std::string& message) {
  return Case(name).call(std::move(arguments)).prints(message).exits(1);
}

std::vector<Case> rows() {
  return {
      // An option is matched whole, byte for byte.
      refused("option_with_a_capital", {"--AddString", "k", "v"}, "Error: invalid argument --AddString\n"),
      refused("option_in_lower_case", {"--addstring", "k", "v"}, "Error: invalid argument --addstring\n"),
      refused("short_form_in_capitals", {"-AS", "k", "v"}, "Error: invalid argument -AS\n"),
      refused("prefix_of_an_option", {"--addStr", "k", "v"}, "Error: invalid argument --addStr\n"),
      refused("option_with_a_tail", {"--addStrings", "k", "v"}, "Error: invalid argument --addStrings\n"),
      refused("prefix_of_a_short_form", {"-a", "k", "v"}, "Error: invalid argument -a\n"),
      refused("short_form_with_a_tail", {"-asx", "k", "v"}, "Error: invalid argument -asx\n"),
      refused("option_with_a_trailing_blank", {"--addString ", "k", "v"}, "Error: invalid argument --addString \n"),
      refused("option_with_a_leading_blank", {" --addString", "k", "v"}, "Error: invalid argument  --addString\n"),
      refused("long_form_with_one_dash", {"-addString", "k", "v"}, "Error: invalid argument -addString\n"),
      refused("short_form_with_two_dashes", {"--as", "k", "v"}, "Error: invalid argument --as\n"),
      refused("long_form_without_dashes", {"addString", "k", "v"}, "Error: invalid argument addString\n"),
      refused("option_with_equals_sign", {"--file=conf.json"}, "Error: invalid argument --file=conf.json\n"),
      refused("short_form_joined_to_its_argument", {"-fconf.json"}, "Error: invalid argument -fconf.json\n"),
      refused("bundled_short_forms", {"-asan", "k", "v"}, "Error: invalid argument -asan\n"),
      refused("two_dashes_end_no_options", {"--", "--addString", "k", "v"}, "Error: invalid argument --\n"),
      refused("two_dashes_after_options", {"-as", "k", "v", "--"}, "Error: invalid argument --\n"),
      refused("single_dash", {"-"}, "Error: invalid argument -\n"),
      refused("unknown_short_form", {"-raq", "k"}, "Error: invalid argument -raq\n"),
      refused("bare_word", {"conf.json"}, "Error: invalid argument conf.json\n"),

      // The argument is shown as it was typed.
      refused("argument_with_percents", {"100%d%s%n"}, "Error: invalid argument 100%d%s%n\n"),
      refused("argument_with_quotes", {R"(a "b" 'c')"}, "Error: invalid argument a \"b\" 'c'\n"),
      refused("argument_with_a_backslash", {R"(a\n)"}, "Error: invalid argument a\\n\n"),
      refused("argument_with_a_line_end", {"a\nb"}, "Error: invalid argument a\nb\n"),
      refused("argument_beyond_ascii", {"größe"}, "Error: invalid argument größe\n"),
      refused("argument_that_is_no_utf_8", {"\xff\xfe"}, "Error: invalid argument \xff\xfe\n"),
      refused("very_long_argument", {std::string(100000, 'x')},
              "Error: invalid argument " + std::string(100000, 'x') + "\n"),

      // A value too many is taken for an option.
      refused("third_argument_of_add_string", {"-as", "k", "v", "w"}, "Error: invalid argument w\n"),
      refused("third_argument_of_add_boolean", {"-ab", "k", "1", "0"}, "Error: invalid argument 0\n"),
      refused("third_argument_of_add_number", {"-an", "k", "1", "-2"}, "Error: invalid argument -2\n"),
      refused("second_argument_of_add_object", {"-ao", "k", "v"}, "Error: invalid argument v\n"),
      refused("second_argument_of_add_file", {"-af", "a.json", "b.json"}, "Error: invalid argument b.json\n"),
      refused("third_argument_of_add_file_at", {"-afat", "k", "a.json", "b.json"}, "Error: invalid argument b.json\n"),
      refused("second_argument_of_remove", {"-rm", "a", "b"}, "Error: invalid argument b\n"),
      refused("second_argument_of_remove_and_clear", {"-rmc", "a", "b"}, "Error: invalid argument b\n"),
      refused("second_argument_of_read", {"-r", "a", "b"}, "Error: invalid argument b\n"),
      refused("second_argument_of_read_array", {"-ra", "a", "b"}, "Error: invalid argument b\n"),
      refused("second_argument_of_file", {"-f", "a.json", "b.json"}, "Error: invalid argument b.json\n"),
      refused("second_argument_of_file_display", {"-fd", "a.json", "b.json"}, "Error: invalid argument b.json\n"),
      refused("empty_argument_after_an_option", {"-as", "k", "v", ""}, "Error: invalid argument \n"),

      // Only the first error is told, and nothing is done.
      refused("first_of_two_wrong_arguments", {"--wrong", "--worse"}, "Error: invalid argument --wrong\n"),
      refused("wrong_argument_before_a_missing_one", {"--wrong", "--addString"}, "Error: invalid argument --wrong\n"),
      refused("missing_file_to_merge_is_not_looked_for", {"-af", "missing.json", "oops"},
              "Error: invalid argument oops\n"),
      refused("bad_number_is_not_converted", {"-an", "k", "abc", "oops"}, "Error: invalid argument oops\n"),
      refused("bad_boolean_is_not_converted", {"-ab", "k", "maybe", "oops"}, "Error: invalid argument oops\n"),
      refused("read_is_not_done", {"-as", "k", "v", "-r", "k", "oops"}, "Error: invalid argument oops\n"),
      refused("unwritable_path_is_not_opened", {"-f", "no/such/conf.json", "-as", "k", "v", "oops"},
              "Error: invalid argument oops\n"),
      refused("file_to_make_is_not_made", {"-f", "conf.json", "-as", "k", "v", "oops"},
              "Error: invalid argument oops\n"),
      refused("file_is_not_edited", {"-f", "conf.json", "-as", "k", "v", "oops"}, "Error: invalid argument oops\n")
          .given("conf.json", R"({"a":1})"),
      refused("file_is_not_displayed", {"-fd", "conf.json", "oops"}, "Error: invalid argument oops\n")
          .given("conf.json", R"({"a":1})"),
      refused("broken_file_is_not_loaded", {"-f", "conf.json", "oops"}, "Error: invalid argument oops\n")
          .given("conf.json", "{"),
  };
}

INSTANTIATE_TEST_SUITE_P(InvalidArguments, ToolCall, testing::ValuesIn(rows()), rowName);

}  // namespace
}  // namespace kovalt::test
