// Contents of files and texts of arguments as they occur in everyday use.

#include "tool_call.h"

namespace kovalt::test {
namespace {

constexpr const char* kAdded = R"({
  "a": 1,
  "k": "v"
})";

/// The display of the document {"<name>": "v"}, the name as it stands in JSON.
std::string shownMember(const std::string& name) { return "{\n    \"" + name + "\": \"v\"\n}\n"; }

/// The display of the document {"k": "<text>"}, the text as it stands in JSON.
std::string shownText(const std::string& text) { return "{\n    \"k\": \"" + text + "\"\n}\n"; }

/// A file with `content` that loads as {"a": 1}, and that an edit rewrites.
ToolCall loaded(const std::string& name, const std::string& content) {
  return ToolCall(name).given("conf.json", content).call("-f conf.json -as k v").leaves("conf.json", kAdded);
}

/// A file with `content` that does not load.
ToolCall broken(const std::string& name, const std::string& content) {
  return ToolCall(name)
      .given("conf.json", content)
      .call("-f conf.json")
      .prints("{}\n")
      .reports("Could not parse json file conf.json\n");
}

std::vector<ToolCall> files() {
  return {
      loaded("no_line_end", R"({"a":1})"),
      loaded("one_line_end", "{\"a\":1}\n"),
      loaded("several_line_ends", "\n\n{\"a\":1}\n\n\n"),
      loaded("carriage_returns_and_line_feeds", "{\r\n  \"a\": 1\r\n}\r\n"),
      loaded("carriage_returns_alone", "{\r  \"a\": 1\r}\r"),
      loaded("tabs", "{\n\t\"a\":\t1\n}\n"),
      loaded("own_form_again", "{\n  \"a\": 1\n}"),
      ToolCall("carriage_returns_are_displayed_without")
          .given("conf.json", "{\r\n  \"a\": 1\r\n}\r\n")
          .call("-fd conf.json")
          .prints("{\n    \"a\": 1\n}\n"),
      broken("byte_order_mark", "\xef\xbb\xbf{\"a\":1}"),
      ToolCall("byte_order_mark_and_an_edit")
          .given("conf.json", "\xef\xbb\xbf{\"a\":1}")
          .call("-f conf.json -an a 1 -as k v")
          .reports("Could not parse json file conf.json\n")
          .leaves("conf.json", kAdded),
      ToolCall("byte_order_mark_in_a_file_to_merge")
          .given("more.json", "\xef\xbb\xbf{\"a\":1}")
          .call("-af more.json")
          .prints("{}\n")
          .reports("Could not parse json file more.json\n"),
      broken("utf_16", std::string("\xff\xfe{\0}\0", 6)),
      broken("empty", ""),
      broken("white_space_alone", " \t\r\n"),
      broken("no_break_space", "\xc2\xa0{}"),
      broken("line_comment", "{\"a\":1} // one\n"),
      broken("block_comment", "/* one */ {\"a\":1}"),
      broken("trailing_comma", R"({"a":1,})"),
      broken("single_quotes", "{'a':1}"),
      broken("bare_names", "{a:1}"),
      broken("two_documents", "{\"a\":1}\n{\"a\":2}\n"),
      broken("line_end_in_a_string", "{\"a\":\"x\ny\"}"),
      broken("not_json_at_all", "a = 1\n"),

      // What an edit must not change.
      ToolCall("order_of_members")
          .given("conf.json", R"({"z":1,"a":2,"m":3})")
          .call("-f conf.json -an a 4 -an b 5")
          .leaves("conf.json", R"({
  "z": 1,
  "a": 4,
  "m": 3,
  "b": 5
})"),
      ToolCall("members_of_the_same_name")
          .given("conf.json", R"({"a":1,"a":2})")
          .call("-f conf.json -an a 3 -r a")
          .prints("3\n")
          .leaves("conf.json", R"({
  "a": 3,
  "a": 2
})"),
      ToolCall("integers_of_64_bits")
          .given("conf.json", R"({"min":-9223372036854775808,"max":9223372036854775807,"most":18446744073709551615})")
          .call("-f conf.json -as k v")
          .leaves("conf.json", R"({
  "min": -9223372036854775808,
  "max": 9223372036854775807,
  "most": 18446744073709551615,
  "k": "v"
})"),
      ToolCall("integers_of_32_bits_and_one_more")
          .given("conf.json", R"([-2147483648,-2147483649,2147483647,2147483648,4294967295,4294967296])")
          .call({"-f", "conf.json", "-r", ""})
          .prints("[-2147483648,-2147483649,2147483647,2147483648,4294967295,4294967296]\n"),
      ToolCall("integer_of_64_bits_read")
          .given("conf.json", R"({"a":-9223372036854775808})")
          .call("-f conf.json -r a")
          .prints("-9223372036854775808\n"),
      ToolCall("integers_of_64_bits_merged")
          .given("more.json", R"({"min":-9223372036854775808,"most":18446744073709551615})")
          .call("-af more.json")
          .prints(R"({
    "min": -9223372036854775808,
    "most": 18446744073709551615
}
)"),
      ToolCall("floating_point_numbers")
          .given("conf.json", R"([1.50,3.0,-0.0,0.1,-2.25])")
          .call({"-f", "conf.json", "-r", ""})
          .prints("[1.5,3.0,-0.0,0.1,-2.25]\n"),
      ToolCall("empty_containers_and_words")
          .given("conf.json", R"({"o":{ },"l":[ ],"t":true,"f":false,"n":null,"s":""})")
          .call("-f conf.json -rm s")
          .leaves("conf.json", R"({
  "o": {},
  "l": [],
  "t": true,
  "f": false,
  "n": null
})"),
      ToolCall("text_beyond_ascii")
          .given("conf.json", R"({"größe":"日本 😀"})")
          .call("-f conf.json -as k v")
          .leaves("conf.json", R"({
  "größe": "日本 😀",
  "k": "v"
})"),
      ToolCall("escapes_of_readable_characters_are_resolved")
          .given("conf.json", R"({"k":"\u00e9\/\u0041\ud83d\ude00"})")
          .call("-f conf.json")
          .prints(shownText("é/A😀")),
      ToolCall("escapes_that_are_needed_stay")
          .given("conf.json", R"({"k":"\"\\\b\f\n\r\t\u0000\u0001"})")
          .call("-f conf.json")
          .prints(shownText(R"(\"\\\b\f\n\r\t\u0000\u0001)")),
      ToolCall("bytes_that_are_no_utf_8")
          .given("conf.json", "{\"k\":\"\xff\xc3\"}")
          .call("-f conf.json")
          .prints(shownText("\xff\xc3")),
      ToolCall("escape_of_nul_in_a_member_name")
          .given("conf.json", R"({"a\u0000b":1})")
          .call("-f conf.json -an a 2")
          .leaves("conf.json", R"({
  "a\u0000b": 1,
  "a": 2
})"),

      // Sizes around and beyond the buffers.
      ToolCall("file_of_a_whole_read_buffer")
          .given("conf.json", R"({"k":")" + std::string(8184, 'x') + R"("})")
          .call("-f conf.json -r k")
          .prints(std::string(8184, 'x') + "\n"),
      ToolCall("file_of_a_read_buffer_and_one_byte")
          .given("conf.json", R"({"k":")" + std::string(8185, 'x') + R"("})")
          .call("-f conf.json -r k")
          .prints(std::string(8185, 'x') + "\n"),
      ToolCall("blanks_beyond_the_read_buffer")
          .given("conf.json", std::string(20000, ' ') + R"({"k":"v"})" + std::string(20000, '\n'))
          .call("-f conf.json -r k")
          .prints("v\n"),
      ToolCall("saved_file_of_a_whole_write_buffer")
          .call({"-f", "conf.json", "-as", "k", std::string(65523, 'x')})
          .leaves("conf.json", "{\n  \"k\": \"" + std::string(65523, 'x') + "\"\n}"),
      ToolCall("saved_file_of_a_write_buffer_and_one_byte")
          .call({"-f", "conf.json", "-as", "k", std::string(65524, 'x')})
          .leaves("conf.json", "{\n  \"k\": \"" + std::string(65524, 'x') + "\"\n}"),
      ToolCall("text_longer_than_every_buffer")
          .given("conf.json", R"({"k":")" + std::string(200000, 'x') + R"("})")
          .call("-fd conf.json -as l v")
          .prints("{\n    \"k\": \"" + std::string(200000, 'x') + "\",\n    \"l\": \"v\"\n}\n")
          .leaves("conf.json", "{\n  \"k\": \"" + std::string(200000, 'x') + "\",\n  \"l\": \"v\"\n}"),
      ToolCall("nesting_of_a_thousand_arrays")
          .given("conf.json", std::string(1000, '[') + std::string(1000, ']'))
          .call({"-f", "conf.json", "-r", ""})
          .prints(std::string(1000, '[') + std::string(1000, ']') + "\n"),
  };
}

