// Strings and numbers of loaded files. parse_file_test.cc has the ends of the input buffer.

#include "json/load/load_document.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>

#include "json/document.h"
#include "support/capture.h"
#include "support/memory_file.h"

namespace kovalt::test {
namespace {

std::uint64_t bitsOf(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof(bits));
  return bits;
}

void compareNumbers(const Value& value, const rapidjson::Value& expected, const std::string& number) {
  EXPECT_EQ(value.IsInt(), expected.IsInt()) << number;
  EXPECT_EQ(value.IsUint(), expected.IsUint()) << number;
  EXPECT_EQ(value.IsInt64(), expected.IsInt64()) << number;
  EXPECT_EQ(value.IsUint64(), expected.IsUint64()) << number;
  EXPECT_EQ(value.IsDouble(), expected.IsDouble()) << number;
  EXPECT_EQ(bitsOf(value.GetDouble()), bitsOf(expected.GetDouble())) << number;
  EXPECT_TRUE(!value.IsUint64() || value.GetUint64() == expected.GetUint64()) << number;
  EXPECT_TRUE(!value.IsInt64() || value.GetInt64() == expected.GetInt64()) << number;
}

class LoadDocument : public testing::Test {
 protected:
  /// Whether a file with this content loads. Expects a report of a file that does not.
  bool loads(const std::string& content, Document& document) {
    file_.write(content);
    bool loaded = false;
    const Printed printed = capture([&] { loaded = loadDocument(file_.path(), document, true); });
    EXPECT_EQ(printed.output, "");
    EXPECT_EQ(printed.errors, loaded ? "" : "Could not parse json file " + file_.path() + "\n");
    return loaded;
  }

  /// The string in a file with this content, or "(not a string)".
  std::string loadedString(const std::string& content) {
    Document document;
    if (!loads(content, document) || !document.IsString()) {
      return "(not a string)";
    }
    return {document.GetString(), document.GetStringLength()};
  }

  /// Expects that a file with this number loads if and only if RapidJSON's own reader accepts it as a finite number,
  /// and as the same number, alone and as an element.
  void compareNumber(const std::string& content) {
    rapidjson::Document expected;
    expected.Parse(content.c_str());
    const bool isNumber = !expected.HasParseError() && std::isfinite(expected.GetDouble());
    const std::string number = content.substr(std::min(content.find_first_not_of(' '), content.size()));
    Document alone;
    Document array;
    ASSERT_EQ(loads(content, alone), isNumber) << number;
    ASSERT_EQ(loads('[' + content + ']', array), isNumber || number.empty()) << number;
    if (isNumber) {
      compareNumbers(alone, expected, number);
      compareNumbers(array[0], expected, number);
    }
  }

 private:
  MemoryFile file_;
};

TEST_F(LoadDocument, LoadsStringsOfEachLength) {
  for (std::size_t length = 0; length < 40; ++length) {
    const std::string text(length, 'x');
    EXPECT_EQ(loadedString('"' + text + '"'), text);
  }
}

TEST_F(LoadDocument, AcceptsOrRejectsEachCharacterAtEachPlaceOfAString) {
  for (int code = 0; code < 256; ++code) {
    const auto character = static_cast<char>(code);
    for (std::size_t place = 0; place < 6; ++place) {
      const std::string before(place, 'a');
      const std::string text = before + character + "bcdefgh";
      std::string expected = text;
      if (code < 0x20 || code == '"') {
        expected = "(not a string)";
      } else if (code == '\\') {
        expected = before + "\bcdefgh";
      }
      EXPECT_EQ(loadedString('"' + text + '"'), expected) << code << ' ' << place;
    }
  }
}

TEST_F(LoadDocument, LoadsNumbersAsRapidJsonDoes) {
  std::mt19937 random(1);
  const auto digits = [&random](std::size_t most) {
    std::string text;
    for (std::size_t count = random() % (most + 1); count > 0; --count) {
      text += static_cast<char>('0' + random() % 10);
    }
    return text;
  };
  for (int round = 0; round < 4000; ++round) {
    std::string number = (random() % 3 == 0 ? "-" : "") + digits(random() % 4 == 0 ? 22 : 9);
    if (random() % 3 != 0) {
      number += '.' + digits(random() % 4 == 0 ? 25 : 17);
    }
    if (random() % 6 == 0) {
      number += (random() % 2 == 0 ? "e" : "E") + std::string(random() % 2 == 0 ? "-" : "") + digits(3);
    }
    if (random() % 20 == 0) {
      number.insert(random() % (number.size() + 1), 1, "0.-+eE/:x"[random() % 9]);
    }
    compareNumber(number + ' ');
  }
  for (const char* number : {"0 ",
                             "-0 ",
                             "0.0 ",
                             "-0.0 ",
                             "00 ",
                             "01 ",
                             "-01 ",
                             "0.5 ",
                             "00.5 ",
                             "1. ",
                             "-.5 ",
                             ".5 ",
                             "- ",
                             "1.5.5 ",
                             "",
                             "9999999 ",
                             "99999999 ",
                             "9007199254740991.0 ",
                             "9007199254740993.0 ",
                             "9999999.999999999 ",
                             "0.9999999999999999 ",
                             "0.0000000000000001 ",
                             "0.00000000000000001 "}) {
    compareNumber(number);
  }
}

}  // namespace
}  // namespace kovalt::test
