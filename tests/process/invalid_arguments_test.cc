#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call that the parser refuses, with all that it prints.
ToolCall refused(const std::string& name, const std::string& message) {
  return ToolCall(name).prints(message).exits(1);
}

std::vector<ToolCall> rows() {
  return {
      // An option is matched whole, byte for byte.
      refused("option_with_a_capital", "Error: invalid argument --AddString\n").call("--AddString k v"),
      refused("option_in_lower_case", "Error: invalid argument --addstring\n").call("--addstring k v"),
      refused("short_form_in_capitals", "Error: invalid argument -AS\n").call("-AS k v"),
      refused("prefix_of_an_option", "Error: invalid argument --addStr\n").call("--addStr k v"),
      refused("option_with_a_tail", "Error: invalid argument --addStrings\n").call("--addStrings k v"),
      refused("prefix_of_a_short_form", "Error: invalid argument -a\n").call("-a k v"),
      refused("short_form_with_a_tail", "Error: invalid argument -asx\n").call("-asx k v"),
      refused("option_with_a_trailing_blank", "Error: invalid argument --addString \n")
          .call({"--addString ", "k", "v"}),
      refused("option_with_a_leading_blank", "Error: invalid argument  --addString\n").call({" --addString", "k", "v"}),
      refused("long_form_with_one_dash", "Error: invalid argument -addString\n").call("-addString k v"),
      refused("short_form_with_two_dashes", "Error: invalid argument --as\n").call("--as k v"),
      refused("long_form_without_dashes", "Error: invalid argument addString\n").call("addString k v"),
      refused("option_with_equals_sign", "Error: invalid argument --file=conf.json\n").call("--file=conf.json"),
      refused("short_form_joined_to_its_argument", "Error: invalid argument -fconf.json\n").call("-fconf.json"),
      refused("bundled_short_forms", "Error: invalid argument -asan\n").call("-asan k v"),
      refused("two_dashes_end_no_options", "Error: invalid argument --\n").call("-- --addString k v"),
      refused("two_dashes_after_options", "Error: invalid argument --\n").call("-as k v --"),
      refused("single_dash", "Error: invalid argument -\n").call("-"),
      refused("unknown_short_form", "Error: invalid argument -raq\n").call("-raq k"),
      refused("bare_word", "Error: invalid argument conf.json\n").call("conf.json"),

      // The argument is shown as it was typed.
      refused("argument_with_percents", "Error: invalid argument 100%d%s%n\n").call("100%d%s%n"),
      refused("argument_with_quotes", "Error: invalid argument a \"b\" 'c'\n").call({R"(a "b" 'c')"}),
      refused("argument_with_a_backslash", "Error: invalid argument a\\n\n").call({R"(a\n)"}),
      refused("argument_with_a_line_end", "Error: invalid argument a\nb\n").call("a\nb"),
      refused("argument_beyond_ascii", "Error: invalid argument größe\n").call("größe"),
      refused("argument_that_is_no_utf_8", "Error: invalid argument \xff\xfe\n").call("\xff\xfe"),
      refused("very_long_argument", "Error: invalid argument " + std::string(100000, 'x') + "\n")
          .call({std::string(100000, 'x')}),

      // A value too many is taken for an option.
      refused("third_argument_of_add_string", "Error: invalid argument w\n").call("-as k v w"),
      refused("third_argument_of_add_boolean", "Error: invalid argument 0\n").call("-ab k 1 0"),
      refused("third_argument_of_add_number", "Error: invalid argument -2\n").call("-an k 1 -2"),
      refused("second_argument_of_add_object", "Error: invalid argument v\n").call("-ao k v"),
      refused("second_argument_of_add_file", "Error: invalid argument b.json\n").call("-af a.json b.json"),
      refused("third_argument_of_add_file_at", "Error: invalid argument b.json\n").call("-afat k a.json b.json"),
      refused("second_argument_of_remove", "Error: invalid argument b\n").call("-rm a b"),
      refused("second_argument_of_remove_and_clear", "Error: invalid argument b\n").call("-rmc a b"),
      refused("second_argument_of_read", "Error: invalid argument b\n").call("-r a b"),
      refused("second_argument_of_read_array", "Error: invalid argument b\n").call("-ra a b"),
      refused("second_argument_of_file", "Error: invalid argument b.json\n").call("-f a.json b.json"),
      refused("second_argument_of_file_display", "Error: invalid argument b.json\n").call("-fd a.json b.json"),
      refused("empty_argument_after_an_option", "Error: invalid argument \n").call({"-as", "k", "v", ""}),

      // Only the first error is told, and nothing is done.
      refused("first_of_two_wrong_arguments", "Error: invalid argument --wrong\n").call("--wrong --worse"),
      refused("wrong_argument_before_a_missing_one", "Error: invalid argument --wrong\n").call("--wrong --addString"),
      refused("missing_file_to_merge_is_not_looked_for", "Error: invalid argument oops\n")
          .call("-af missing.json oops"),
      refused("bad_number_is_not_converted", "Error: invalid argument oops\n").call("-an k abc oops"),
      refused("bad_boolean_is_not_converted", "Error: invalid argument oops\n").call("-ab k maybe oops"),
      refused("read_is_not_done", "Error: invalid argument oops\n").call("-as k v -r k oops"),
      refused("unwritable_path_is_not_opened", "Error: invalid argument oops\n")
          .call("-f no/such/conf.json -as k v oops"),
      refused("file_to_make_is_not_made", "Error: invalid argument oops\n").call("-f conf.json -as k v oops"),
      refused("file_is_not_edited", "Error: invalid argument oops\n")
          .call("-f conf.json -as k v oops")
          .given("conf.json", R"({"a":1})"),
      refused("file_is_not_displayed", "Error: invalid argument oops\n")
          .call("-fd conf.json oops")
          .given("conf.json", R"({"a":1})"),
      refused("broken_file_is_not_loaded", "Error: invalid argument oops\n")
          .call("-f conf.json oops")
          .given("conf.json", "{"),
  };
}

const Table kInvalidArguments("InvalidArguments", rows);

}  // namespace
}  // namespace kovalt::test
