#include "json/load_document.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <string>

#include "capture.h"
#include "json/document.h"

namespace kovalt::test {
namespace {

/// How much of a file is read at once.
constexpr std::size_t kPiece = 8192;

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
