#include "json/tuning/output_stream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

namespace kovalt::test {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A stream into a file, next to the text that it should write there.
class OutputStreamText : public testing::Test {
 protected:
  void put(char character) {
    stream_.Put(character);
    expected_ += character;
  }

  void putShort(const std::string& text) {
    char* const place = stream_.Push(OutputStream::kShort);
    std::copy(text.begin(), text.end(), place);
    stream_.Pop(OutputStream::kShort - text.size());
    expected_ += text;
  }

  void putRepeated(char character, std::size_t count) {
    stream_.putRepeated(character, count);
    expected_.append(count, character);
  }

  void startLine(bool comma, std::size_t spaces) {
    stream_.startLine(comma, spaces);
    expected_ += (comma ? ",\n" : "\n") + std::string(spaces, ' ');
  }

  /// Puts all of `text`, of which '"' and '\\' are put one by one.
  void putPlain(const std::string& text) {
    for (std::size_t taken = 0; taken < text.size();) {
      const std::size_t added = stream_.putPlain(std::string_view(text).substr(taken));
      EXPECT_EQ(text.substr(taken, added).find_first_of("\"\\"), std::string::npos);
      taken += added;
      if (taken < text.size()) {
        stream_.Put(text[taken++]);
      }
    }
    expected_ += text;
  }

  void checkWritten() {
    stream_.Flush();
    std::string written(expected_.size() + 1, '-');
    std::rewind(file_.get());
    written.resize(std::fread(written.data(), 1, written.size(), file_.get()));
    EXPECT_TRUE(written == expected_);
  }

 private:
  std::unique_ptr<std::FILE, CloseFile> file_{std::tmpfile()};
  OutputStream stream_{file_.get()};
  std::string expected_;
};

TEST_F(OutputStreamText, IsWrittenWhole) {
  std::mt19937 random(1);
  for (int i = 0; i < 50000; ++i) {
    const std::size_t length = random() % 70;
    std::string text(length, static_cast<char>('a' + length % 26));
    switch (random() % 6) {
      case 0:
        put('x');
        break;
      case 1:
        putShort(text.substr(0, OutputStream::kShort));
        break;
      case 2:
        putRepeated('y', length);
        break;
      case 3:
        startLine(length % 2 == 0, length);
        break;
      case 4:
        putPlain(text);
        break;
      default:
        text += "\\" + text + "\"\"" + text;
        putPlain(text);
        break;
    }
  }
  checkWritten();
}

TEST_F(OutputStreamText, MayHaveOneRunOfSeveralPieces) {
  putRepeated('z', 200000);
  putPlain(std::string(200000, 'a') + "\\" + std::string(65536, 'b'));
  checkWritten();
}

TEST_F(OutputStreamText, MayEndWhereAPieceEnds) {
  putRepeated('z', 65536);
  checkWritten();
}

TEST_F(OutputStreamText, MayBeEmpty) { checkWritten(); }

}  // namespace
}  // namespace kovalt::test
