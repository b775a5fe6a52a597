#include <gtest/gtest.h>

#include <array>
#include <string>

#include "json/document.h"
#include "json/write/write_value.h"
#include "support/capture.h"

namespace kovalt::test {
namespace {

/// What is held back before it is written.
constexpr std::size_t kPiece = 65536;

Value makeString(const std::string& text, Allocator& allocator) {
  return {text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator};
}

std::string printed(const Value& value) {
  const Printed result = capture([&] { printValue(value); });
  EXPECT_EQ(result.errors, "");
  return result.output;
}

/// How a character stands in a string of a JSON text.
std::string inString(unsigned char character) {
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

TEST(PrintValue, WritesEachCharacterOfNamesAndStrings) {
  for (int code = 0; code < 256; ++code) {
    const auto character = static_cast<unsigned char>(code);
    const std::string text = {'a', 'b', static_cast<char>(character), 'c', 'd'};
    Document document;
    document.SetObject();
    document.AddMember(makeString(text, document.GetAllocator()), makeString(text, document.GetAllocator()),
                       document.GetAllocator());
    const std::string quoted = "\"ab" + inString(character) + "cd\"";
    std::string expected = "{\n    ";
    expected.append(quoted).append(": ").append(quoted).append("\n}\n");
    EXPECT_EQ(printed(document), expected) << code;
  }
}

TEST(PrintValue, LosesNothingWhereAPieceEnds) {
  for (std::size_t length = kPiece - 12; length < kPiece + 12; ++length) {
    Document document;
    const std::string text = std::string(length, 'x') + "\n\x01yz";
    document.SetArray().PushBack(makeString(text, document.GetAllocator()), document.GetAllocator());
    document.PushBack(7, document.GetAllocator());
    EXPECT_TRUE(printed(document) == "[\n    \"" + std::string(length, 'x') + "\\n\\u0001yz\",\n    7\n]\n") << length;
  }
}

TEST(PrintValue, LosesNothingOfStringsThatFillSeveralPieces) {
  for (const std::size_t length : {2 * kPiece - 1, 2 * kPiece, 3 * kPiece + 1}) {
    Document document;
    static_cast<Value&>(document) = makeString(std::string(length, 'x'), document.GetAllocator());
    EXPECT_TRUE(printed(document) == "\"" + std::string(length, 'x') + "\"\n") << length;
  }
}

TEST(PrintValue, IndentsAnyDepth) {
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

TEST(PrintValue, LosesNothingOfManySmallValues) {
  const std::array<std::string, 4> texts = {"", "a", "short text",
                                            "a longer text, which fills up a good part of a line"};
  Document document;
  document.SetArray();
  std::string expected = "[\n";
  for (std::size_t i = 0; i < 20000; ++i) {
    const std::string& text = texts.at(i % 7 % texts.size());
    document.PushBack(makeString(text, document.GetAllocator()), document.GetAllocator());
    expected += (i == 0 ? "    \"" : ",\n    \"") + text + "\"";
  }
  EXPECT_TRUE(printed(document) == expected + "\n]\n");
}

}  // namespace
}  // namespace kovalt::test
