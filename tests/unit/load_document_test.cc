#include "json/load/load_document.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <random>
#include <string>

#include "json/document.h"
#include "support/capture.h"

namespace kovalt::test {
namespace {

/// How much of a file is read at once.
constexpr std::size_t kPiece = 8192;

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

/// A file that is removed with the test.
class LoadDocument : public testing::Test {
 protected:
  LoadDocument() { close(mkstemp(path_.data())); }
  ~LoadDocument() override { unlink(path_.c_str()); }

  /// Whether a file with this content loads, and what is reported.
  bool loads(const std::string& content, Document& document) {
    std::ofstream(path_, std::ios::binary | std::ios::trunc) << content;
    bool loaded = false;
    const Printed printed = capture([&] { loaded = loadDocument(path_, document, true); });
    EXPECT_EQ(printed.output, "");
    EXPECT_EQ(printed.errors, loaded ? "" : "Could not parse json file " + path_ + "\n");
    return loaded;
  }

  /// The string that a file with this content consists of.
  std::string loadedString(const std::string& content) {
    Document document;
    if (!loads(content, document) || !document.IsString()) {
      return "(no string)";
    }
    return {document.GetString(), document.GetStringLength()};
  }

  /// Expects that a file with this content loads exactly when RapidJSON's own reader takes it, as the same number, and
  /// likewise where it stands in an array.
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
  std::string path_ = testing::TempDir() + "kovalt-XXXXXX";
};

TEST_F(LoadDocument, TakesStringsOfAnyLength) {
  for (std::size_t length = 0; length < 40; ++length) {
    const std::string text(length, 'x');
    EXPECT_EQ(loadedString('"' + text + '"'), text);
  }
}

TEST_F(LoadDocument, TakesOrRefusesEachCharacterAtEachPlaceOfARun) {
  for (int code = 0; code < 256; ++code) {
    const auto character = static_cast<char>(code);
    for (std::size_t place = 0; place < 6; ++place) {
      const std::string before(place, 'a');
      const std::string text = before + character + "bcdefgh";
      std::string expected = text;
      if (code < 0x20 || code == '"') {
        expected = "(no string)";
      } else if (code == '\\') {
        expected = before + "\bcdefgh";
      }
      EXPECT_EQ(loadedString('"' + text + '"'), expected) << code << ' ' << place;
    }
  }
}

TEST_F(LoadDocument, MakesTheSameOfEachNumberAsTheReaderByItself) {
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
                             "9999999 ",
                             "99999999 ",
                             "9007199254740991.0 ",
                             "9007199254740993.0 ",
                             "9999999.999999999 ",
                             "0.9999999999999999 ",
                             "0.0000000000000001 ",
                             "0.00000000000000001 ",
                             "1. ",
                             "-.5 ",
                             ".5 ",
                             "- ",
                             "1.5.5 ",
                             ""}) {
    compareNumber(number);
  }
}

TEST_F(LoadDocument, MakesTheSameOfNumbersWhereverAPieceEnds) {
  for (const std::string number : {"12345", "-1234567", "12.5", "-60.305346760769", "9.999999999999999", "1.5e10"}) {
    for (std::size_t inside = 0; inside <= number.size() + 1; ++inside) {
      compareNumber(std::string(kPiece - inside, ' ') + number);
      compareNumber(std::string(kPiece - inside, ' ') + number + ' ');
      compareNumber(std::string(kPiece - inside, ' ') + number + "x");
    }
  }
}

TEST_F(LoadDocument, LosesNothingWhereAPieceEnds) {
  const std::string quoted = R"("abc\ndefg\\hijklm\"nopqrs\u00e9tuvwxyz\ud83d\ude00")";
  const std::string expected = "abc\ndefg\\hijklm\"nopqrs\xC3\xA9tuvwxyz\xF0\x9F\x98\x80";
  for (std::size_t inside = 0; inside <= quoted.size() + 8; ++inside) {
    const std::string before(kPiece - inside, ' ');
    EXPECT_EQ(loadedString(before + quoted), expected) << inside;
    EXPECT_EQ(loadedString(before + quoted + std::string(kPiece, ' ')), expected) << inside;
  }
}

TEST_F(LoadDocument, LosesNothingOfStringsThatFillSeveralPieces) {
  for (std::size_t length = 2 * kPiece - 12; length < 2 * kPiece + 12; ++length) {
    std::string text;
    while (text.size() < length) {
      text += static_cast<char>('a' + text.size() % 23);
    }
    EXPECT_TRUE(loadedString('"' + text + '"') == text) << length;
    EXPECT_TRUE(loadedString('"' + text + "\\t\"") == text + '\t') << length;
  }
}

TEST_F(LoadDocument, RefusesAStringWithoutEndWhereverAPieceEnds) {
  for (std::size_t length = kPiece - 12; length < kPiece + 12; ++length) {
    EXPECT_EQ(loadedString('"' + std::string(length, 'x')), "(no string)") << length;
    EXPECT_EQ(loadedString('"' + std::string(length, 'x') + "\x1F\""), "(no string)") << length;
  }
}

}  // namespace
}  // namespace kovalt::test
