#include "json/character_block.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kovalt::test {
namespace {

/// Both kinds of blocks, if the compiler supports both.
template <typename Block>
class CharacterBlocks : public testing::Test {};

#ifdef __SSE2__
using Blocks = testing::Types<WordBlock, Sse2Block>;
#else
using Blocks = testing::Types<WordBlock>;
#endif
TYPED_TEST_SUITE(CharacterBlocks, Blocks, );

bool isUnescapedCode(int code) { return code >= 0x20 && code != '"' && code != '\\'; }

bool isWhitespaceCode(int code) { return code == ' ' || code == '\n' || code == '\r' || code == '\t'; }

/// A text in its own memory, so that a sanitizer reports a read after the last whole block.
template <typename Block>
std::string inBlocks(std::string text) {
  text.resize(text.size() + Block::kSize);
  text.shrink_to_fit();
  return text;
}

TYPED_TEST(CharacterBlocks, FindTheEndOfARunOfEachLength) {
  for (int code = 0; code < 256; ++code) {
    for (std::size_t length = 0; length < 40; ++length) {
      const auto character = static_cast<char>(code);
      const std::string unescaped = inBlocks<TypeParam>(std::string(length, 'a') + character);
      const std::string spaces = inBlocks<TypeParam>(std::string(length, ' ') + character);
      EXPECT_EQ(static_cast<std::size_t>(endOfUnescaped<TypeParam>(unescaped.data()) - unescaped.data()),
                length + (isUnescapedCode(code) ? 1 : 0))
          << code;
      EXPECT_EQ(endOfShortUnescaped<TypeParam>(unescaped.data()), endOfUnescaped<TypeParam>(unescaped.data())) << code;
      EXPECT_EQ(static_cast<std::size_t>(endOfWhitespace<TypeParam>(spaces.data()) - spaces.data()),
                length + (isWhitespaceCode(code) ? 1 : 0))
          << code;
    }
  }
}

TYPED_TEST(CharacterBlocks, FindTheEndWhateverTheNextCharacterIs) {
  for (int code = 0; code < 256; ++code) {
    const std::string pair = {static_cast<char>(code), static_cast<char>(code ^ 1)};
    for (const int other : {code, code ^ 1}) {
      std::string texts;
      for (int i = 0; i < 4; ++i) {
        texts += pair;
      }
      texts[5] = static_cast<char>(other);
      const std::string text = inBlocks<TypeParam>(texts);
      std::size_t unescaped = 0;
      std::size_t spaces = 0;
      while (isUnescapedCode(static_cast<unsigned char>(text[unescaped]))) {
        ++unescaped;
      }
      while (isWhitespaceCode(static_cast<unsigned char>(text[spaces]))) {
        ++spaces;
      }
      EXPECT_EQ(endOfUnescaped<TypeParam>(text.data()), text.data() + unescaped) << code;
      EXPECT_EQ(endOfWhitespace<TypeParam>(text.data()), text.data() + spaces) << code;
    }
  }
}

TYPED_TEST(CharacterBlocks, CopyUpToTheEndOfTheRun) {
  for (const char end : {'"', '\\', '\x1F', ' '}) {
    for (std::size_t size = TypeParam::kSize; size < 4 * TypeParam::kSize; ++size) {
      for (std::size_t place = 0; place < size; ++place) {
        std::vector<char> text(size, 'a');
        text[place] = end;
        std::vector<char> copy(size, '-');
        const std::size_t copied = copyUnescapedBlocks<TypeParam>(text.data(), size, copy.data());
        ASSERT_EQ(copied, end == ' ' ? size : place) << end << ' ' << size << ' ' << place;
        ASSERT_TRUE(std::equal(copy.data(), copy.data() + copied, text.data())) << end << ' ' << size << ' ' << place;
      }
    }
  }
}

TEST(CopyUnescaped, CopiesUpToTheEndOfTheRun) {
  for (int code = 0; code < 256; ++code) {
    for (std::size_t size = 1; size < 40; ++size) {
      for (std::size_t place = 0; place < size; ++place) {
        // In their own memory, so that a sanitizer reports a read or write before or after them.
        std::vector<char> text(size, 'a');
        text[place] = static_cast<char>(code);
        std::vector<char> copy(size, '-');
        const std::size_t copied = copyUnescaped(text.data(), size, copy.data());
        ASSERT_EQ(copied, isUnescapedCode(code) ? size : place) << code << ' ' << size << ' ' << place;
        ASSERT_TRUE(std::equal(copy.data(), copy.data() + copied, text.data())) << code << ' ' << size << ' ' << place;
      }
    }
  }
  EXPECT_EQ(copyUnescaped(nullptr, 0, nullptr), 0U);
}

}  // namespace
}  // namespace kovalt::test