std::vector<ToolCall> arguments() {
  return {
      ToolCall("member_with_a_blank").call({"-as", "my key", "v"}).prints(shownMember("my key")),
      ToolCall("member_of_one_blank").call({"-as", " ", "v"}).prints(shownMember(" ")),
      ToolCall("member_with_dashes").call("-as max-age--s v").prints(shownMember("max-age--s")),
      ToolCall("member_with_an_at_sign").call("-as @type v").prints(shownMember("@type")),
      ToolCall("member_with_slashes").call("-as /usr/bin v").prints(shownMember("/usr/bin")),
      ToolCall("member_with_percents").call("-as 100%s v").prints(shownMember("100%s")),
      ToolCall("member_with_brackets").call("-as a[0] v").prints(shownMember("a[0]")),
      ToolCall("member_of_digits").call("-as 0 v").prints(shownMember("0")),
      ToolCall("member_with_a_quote").call("-as a\"b v").prints(shownMember(R"(a\"b)")),
      ToolCall("member_with_a_backslash").call("-as a\\b v").prints(shownMember(R"(a\\b)")),
      ToolCall("member_with_a_tab").call("-as a\tb v").prints(shownMember(R"(a\tb)")),
      ToolCall("member_beyond_ascii").call("-as größe v").prints(shownMember("größe")),
      ToolCall("member_of_a_face").call("-as 😀 v").prints(shownMember("😀")),
      ToolCall("member_that_is_no_utf_8").call("-as \xff v").prints(shownMember("\xff")),
      ToolCall("member_of_great_length")
          .call({"-as", std::string(100000, 'x'), "v"})
          .prints(shownMember(std::string(100000, 'x'))),
      ToolCall("member_names_differ_by_case").call("-as a v -as A w").prints(R"({
    "a": "v",
    "A": "w"
}
)"),
      ToolCall("nested_members_with_blanks").call({"-as", "my conf.my key", "v"}).prints(R"({
    "my conf": {
        "my key": "v"
    }
}
)"),
      ToolCall("odd_members_read")
          .given("conf.json", R"({"my key":"1","@type":"2","größe":"3","a-b":"4"})")
          .call({"-f", "conf.json", "-r", "my key", "-r", "@type", "-r", "größe", "-r", "a-b"})
          .prints(R"({
    "my key": "1",
    "@type": "2",
    "größe": "3",
    "a-b": "4"
}
)"),
      ToolCall("escaped_member_read_by_its_plain_name")
          .given("conf.json", R"({"gr\u00f6\u00dfe":"v"})")
          .call("-f conf.json -r größe")
          .prints("v\n"),
      ToolCall("odd_members_removed")
          .given("conf.json", R"({"k":"v","größe":"3","@type":"2","my key":"1"})")
          .call({"-f", "conf.json", "-rm", "my key", "-rm", "@type", "-rm", "größe"})
          .leaves("conf.json", "{\n  \"k\": \"v\"\n}"),
      ToolCall("odd_members_saved")
          .call({"-f", "conf.json", "-as", "@größe 100%", "v"})
          .leaves("conf.json", "{\n  \"@größe 100%\": \"v\"\n}"),
      ToolCall("missing_odd_member_in_a_message")
          .call({"-r", "my \"größe\" 100%s"})
          .reports("--read error : Path \"my \"größe\" 100%s\" does not exist\n"),

      ToolCall("value_with_blanks").call({"-as", "k", "  a  b  "}).prints(shownText("  a  b  ")),
      ToolCall("value_with_quotes").call({"-as", "k", R"(say "hi")"}).prints(shownText(R"(say \"hi\")")),
      ToolCall("value_with_backslashes").call({"-as", "k", R"(C:\new)"}).prints(shownText(R"(C:\\new)")),
      ToolCall("value_with_slashes").call("-as k http://a/b").prints(shownText("http://a/b")),
      ToolCall("value_with_percents").call("-as k 100%d%s%n").prints(shownText("100%d%s%n")),
      ToolCall("value_with_a_comma").call("-as k a,b").prints(shownText("a,b")),
      ToolCall("value_with_a_line_end").call("-as k a\nb").prints(shownText(R"(a\nb)")),
      ToolCall("value_with_control_characters")
          .call("-as k \x01\x1f\x7f\b\f\r\t")
          .prints(shownText("\\u0001\\u001F\x7f\\b\\f\\r\\t")),
      ToolCall("value_beyond_ascii").call({"-as", "k", "größe 日本 😀"}).prints(shownText("größe 日本 😀")),
      ToolCall("value_that_is_no_utf_8").call("-as k \xff\xc3").prints(shownText("\xff\xc3")),
      ToolCall("value_that_looks_like_a_number").call("-as k 5").prints(shownText("5")),
      ToolCall("value_that_looks_like_null").call("-as k null").prints(shownText("null")),
      ToolCall("value_that_looks_like_json").call({"-as", "k", R"({"a":1})"}).prints(shownText(R"({\"a\":1})")),
      ToolCall("value_of_great_length")
          .call({"-as", "k", std::string(100000, 'x'), "-r", "k"})
          .prints(std::string(100000, 'x') + "\n"),
  };
}

const Table kEverydayFileContent("EverydayFileContent", files);
const Table kEverydayArguments("EverydayArguments", arguments);

}  // namespace
}  // namespace kovalt::test
