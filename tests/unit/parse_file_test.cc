// RapidJSON's reader gets the same from ReaderStream as from its own FileReadStream, and a load accepts the same texts,
// except numbers that this reader reads as infinity.

#include <gtest/gtest.h>
#include <rapidjson/filereadstream.h>

#include <random>
#include <string>
#include <vector>

#include "json/document.h"
#include "json/load/load_document.h"
#include "json/load/reader_stream.h"
#include "json/write/write_value.h"

namespace kovalt::test {
namespace {

/// The size of the input buffer.
constexpr std::size_t kBuffer = 8192;

/// The result of a reader.
struct Outcome {
  rapidjson::ParseErrorCode error = rapidjson::kParseErrorNone;
  std::size_t offset = 0;  ///< Of the error, or of the rest of the text.
  bool isAtEnd = false;
  std::string text;
};

bool operator==(const Outcome& left, const Outcome& right) {
  return left.error == right.error && left.offset == right.offset && left.isAtEnd == right.isAtEnd &&
         left.text == right.text;
}

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << outcome.error << " at " << outcome.offset << (outcome.isAtEnd ? ", at the end: " : ": ")
             << outcome.text;
}

/// Whether a stream is at its end: only there, Take does not advance it.
template <typename Stream>
bool isAtEnd(Stream& stream) {
  const std::size_t offset = stream.Tell();
  stream.Take();
  return stream.Tell() == offset;
}

template <typename Stream>
Outcome outcomeOf(Stream& stream) {
  Document document;
  document.ParseStream(stream);
  Outcome outcome;
  outcome.error = document.GetParseError();
  if (document.HasParseError()) {
    outcome.offset = document.GetErrorOffset();
    return outcome;
  }
  outcome.text = valueToText(document, false);
  outcome.offset = stream.Tell();
  outcome.isAtEnd = isAtEnd(stream);
  return outcome;
}

std::FILE* openText(std::string& text) { return fmemopen(text.data(), text.size(), "r"); }

/// The part of a file with this text that a load keeps.
std::string load(std::string& text, const Projection& projection) {
  std::FILE* file = openText(text);
  Document document;
  const bool parsed = parseFile(file, projection, document);
  std::fclose(file);
  return parsed ? valueToText(document, false) : "(rejected)";
}

/// Compares the stream and two loads of `text` with a parse through FileReadStream.
void compare(std::string text) {
  std::FILE* file = openText(text);
  std::string bytes(kBuffer, '\0');
  rapidjson::FileReadStream rapidJsonStream(file, bytes.data(), bytes.size());
  const Outcome expected = outcomeOf(rapidJsonStream);
  std::fclose(file);

  file = openText(text);
  InputBuffer buffer(file);
  ReaderStream stream(buffer);
  const Outcome outcome = outcomeOf(stream);
  const std::string shown = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  EXPECT_EQ(outcome, expected) << shown;
  std::fclose(file);

  const bool isOneValue = expected.error == rapidjson::kParseErrorNone && expected.isAtEnd;
  Projection whole;
  whole.addWhole(Projection::kRoot);
  EXPECT_EQ(load(text, whole), isOneValue ? expected.text : "(rejected)") << shown;
  EXPECT_EQ(load(text, {}) != "(rejected)", isOneValue) << shown;
}

/// Calls `compare` with spaces before `text`, so that the end of the buffer falls on each of its bytes in turn.
void compareAroundBufferEnds(const std::string& text) {
  for (std::size_t inside = 0; inside <= text.size() + 1; ++inside) {
    compare(std::string(kBuffer - inside, ' ') + text);
    compare(std::string(kBuffer - inside, ' ') + text + std::string(kBuffer, '\n'));
  }
}

const std::vector<std::string>& texts() {
  static const std::vector<std::string> kTexts = {
      "",
      "{}",
      "[]",
      R"({"a":1,"bc":[true,false,null],"":{"d":-12.5e-3}})",
      R"(["abc\ndefg\\hijklm\"nopqrs\u00e9tuvwxyz\ud83d\ude00\/\b\f\r\t", "a text of some length", "\u0000"])",
      "[0,-0,1.5,-1e5,1E+5,1e-5,123456789012,12345678901234567890123,4294967295,4294967296,-2147483649]",
      "[18446744073709551615,18446744073709551616,-9223372036854775808,-9223372036854775809,0.1234567890123456789]",
      "[12345678,-123456789,123456789012345,-123456789012345,1234567890123456,12345678901234567,0.0,-0.0]",
      "[1234567.12345678,12345678.1234567,12345678.12345678,123456789012345.1,0.00000000000001,0.000000000000001]",
      "[9007199254740991.7,9007199254740992.7,9007199254740993.7,90071992547409930.7,0.90071992547409915]",
      "[12.345678901234567,0.12345678901234567,0.012345678901234567,0.0012345678901234567,0.123456789012345678]",
      "[12345678901234567,-12345678901234567,123456789012345678,99999999999999999,9999999999999999.9]",
      "[00000000000000001,00.1,1..2,1.2.3]",
      "[0123456789012345]",
      "[1234567.]",
      "[12345678.]",
      "[falsey]",
      "[trUe]",
      "[nulL,1]",
      "[fals",
      "[1e308,1e309,1]",
      "\t\r\n {\n    \"a\":\t\r\n    \"b\"  ,\n                                  \"c\" : [ ]\n}  \n\n",
      std::string("\"gr\xC3\xB6\xC3\x9F") + "e \xE6\xBC\xA2\xE5\xAD\x97 \xFF\xFE raw bytes\"",
      std::string("[1]\0", 4),
      std::string("[1]\0[2]", 7),
      std::string("\0[1]", 4),
      std::string("[\"a\0b\"]", 7),
      "[1]]",
      "nul",
      "truth",
      R"("\ud83d\u0041")",
      R"("\ud83dx")",
      R"("\ud83d\ue000")",
      R"("\udc00\udc00 \udfff")",
      R"(["\ud7ff","\ue000","\uffff","\udc00","\uFFFF\uD7FF"])",
      R"("\ud800\udbff")",
      R"("\ud800\udc0")",
      R"("\u00g0")",
      R"("\x")",
      "\"open",
      "[1,]",
      "{\"a\" 1}",
      "{a:1}",
      "\"line\nend\"",
      "[1.]",
      "[1e]",
      "[-]",
      "[01]",
      R"({"a":[{},[],{"b":[[]]}],"c":{"d":{}}})",
      R"([ 1 , true,false , null,"x" ,{ "k" : -0 , "l":[ ] } , [ ] ])",
      "[1 2]",
      "[1}",
      R"({"a":1])",
      R"([{"a":1],2])",
      R"([{"a":1]])",
      "[[1}]",
      R"({"b":[1}})",
      R"({"a":1,})",
      R"({"a"})",
      R"({"a":})",
      "[,1]",
      "[tru,1]",
      "[nulls]",
      "[[[[1]]]",
      "[1,[2,3],{\"a\":[]}]]",
  };
  return kTexts;
}

