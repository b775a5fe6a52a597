// Command lines that the parser refuses: unknown or missing arguments, and more than one file.

#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call that the parser refuses, with all that it prints.
ToolCall refused(const std::string& name, const std::string& message) {
  return ToolCall(name).prints(message).exits(1);
}

std::vector<ToolCall> invalidArguments() {
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

std::vector<ToolCall> fileOptions() {
  return {
      // One file at most.
      refused("file_twice", "Error: --file already specified\n").call("--file a.json --file b.json"),
      refused("file_then_file_display", "Error: --file already specified\n").call("--file a --fileDisplay b"),
      refused("file_display_then_file", "Error: --file already specified\n").call("--fileDisplay a --file b"),
      refused("file_display_twice", "Error: --file already specified\n").call("--fileDisplay a --fileDisplay b"),
      refused("short_file_twice", "Error: --file already specified\n").call("-f a.json -f b.json"),
      refused("short_file_display_second", "Error: --file already specified\n").call("--file a -fd b"),
      refused("short_file_display_first", "Error: --file already specified\n").call("-fd a -f b"),
      refused("same_file_twice", "Error: --file already specified\n").call("-f a.json -f a.json"),
      refused("second_file_without_path", "Error: --file already specified\n").call("--file a --file"),
      refused("second_file_display_without_path", "Error: --file already specified\n").call("-f a -fd"),
      refused("second_file_with_an_empty_path", "Error: --file already specified\n").call({"-f", "a", "-f", ""}),
      refused("second_file_after_edits", "Error: --file already specified\n").call("-f a -as k v -fd b"),
      refused("files_are_left_alone", "Error: --file already specified\n")
          .call("-f a.json -fd b.json -as k v")
          .given("a.json", "{}")
          .given("b.json", "{}"),

      // An empty path is no file at all.
      ToolCall("empty_path_is_no_file").call({"--file", "", "-as", "k", "v"}).prints("{\n    \"k\": \"v\"\n}\n"),
      ToolCall("file_after_an_empty_path")
          .call({"--file", "", "--file", "conf.json", "-as", "k", "v"})
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("two_empty_paths").call({"-f", "", "-f", ""}).prints("{}\n"),
      ToolCall("empty_path_for_display_still_displays").call({"-fd", "", "-as", "k", "v", "-r", "k"}).prints(R"({
    "k": "v"
}
v
)"),
      ToolCall("empty_path_for_display_then_file")
          .call({"-fd", "", "-f", "conf.json", "-as", "k", "v"})
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("empty_path_then_file_display")
          .call({"-f", "", "-fd", "conf.json", "-as", "k", "v"})
          .prints("{\n    \"k\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      refused("file_without_path_after_an_empty_one", "Error: Error: missing argument(s) after --file\n")
          .call({"-f", "", "--file"}),
  };
}

/// The end of a call whose option `form` lacks an argument.
ToolCall lacking(const std::string& name, const std::string& form) {
  return ToolCall(name).prints("Error: Error: missing argument(s) after " + form + "\n").exits(1);
}

std::string withoutDashes(const std::string& form) { return form.substr(form.find_first_not_of('-')); }

/// Every form of every option as the only argument.
std::vector<ToolCall> formsAlone() {
  const std::vector<std::string> forms = {"--addString",
                                          "-as",
                                          "--addBoolean",
                                          "-ab",
                                          "--addNumber",
                                          "-an",
                                          "--addObject",
                                          "-ao",
                                          "--addArray",
                                          "-aa",
                                          "--addArrayBoolean",
                                          "-aab",
                                          "--addArrayNumber",
                                          "-aan",
                                          "--addFile",
                                          "-af",
                                          "--addFileAt",
                                          "-afat",
                                          "--remove",
                                          "-rm",
                                          "--removeAndClear",
                                          "-rmc",
                                          "--read",
                                          "-r",
                                          "--readArraySpace",
                                          "-ras",
                                          "--readArraySpaceNoQuote",
                                          "-rasq",
                                          "--readArray",
                                          "-ra",
                                          "--readArrayComma",
                                          "-rac",
                                          "--readArrayCommaNoQuote",
                                          "-racq",
                                          "--readObjectArrayConcat",
                                          "-roac",
                                          "--readObjectArrayConcatSep",
                                          "-roacs",
                                          "--file",
                                          "-f",
                                          "--fileDisplay",
                                          "-fd"};
  std::vector<ToolCall> rows;
  rows.reserve(forms.size());
  for (const std::string& form : forms) {
    rows.push_back(lacking(withoutDashes(form), form).call({form}));
  }
  return rows;
}

/// Every form that needs two arguments, with one.
std::vector<ToolCall> formsWithOneArgument() {
  const std::vector<std::string> forms = {"--addString",
                                          "-as",
                                          "--addBoolean",
                                          "-ab",
                                          "--addNumber",
                                          "-an",
                                          "--addFileAt",
                                          "-afat",
                                          "--readObjectArrayConcat",
                                          "-roac",
                                          "--readObjectArrayConcatSep",
                                          "-roacs"};
  std::vector<ToolCall> rows;
  rows.reserve(forms.size());
  for (const std::string& form : forms) {
    rows.push_back(lacking(withoutDashes(form), form).call({form, "k"}));
  }
  return rows;
}

std::vector<ToolCall> missingArguments() {
  return {
      lacking("option_after_a_whole_one", "--addString").call("-as a x --addString b"),
      lacking("option_as_the_only_argument_of_another", "--addString").call("--addString -as"),
      lacking("file_after_an_edit", "--file").call("-as a x --file"),
      lacking("first_of_two", "--addString").call("--addString --addBoolean"),
      lacking("nothing_is_done", "-an")
          .call("-f conf.json -as a x -af missing.json -an k")
          .given("conf.json", R"({"a":1})"),
      lacking("file_display_shows_nothing", "-r").call("-fd conf.json -r").given("conf.json", R"({"a":1})"),

      // The concatenation needs an argument after its key path, though not one that it can use.
      lacking("concat_followed_by_an_option_alone", "-as").call("-roac k -as"),

      // The separator is there, but no field is.
      lacking("long_concat_sep_with_the_separator_alone", "--readObjectArrayConcatSep")
          .call("--readObjectArrayConcatSep k /"),
      lacking("short_concat_sep_with_the_separator_alone", "-roacs").call("-roacs k /"),
      lacking("concat_sep_with_the_separator_alone_before_an_option", "-roacs").call("-roacs k / -as a x"),
      lacking("concat_sep_with_one_piece_cut_from_a_list", "-roacs").call("-roacs k id,"),
      lacking("concat_sep_with_a_comma_alone", "-roacs").call("-roacs k ,"),

      // Not even the separator is there.
      lacking("long_concat_sep_before_an_option", "--readObjectArrayConcatSep")
          .call("--readObjectArrayConcatSep k -as a x"),
      lacking("short_concat_sep_before_an_option", "-roacs").call("-roacs k -as a x"),
      lacking("concat_sep_before_a_dash", "-roacs").call("-roacs k -"),
      lacking("concat_sep_before_an_empty_argument", "-roacs").call({"-roacs", "k", ""}),
      lacking("concat_sep_before_an_empty_argument_and_values", "-roacs").call({"-roacs", "k", "", "id", "/"}),
  };
}

const Table kInvalidArguments("InvalidArguments", invalidArguments);
const Table kFileOption("FileOption", fileOptions);
const Table kMissingArgumentsFormsAlone("MissingArgumentsFormsAlone", formsAlone);
const Table kMissingArgumentsFormsWithOne("MissingArgumentsFormsWithOne", formsWithOneArgument);
const Table kMissingArguments("MissingArguments", missingArguments);

}  // namespace
}  // namespace kovalt::test
