// The array reads: one line without brackets, with commas or spaces, with or without quotes. OptionForms has every
// form.

#include "messages.h"
#include "tool_call.h"

namespace kovalt::test {
namespace {

/// An array read with `option` of the member a, in a file that contains `content`.
ToolCall arrayRead(const std::string& name, const std::string& content, const std::string& option) {
  return ToolCall(name).given("f.json", content).call({"-f", "f.json", option, "a"});
}

std::vector<ToolCall> arrayReadingRows() {
  return {
      arrayRead("empty_array", R"({"a":[ ]})", "-ras").printsLine(""),
      arrayRead("empty_strings_by_commas_without_quotes", R"({"a":["","",""]})", "-racq").printsLine(",,"),
      arrayRead("numbers_are_printed_as_read_prints_them", R"({"a":[ 7.0,1e2 , -5,18446744073709551615]})", "-ras")
          .printsLine("7.0 100.0 -5 18446744073709551615"),
      arrayRead("commas_in_strings_stay", R"({"a":["a,b",",","c"]})", "-ras").printsLine(R"("a,b" "," "c")"),
      arrayRead("commas_in_strings_stay_without_quotes", R"({"a":["a,b",",","c"]})", "-rasq").printsLine("a,b , c"),
      arrayRead("nested_values_by_commas", R"({"a":[[1,2],{"k":"v"}]})", "-rac").printsLine(R"([1,2],{"k":"v"})"),
      arrayRead("nested_values_by_spaces", R"({"a":[[1,2],{"k":"v","l":2}]})", "-ras")
          .printsLine(R"([1 2] {"k":"v" "l":2})"),
      arrayRead("nested_values_without_quotes", R"({"a":[[1,2],{"k":"v"}]})", "-racq").printsLine("[1,2],{k:v}"),
      arrayRead("bytes_that_are_not_utf_8", "{\"a\":[\"é\",\"\xFF\"]}", "-ra").printsLine("é \xFF"),

      // An escaped quote counts as a quote.
      arrayRead("escaped_quote_exposes_a_comma", R"({"a":["a\"b,c","d"]})", "-ras").printsLine(R"("a\"b c","d")"),
      arrayRead("escaped_quote_is_removed_and_its_backslash_stays", R"({"a":["a\"b,c","d"]})", "-rasq")
          .printsLine(R"(a\b c,d)"),
      arrayRead("escaped_quotes_expose_the_comma_between_them", R"({"a":["a,\"b,\",c","d"]})", "-ras")
          .printsLine(R"("a,\"b \",c" "d")"),
      arrayRead("escaped_backslash_before_a_quote", R"({"a":["a\\","b"]})", "-ras").printsLine(R"("a\\" "b")"),
      arrayRead("escapes_stay_by_commas", R"({"a":["a\"b,c","\n\\\u0001"]})", "-rac")
          .printsLine(R"("a\"b,c","\n\\\u0001")"),

      // A value whose text is in brackets is treated as an array.
      arrayRead("string_in_brackets_by_spaces", R"({"a":"[x,y]"})", "-ras").printsLine("x y"),
      arrayRead("string_in_brackets_by_commas", R"({"a":"[x,y]"})", "-rac").printsLine("x,y"),
      arrayRead("string_with_one_bracket", R"({"a":"["})", "-ra").printsLine("["),
      arrayRead("string_without_the_last_bracket", R"({"a":"[x,y"})", "-ra").printsLine("[x,y"),
      arrayRead("string_without_the_first_bracket", R"({"a":"x,y]"})", "-ra").printsLine("x,y]"),
      arrayRead("last_comma_becomes_a_space_without_quotes", R"({"a":"[x,]"})", "-ras").printsLine("x "),
      arrayRead("last_comma_stays_after_quotes", R"({"a":"[\"x\",y,]"})", "-ras").printsLine(R"(\"x\" y,)"),
      arrayRead("quote_at_the_end", R"({"a":"[1,2,\"]"})", "-ras").printsLine(R"(1 2 \")"),
      arrayRead("apostrophes_do_not_quote", R"({"a":"['b,c']"})", "-ras").printsLine("'b c'"),
      arrayRead("string", R"({"a":"say \"x,y\""})", "-rasq").printsLine(R"(say \"x,y\")"),
      arrayRead("object", R"({"a":{"a":1,"b":["x","y"]}})", "-rasq").printsLine(R"({"a":1,"b":["x","y"]})"),
      arrayRead("number", R"({"a":7.0})", "-ras").printsLine("7.0"),

      arrayRead("missing_array", "{}", "-rac").reports(readError("a")),
      ToolCall("failed_selection")
          .given("f.json", R"({"l":[{"id":1,"t":[1,2]}]})")
          .call("-f f.json -rasq l.id=2.t")
          .reports(notFound("id=2")),
      ToolCall("array_after_a_selection")
          .given("f.json", R"({"l":[{"id":1,"t":[1,2]}]})")
          .call("-f f.json -rasq l.id=1.t")
          .printsLine("1 2"),
      ToolCall("root_array").given("f.json", R"(["x",2])").call("-f f.json -ras ''").printsLine(R"("x" 2)"),
      ToolCall("added_array_after_the_display")
          .given("f.json", R"(["x"])")
          .call("-fd f.json -aan '' 3,4 -racq ''")
          .prints(R"([
    3,
    4
]
3,4
)")
          .leaves("f.json", R"([
  3,
  4
])"),
  };
}

const Table kArrayReading("ArrayReading", arrayReadingRows);

}  // namespace
}  // namespace kovalt::test