TEST(ParseFile, AgreesWithRapidJsonAcrossTheEndOfTheBuffer) {
  for (const std::string& text : texts()) {
    compare(text);
    compareAroundBufferEnds(text);
  }
}

TEST(ParseFile, AgreesWithRapidJsonOnDamagedTexts) {
  std::mt19937 random(1);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  for (int round = 0; round < 4000; ++round) {
    std::string text = texts()[1 + below(texts().size() - 1)];
    for (std::size_t damage = 1 + below(3); damage > 0 && !text.empty(); --damage) {
      const std::size_t place = below(text.size());
      if (below(3) == 0) {
        text.erase(place, 1 + below(4));
      } else if (below(2) == 0) {
        text[place] = static_cast<char>(below(256));
      } else {
        text.insert(place, 1, R"(0123"\{}[],:. eE+-)"[below(18)]);
      }
    }
    compare(text);
    compare(std::string(kBuffer - below(text.size() + 2), ' ') + text);
  }
}

TEST(ReaderStream, StaysAtTheEndOfTheFile) {
  std::string text = "ab";
  std::FILE* file = openText(text);
  InputBuffer buffer(file);
  ReaderStream stream(buffer);
  EXPECT_EQ(stream.Take(), 'a');
  EXPECT_EQ(stream.Take(), 'b');
  for (int i = 0; i < 40; ++i) {
    EXPECT_EQ(stream.Take(), '\0');
    EXPECT_EQ(stream.Tell(), 2U);
  }
  std::fclose(file);
}

TEST(ParseFile, AgreesWithRapidJsonOnTextsOfSeveralBuffers) {
  for (std::size_t size = 2 * kBuffer - 20; size < 2 * kBuffer + 20; ++size) {
    std::string run;
    while (run.size() < size) {
      run += static_cast<char>('a' + run.size() % 23);
    }
    compare('"' + run + '"');
    compare('"' + run);
    compare('[' + std::string(size, ' ') + '1' + std::string(size, ' ') + ']');
    compare(std::string(size, '1'));
    compare("0." + std::string(size, '1'));
    compare(std::string(size, ' '));
  }
}

}  // namespace
}  // namespace kovalt::test
