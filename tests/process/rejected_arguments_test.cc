// Command lines that the parser rejects: invalid or missing arguments, and more than one file.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A call that the parser rejects because of `argument`.
ToolCall invalid(const std::string& name, const std::string& argument) {
  return ToolCall(name).prints(invalidArgument(argument)).exits(1);
}

/// A call that the parser rejects because `option` lacks an argument.
ToolCall lacking(const std::string& name, const std::string& option) {
  return ToolCall(name).prints(missingArguments(option)).exits(1);
}

/// A call that the parser rejects because it names a second file.
ToolCall secondFile(const std::string& name) {
  return ToolCall(name).printsLine("Error: --file already specified").exits(1);
}

std::vector<ToolCall> invalidArguments() {
  return {
      // An option must match byte for byte.
      invalid("option_with_a_capital", "--AddString").call("--AddString k v"),
      invalid("prefix_of_an_option", "--addStr").call("--addStr k v"),
      invalid("option_and_a_letter", "-asx").call("-asx k v"),
      invalid("option_and_a_space", "--addString ").call("'--addString ' k v"),
      invalid("long_form_with_one_dash", "-addString").call("-addString k v"),
      invalid("short_form_with_two_dashes", "--as").call("--as k v"),
      invalid("option_joined_to_its_argument_by_an_equals_sign", "--file=f.json").call("--file=f.json"),
      invalid("option_joined_to_its_argument", "-ff.json").call("-ff.json"),
      invalid("two_dashes_do_not_end_the_options", "--").call("-- --addString k v"),
      invalid("single_dash", "-").call("-"),
      invalid("word_without_a_dash", "f.json").call("f.json"),

      // The argument is printed as it was typed.
      invalid("argument_with_percent_signs", "100%d%s%n").call("100%d%s%n"),
      invalid("argument_with_quotes_and_a_backslash", R"(a "b" 'c' \n)").call({R"(a "b" 'c' \n)"}),
      invalid("argument_with_an_end_of_line", "a\nb").call("a\nb"),
      invalid("argument_in_utf_8", "größe").call("größe"),
      invalid("argument_that_is_not_utf_8", "\xff\xfe").call("\xff\xfe"),
      invalid("very_long_argument", std::string(100000, 'x')).call(std::string(100000, 'x')),

      // One argument too many is parsed as an option.
      invalid("third_argument_of_add_string", "w").call("-as k v w"),
      invalid("third_argument_of_add_number", "-2").call("-an k 1 -2"),
      invalid("second_argument_of_add_object", "v").call("-ao k v"),
      invalid("third_argument_of_add_file_at", "b.json").call("-afat k a.json b.json"),
      invalid("second_argument_of_remove", "b").call("-rm a b"),
      invalid("second_argument_of_read_array", "b").call("-ra a b"),
      invalid("second_argument_of_file", "b.json").call("-f a.json b.json"),
      invalid("empty_argument_after_an_option", "").call("-as k v ''"),

      // Only the first error is printed, and nothing else happens.
      invalid("first_of_two_invalid_arguments", "--wrong").call("--wrong --worse"),
      invalid("invalid_argument_before_a_missing_one", "--wrong").call("--wrong --addString"),
      invalid("no_file_is_created", "oops").call("-f f.json -as k v oops"),
      invalid("no_file_is_saved_or_displayed", "oops").given("f.json", "{}").call("-fd f.json -as k v -rm l -r k oops"),
      invalid("no_file_is_loaded_or_merged", "oops").given("f.json", "{").call("-f f.json -af missing.json oops"),
      invalid("no_value_is_converted", "oops").call("-ab k maybe -an k abc oops"),
  };
}

std::vector<ToolCall> missing() {
  return {
      lacking("long_form_alone", "--addString").call("--addString"),
      lacking("short_form_alone", "-as").call("-as"),
      lacking("option_that_needs_only_a_key_path", "--addArrayNumber").call("--addArrayNumber"),
      lacking("second_argument_of_add_string", "--addString").call("--addString k"),
      lacking("second_argument_of_add_file_at", "-afat").call("-afat k"),
      lacking("key_path_of_add_object", "--addObject").call("--addObject"),
      lacking("path_of_a_read_after_an_edit", "-r").call("-as k v -r"),
      lacking("path_of_a_file_after_an_edit", "--file").call("-as k v --file"),
      lacking("option_is_the_only_argument_of_another", "--addString").call("--addString -as"),
      lacking("nothing_is_done", "-an").given("f.json", "{").call("-fd f.json -as k v -af missing.json -r k -an k"),

      // A concatenation needs an argument after its key path. For -roac it may be an option, which is then parsed as
      // such and lacks its own argument here.
      lacking("fields_of_a_concatenation", "-roac").call("-roac k"),
      lacking("option_in_place_of_the_fields_lacks_its_arguments", "-as").call("-roac k -as"),

      // A separated concatenation needs a field and the separators.
      lacking("fields_of_a_separated_concatenation", "-roacs").call("-roacs k"),
      lacking("separators_without_a_field", "--readObjectArrayConcatSep").call("--readObjectArrayConcatSep k /"),
      lacking("separators_without_a_field_before_an_option", "-roacs").call("-roacs k / -as a x"),
      lacking("list_of_one_piece", "-roacs").call("-roacs k id,"),
      lacking("option_in_place_of_fields_and_separators", "-roacs").call("-roacs k -as a x"),
      lacking("dash_in_place_of_fields_and_separators", "-roacs").call("-roacs k -"),
      lacking("empty_argument_in_place_of_fields_and_separators", "-roacs").call("-roacs k '' id /"),
  };
}

std::vector<ToolCall> files() {
  return {
      secondFile("file_twice").call("--file a.json --file b.json"),
      secondFile("file_and_file_display").call("-f a.json -as k v -fd b.json").given("a.json", "{}"),
      secondFile("file_display_and_file").call("--fileDisplay a.json --file b.json").given("b.json", "{}"),
      secondFile("second_file_without_its_path").call("--file a.json --file"),
      secondFile("second_file_with_an_empty_path").call("-f a.json -f ''"),

      // An empty path names no file.
      ToolCall("empty_path").call("--file '' -as k v -r k").printsLine("v"),
      ToolCall("two_empty_paths").call("-f '' -f ''").printsLine("{}"),
      ToolCall("file_after_an_empty_path").given("f.json", "7").call("-f '' -f f.json -r ''").printsLine("7"),
      ToolCall("empty_path_of_file_display_displays").call("-fd '' -an '' 5 -r ''").prints("5\n5\n"),
      ToolCall("file_after_an_empty_path_of_file_display")
          .given("f.json", "7")
          .call("-fd '' -f f.json -r ''")
          .prints("7\n7\n"),
      lacking("file_without_its_path_after_an_empty_one", "--file").call("-f '' --file"),
  };
}

const Table kInvalidArguments("InvalidArguments", invalidArguments);
const Table kMissingArguments("MissingArguments", missing);
const Table kFileOptions("FileOptions", files);

}  // namespace
}  // namespace kovalt::test
