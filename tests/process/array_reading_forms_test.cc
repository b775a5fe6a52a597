// Every form of every array read, on one array.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr auto kMixed = R"({"a": ["a", "b c", 1, true, null]})";

std::vector<ToolCall> rows() {
  return {
      ToolCall("readArrayComma_keeps_commas_and_quotes")
          .given("d.json", kMixed)
          .call("--file d.json --readArrayComma a")
          .prints("\"a\",\"b c\",1,true,null\n"),
      ToolCall("rac_keeps_commas_and_quotes")
          .given("d.json", kMixed)
          .call("-f d.json -rac a")
          .prints("\"a\",\"b c\",1,true,null\n"),
      ToolCall("readArrayCommaNoQuote_drops_quotes")
          .given("d.json", kMixed)
          .call("--file d.json --readArrayCommaNoQuote a")
          .prints("a,b c,1,true,null\n"),
      ToolCall("racq_drops_quotes").given("d.json", kMixed).call("-f d.json -racq a").prints("a,b c,1,true,null\n"),
      ToolCall("readArraySpace_puts_spaces_and_keeps_quotes")
          .given("d.json", kMixed)
          .call("--file d.json --readArraySpace a")
          .prints("\"a\" \"b c\" 1 true null\n"),
      ToolCall("ras_puts_spaces_and_keeps_quotes")
          .given("d.json", kMixed)
          .call("-f d.json -ras a")
          .prints("\"a\" \"b c\" 1 true null\n"),
      ToolCall("readArraySpaceNoQuote_puts_spaces_and_drops_quotes")
          .given("d.json", kMixed)
          .call("--file d.json --readArraySpaceNoQuote a")
          .prints("a b c 1 true null\n"),
      ToolCall("rasq_puts_spaces_and_drops_quotes")
          .given("d.json", kMixed)
          .call("-f d.json -rasq a")
          .prints("a b c 1 true null\n"),
      ToolCall("readArray_is_the_space_form_without_quotes")
          .given("d.json", kMixed)
          .call("--file d.json --readArray a")
          .prints("a b c 1 true null\n"),
      ToolCall("ra_is_the_space_form_without_quotes")
          .given("d.json", kMixed)
          .call("-f d.json -ra a")
          .prints("a b c 1 true null\n"),
      ToolCall("an_array_just_added_reads_by_spaces")
          .call("--readArray key --addArray key val1 val2")
          .prints("val1 val2\n"),
      ToolCall("an_array_just_added_reads_by_spaces_in_quotes")
          .call("--readArraySpace key --addArray key val1 val2")
          .prints("\"val1\" \"val2\"\n"),
      ToolCall("an_array_just_added_reads_by_commas_in_quotes")
          .call("--readArrayComma key --addArray key val1 val2")
          .prints("\"val1\",\"val2\"\n"),
      ToolCall("an_array_just_added_reads_by_commas")
          .call("--readArrayCommaNoQuote key --addArray key val1 val2")
          .prints("val1,val2\n"),
      ToolCall("a_form_without_its_path_takes_the_next_option_as_path")
          .call("--readArraySpaceNoQuote --addArray key val1 val2")
          .prints("Error: invalid argument key\n")
          .exits(1),
      ToolCall("a_form_at_the_end_misses_its_argument")
          .call("-racq")
          .prints("Error: Error: missing argument(s) after -racq\n")
          .exits(1),
      ToolCall("a_long_form_at_the_end_misses_its_argument")
          .call("--readArray")
          .prints("Error: Error: missing argument(s) after --readArray\n")
          .exits(1),
  };
}

const Table kArrayReadingForms("ArrayReadingForms", rows);

}  // namespace
}  // namespace kovalt::test
