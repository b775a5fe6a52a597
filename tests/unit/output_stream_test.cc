#include "json/write/output_stream.h"

#include <gtest/gtest.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

namespace kovalt::test {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A stream into a file, and the text that it must write.
class OutputStreamText : public testing::Test {
 protected:
  void put(char character) {
    stream_.Put(character);
    expected_ += character;
  }

  void putShort(const std::string& text) {
    if (text.size() % 2 == 0) {
      std::copy(text.begin(), text.end(), stream_.Push(text.size()));
    } else {
      stream_.putShort([&](char* place) { return std::copy(text.begin(), text.end(), place); });
    }
    expected_ += text;
  }

  void putSpaces(std::size_t count) {
    stream_.putSpaces(count);
    expected_.append(count, ' ');
  }

  void startLine(bool comma, std::size_t spaces) {
    stream_.startLine(comma, spaces);
    expected_ += (comma ? ",\n" : "\n") + std::string(spaces, ' ');
  }

  void putString(const std::string& text) {
    stream_.putString(text);
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer>(buffer).String(text.data(),
                                                              static_cast<rapidjson::SizeType>(text.size()));
    expected_.append(buffer.GetString(), buffer.GetSize());
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

TEST_F(OutputStreamText, WritesRandomTexts) {
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
        putSpaces(length);
        break;
      case 3:
        startLine(length % 2 == 0, length);
        break;
      case 4:
        putString(text);
        break;
      default:
        putString(std::string(text).append("\\\"").append(text).append(1, static_cast<char>(i % 256)).append(text));
        break;
    }
  }
  checkWritten();
}

TEST_F(OutputStreamText, WritesRunsLongerThanTheBuffer) {
  putSpaces(200000);
  putString(std::string(200000, 'a') + "\\" + std::string(65536, 'b'));
  checkWritten();
}

TEST_F(OutputStreamText, EscapesEachCharacterAsRapidJsonDoes) {
  for (int character = 0; character < 256; ++character) {
    for (std::size_t before = 0; before < 40; ++before) {
      putString(std::string(before, 'a') + static_cast<char>(character));
      putString(static_cast<char>(character) + std::string(before, 'a'));
    }
  }
  checkWritten();
}

TEST_F(OutputStreamText, WritesAFullBuffer) {
  putSpaces(65536);
  checkWritten();
}

TEST_F(OutputStreamText, WritesNothing) { checkWritten(); }

}  // namespace
}  // namespace kovalt::test
