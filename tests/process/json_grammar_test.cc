// Which texts are accepted as JSON and which are rejected, as docs/json-grammar.md lists them.

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>
#include <string>
#include <string_view>

#include "document_rows.h"
#include "example_file.h"
#include "messages.h"

namespace kovalt::test {
namespace {

int hexDigit(char digit) { return digit <= '9' ? digit - '0' : digit - 'A' + 10; }

/// The bytes that the page shows as `text`: hexadecimal digits in angle brackets are bytes.
std::string bytesOf(const std::string& text) {
  std::string bytes;
  bool hexadecimal = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '<' || text[i] == '>') {
      hexadecimal = text[i] == '<';
    } else if (!hexadecimal) {
      bytes += text[i];
    } else if (text[i] != ' ') {
      bytes += static_cast<char>(hexDigit(text[i]) * 16 + hexDigit(text[i + 1]));
      ++i;
    }
  }
  return bytes;
}

/// The text between backquotes in a column of a table, or nothing.
std::string quotedPart(const std::string& column) {
  const std::size_t start = column.find('`') + 1;
  return start == 0 ? "" : column.substr(start, column.find('`', start) - start);
}

ToolCall rejection(const std::string& name, const std::string& input) {
  return reading(name, input, "").printsLine("{}").reports(cannotParse("f.json"));
}

ToolCall acceptance(const std::string& name, const std::string& input, const std::string& text) {
  return reading(name, input, "").printsLine(text);
}

/// The rows of the page, named by its headings. A table without rows is an error.
std::vector<ToolCall> pageRows() {
  std::vector<ToolCall> rows;
  std::istringstream page(projectFile("docs/json-grammar.md"));
  std::string heading;
  for (std::string line; std::getline(page, line);) {
    if (line.rfind("## ", 0) == 0) {
      heading = line.substr(3);
      for (char& byte : heading) {
        byte = std::isalnum(static_cast<unsigned char>(byte)) != 0 ? byte : '_';
      }
    } else if (line.rfind("| `", 0) == 0) {
      const std::string name = heading + "_" + std::to_string(rows.size());
      const std::size_t second = line.find(" | ");
      const std::string input = bytesOf(quotedPart(line.substr(0, second)));
      const std::string decision = line.substr(second + 3);
      rows.push_back(decision.rfind("rejected", 0) == 0 ? rejection(name, input)
                                                        : acceptance(name, input, bytesOf(quotedPart(decision))));
    }
  }
  return rows;
}

const Table kJsonGrammar("JsonGrammar", pageRows);

TEST(JsonGrammarLoops, RejectsDocumentsTruncatedAtEveryByte) {
  for (const std::string document : {
           R"({"a":[1,-2.5e+3,true,false,null,"x\"\u00e9\ud834\udd1e"],"b":{"":{}}})",
           R"([ [ ], { }, "\\", 0.0, 18446744073709551615 ])",
           R"("a\nb")",
           "null",
           "false",
       }) {
    for (std::size_t length = 0; length < document.size(); ++length) {
      SCOPED_TRACE(document.substr(0, length));
      rejection("truncated", document.substr(0, length)).check();
    }
  }
}

TEST(JsonGrammarLoops, AcceptsDeepNesting) {
  const std::string arrays = std::string(1000, '[') + std::string(1000, ']');
  acceptance("arrays", arrays, arrays).check();
  rejection("one_bracket_short", arrays.substr(1)).check();
  std::string objects;
  for (int depth = 0; depth < 1000; ++depth) {
    objects += R"({"a":)";
  }
  objects += "1" + std::string(1000, '}');
  acceptance("objects", objects, objects).check();
  rejection("one_brace_short", objects.substr(0, objects.size() - 1)).check();
}

/// A control character as an escape with hexadecimal digits.
std::string hexEscape(int code) {
  constexpr auto kDigits = "0123456789ABCDEF";
  return {'\\', 'u', '0', '0', kDigits[code / 16], kDigits[code % 16]};
}

/// A control character as the program writes it.
std::string escape(int code) {
  const std::size_t shortForm = std::string_view("\b\t\n\f\r").find(static_cast<char>(code));
  return shortForm == std::string_view::npos ? hexEscape(code) : std::string({'\\', "btnfr"[shortForm]});
}

/// A long text around `middle`.
std::string around(const std::string& middle) { return std::string(40, 'x') + middle + std::string(40, 'y'); }

std::string quoted(const std::string& text) { return '"' + text + '"'; }

// Long strings are scanned in blocks of characters, which must not miss a control character.
TEST(JsonGrammarLoops, RejectsControlCharactersInLongStringsAndWritesTheirEscapes) {
  for (int code = 1; code < ' '; ++code) {
    SCOPED_TRACE(code);
    const std::string raw = around(std::string(1, static_cast<char>(code)));
    const std::string escaped = around(escape(code));
    rejection("raw", quoted(raw)).check();
    acceptance("escaped", quoted(around(hexEscape(code))), escaped).check();
    ToolCall("displayed").call({"-as", "", raw}).printsLine(quoted(escaped)).check();
    ToolCall("saved").call({"-f", "f.json", "-as", "", raw}).leaves("f.json", quoted(escaped)).check();
  }
}

TEST(JsonGrammarLoops, DecidesTheSameWhereverTheInputBufferEnds) {
  // The buffer ends before each byte of a document in turn.
  for (const std::size_t spaces : {4088U, 8188U}) {
    for (std::size_t more = 0; more < 12; ++more) {
      const std::string white(spaces + more, ' ');
      SCOPED_TRACE(white.size());
      acceptance("value", white + R"(["\u00e9",-1.5e3,null])", "[\"\xC3\xA9\",-1500.0,null]").check();
      acceptance("end", "{}" + white, "{}").check();
      rejection("nul", "{}" + white + std::string(1, '\0')).check();
      rejection("trailing", "{}" + white + "x").check();
      rejection("nothing", white).check();
    }
  }
}

}  // namespace
}  // namespace kovalt::test
