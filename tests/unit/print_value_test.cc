// Escapes, and the output buffer. Layout and Texts show how values are displayed.

#include <gtest/gtest.h>

#include <string>

#include "json/document.h"
#include "json/write/write_value.h"
#include "support/capture.h"

namespace kovalt::test {
namespace {

/// The size of the output buffer.
constexpr std::size_t kPiece = 65536;

std::string printed(const Value& value) {
  const Printed result = capture([&] { printValue(value); });
  EXPECT_EQ(result.errors, "");
  return result.output;
}

/// A character as it is written in a string.
std::string escaped(unsigned char character) {
  switch (character) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\b':
      return "\\b";
    case '\f':
      return "\\f";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      break;
  }
  if (character >= 0x20) {
    return {static_cast<char>(character)};
  }
  const std::string digits = "0123456789ABCDEF";
  return std::string("\\u00") + digits[character / 16] + digits[character % 16];
}

TEST(PrintValue, EscapesEachCharacterInNamesAndStrings) {
  for (int code = 0; code < 256; ++code) {
    const auto character = static_cast<unsigned char>(code);
    const std::string text = {'a', 'b', static_cast<char>(character), 'c', 'd'};
    Document document;
    document.SetObject();
    document.AddMember(copyText(text, document.GetAllocator()), copyText(text, document.GetAllocator()),
                       document.GetAllocator());
    const std::string quoted = "\"ab" + escaped(character) + "cd\"";
    std::string expected = R"({
    )";
    expected.append(quoted).append(": ").append(quoted).append("\n}\n");
    EXPECT_EQ(printed(document), expected) << code;
  }
}

TEST(PrintValue, PrintsStringsAcrossTheEndOfTheBuffer) {
  for (std::size_t length = kPiece - 12; length < kPiece + 12; ++length) {
    Document document;
    const std::string text = std::string(length, 'x') + "\n\x01yz";
    document.SetArray().PushBack(copyText(text, document.GetAllocator()), document.GetAllocator());
    document.PushBack(7, document.GetAllocator());
    EXPECT_TRUE(printed(document) == R"([
    ")" + std::string(length, 'x') + R"(\n\u0001yz",
    7
]
)") << length;
  }
}

TEST(ValueToText, IndentsByFourSpacesIfPretty) {
  Document document;
  document.Parse(R"({"a":[1,{}]})");
  EXPECT_EQ(valueToText(document, true), R"({
    "a": [
        1,
        {}
    ]
})");
  EXPECT_EQ(valueToText(document, false), R"({"a":[1,{}]})");
}

TEST(PrintValue, IndentsDeeplyNestedArrays) {
  constexpr std::size_t kDepth = 300;
  Document document;
  Value value(1);
  std::string before;
  std::string after;
  for (std::size_t depth = 0; depth < kDepth; ++depth) {
    Value outer(rapidjson::kArrayType);
    outer.PushBack(value, document.GetAllocator());
    value = outer;
    before += std::string(4 * depth, ' ') + "[\n";
    after.insert(0, std::string(4 * depth, ' ') + "]\n");
  }
  EXPECT_TRUE(printed(value) == before + std::string(4 * kDepth, ' ') + "1\n" + after);
}

}  // namespace
}  // namespace kovalt::test
