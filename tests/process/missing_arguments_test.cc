#include "tool_case.h"

namespace kovalt::test {
namespace {

/// The end of a call whose option `form` lacks an argument.
Case lacking(const std::string& name, std::vector<std::string> arguments, const std::string& form) {
  return Case(name)
      .call(std::move(arguments))
      .prints("Error: Error: missing argument(s) after " + form + "\n")
      .exits(1);
}

std::string withoutDashes(const std::string& form) { return form.substr(form.find_first_not_of('-')); }

/// Every form of every option as the only argument.
std::vector<Case> formsAlone() {
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
  std::vector<Case> rows;
  rows.reserve(forms.size());
  for (const std::string& form : forms) {
    rows.push_back(lacking(withoutDashes(form), {form}, form));
  }
  return rows;
}

/// Every form that needs two arguments, with one.
std::vector<Case> formsWithOneArgument() {
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
  std::vector<Case> rows;
  rows.reserve(forms.size());
  for (const std::string& form : forms) {
    rows.push_back(lacking(withoutDashes(form), {form, "k"}, form));
  }
  return rows;
}

std::vector<Case> rows() {
  return {
      lacking("option_after_a_whole_one", {"-as", "a", "x", "--addString", "b"}, "--addString"),
      lacking("option_as_the_only_argument_of_another", {"--addString", "-as"}, "--addString"),
      lacking("file_after_an_edit", {"-as", "a", "x", "--file"}, "--file"),
      lacking("first_of_two", {"--addString", "--addBoolean"}, "--addString"),
      lacking("nothing_is_done", {"-f", "conf.json", "-as", "a", "x", "-af", "missing.json", "-an", "k"}, "-an")
          .given("conf.json", R"({"a":1})"),
      lacking("file_display_shows_nothing", {"-fd", "conf.json", "-r"}, "-r").given("conf.json", R"({"a":1})"),

      // The concatenation needs an argument behind its key path, though not one that it can use.
      lacking("concat_followed_by_an_option_alone", {"-roac", "k", "-as"}, "-as"),

      // The separator is there, but no field is.
      lacking("long_concat_sep_with_the_separator_alone", {"--readObjectArrayConcatSep", "k", "/"},
              "--readObjectArrayConcatSep"),
      lacking("short_concat_sep_with_the_separator_alone", {"-roacs", "k", "/"}, "-roacs"),
      lacking("concat_sep_with_the_separator_alone_before_an_option", {"-roacs", "k", "/", "-as", "a", "x"}, "-roacs"),
      lacking("concat_sep_with_one_piece_cut_from_a_list", {"-roacs", "k", "id,"}, "-roacs"),
      lacking("concat_sep_with_a_comma_alone", {"-roacs", "k", ","}, "-roacs"),

      // Not even the separator is there.
      lacking("long_concat_sep_before_an_option", {"--readObjectArrayConcatSep", "k", "-as", "a", "x"},
              "--readObjectArrayConcatSep"),
      lacking("short_concat_sep_before_an_option", {"-roacs", "k", "-as", "a", "x"}, "-roacs"),
      lacking("concat_sep_before_a_dash", {"-roacs", "k", "-"}, "-roacs"),
      lacking("concat_sep_before_an_empty_argument", {"-roacs", "k", ""}, "-roacs"),
      lacking("concat_sep_before_an_empty_argument_and_values", {"-roacs", "k", "", "id", "/"}, "-roacs"),
  };
}

INSTANTIATE_TEST_SUITE_P(MissingArgumentsFormsAlone, ToolCall, testing::ValuesIn(formsAlone()), rowName);
INSTANTIATE_TEST_SUITE_P(MissingArgumentsFormsWithOne, ToolCall, testing::ValuesIn(formsWithOneArgument()), rowName);
INSTANTIATE_TEST_SUITE_P(MissingArguments, ToolCall, testing::ValuesIn(rows()), rowName);

}  // namespace
}  // namespace kovalt::test
