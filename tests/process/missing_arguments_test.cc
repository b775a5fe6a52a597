#include "tool_call.h"

namespace kovalt::test {
namespace {

/// The end of a call whose option `form` lacks an argument.
ToolCall lacking(const std::string& name, const std::string& form) {
  return ToolCall(name).prints("Error: Error: missing argument(s) after " + form + "\n").exits(1);
}

std::string withoutDashes(const std::string& form) { return form.substr(form.find_first_not_of('-')); }

/// Every form of every option as the only argument.
std::vector<ToolCall> formsAlone() {
  const std::vector<std::string> forms = {
      "--addString",
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
      "-fd",
  };
  std::vector<ToolCall> rows;
  rows.reserve(forms.size());
  for (const std::string& form : forms) {
    rows.push_back(lacking(withoutDashes(form), form).call({form}));
  }
  return rows;
}

/// Every form that needs two arguments, with one.
std::vector<ToolCall> formsWithOneArgument() {
  const std::vector<std::string> forms = {
      "--addString",
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
      "-roacs",
  };
  std::vector<ToolCall> rows;
  rows.reserve(forms.size());
  for (const std::string& form : forms) {
    rows.push_back(lacking(withoutDashes(form), form).call({form, "k"}));
  }
  return rows;
}

std::vector<ToolCall> rows() {
  return {
      lacking("option_after_a_whole_one", "--addString").call("-as a x --addString b"),
      lacking("option_as_the_only_argument_of_another", "--addString").call("--addString -as"),
      lacking("file_after_an_edit", "--file").call("-as a x --file"),
      lacking("first_of_two", "--addString").call("--addString --addBoolean"),
      lacking("nothing_is_done", "-an")
          .call("-f conf.json -as a x -af missing.json -an k")
          .given("conf.json", R"({"a":1})"),
      lacking("file_display_shows_nothing", "-r").call("-fd conf.json -r").given("conf.json", R"({"a":1})"),

      // The concatenation needs an argument behind its key path, though not one that it can use.
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

const Table kMissingArgumentsFormsAlone("MissingArgumentsFormsAlone", formsAlone);
const Table kMissingArgumentsFormsWithOne("MissingArgumentsFormsWithOne", formsWithOneArgument);
const Table kMissingArguments("MissingArguments", rows);

}  // namespace
}  // namespace kovalt::test
