// What the load for a completion keeps of a file: little, and never too little.

#include "completion/key_path_projection.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "completion/key_path_candidates.h"
#include "json/load/load_document.h"
#include "json/path/key_path.h"
#include "unit/capture.h"
#include "unit/json_text.h"
#include "unit/memory_file.h"

namespace kovalt::test {
namespace {

/// A word at the cursor. With an array, it is a field of its elements.
struct Word {
  std::string text;
  KeyPathUse use = {};
  const std::string* array = nullptr;
};

class KeyPathProjection : public testing::Test {
 protected:
  /// Reports a load that fails.
  Document load(const std::string& json, const Projection& projection) {
    file_.write(json);
    Document document;
    EXPECT_TRUE(loadProjected(file_.path(), projection, document, false)) << json;
    return document;
  }

  Document loadFor(const std::string& json, const Word& word) {
    Projection projection;
    Projection::Place from = Projection::kRoot;
    if (word.array != nullptr) {
      from = projection.addElements(projection.addWalk(KeyPath(*word.array), from));
    }
    addCandidates(projection, from, word.text, word.use);
    return load(json, projection);
  }

  Document loadWhole(const std::string& json) {
    Projection projection;
    projection.addWhole(Projection::kRoot);
    return load(json, projection);
  }

  std::string kept(const std::string& json, const std::string& word) { return jsonOf(loadFor(json, {word})); }

 private:
  MemoryFile file_;
};

TEST_F(KeyPathProjection, KeepsTheMembersThatBeginAsTyped) {
  const std::string json = R"({"items":[{"id":1},{"id":2}],"meta":{"version":7,"via":{"x":{"y":1}},"name":"n"}})";
  EXPECT_EQ(kept(json, "meta.v"), R"({"meta":{"version":null,"via":{"x":{}}}})");
  EXPECT_EQ(kept(json, "meta"), R"({"meta":{"version":null,"via":{},"name":null}})");
  EXPECT_EQ(kept(json, "none.x"), "{}");
  EXPECT_EQ(kept(json, "meta.none"), R"({"meta":{}})");
}

TEST_F(KeyPathProjection, KeepsOfArraysWhatSelects) {
  const std::string json = R"({"items":[{"id":1,"in":[2,[3],{"a":4}],"at":{"x":5},"name":"n"},{"id":6}]})";
  EXPECT_EQ(kept(json, "items.i"), R"({"items":[{"id":1,"in":[2,[],{}]},{"id":6}]})");
  EXPECT_EQ(kept(json, "items.id="), R"({"items":[{"id":1},{"id":6}]})");
  EXPECT_EQ(kept(json, "items.id=6.n"), R"({"items":[{"id":1,"name":null},{"id":6}]})");
}

TEST_F(KeyPathProjection, KeepsOfAMemberThatSelectedWhereItGoesOn) {
  const Word word = {"a=7."};
  const Document document = loadFor(R"([{"a":[{"b":1},7],"c":2}])", word);
  EXPECT_EQ(keyPathCandidates({&document}, word.text, word.use).words(), (std::vector<std::string>{"a=7.a.", "a=7.c"}));
}

/// Makes documents full of duplicates and wrong kinds, and words that meet them.
class Generator {
 public:
  std::string value(int depth) {
    const std::size_t kind = below(depth > 0 ? 12 : 6);
    if (kind < 6) {
      return pick({"null", "true", "7", "-7.5", R"("a")", R"("a.b")", R"("7")", R"("a\u0000b")"});
    }
    const bool isArray = kind < 9;
    std::string text(1, isArray ? '[' : '{');
    const std::size_t size = below(4);
    for (std::size_t i = 0; i < size; ++i) {
      text += (i > 0 ? "," : "") + (isArray ? element(depth - 1) : '"' + name() + "\":" + value(depth - 1));
    }
    return text + (isArray ? ']' : '}');
  }

  /// A root that words get into.
  std::string document() {
    const std::string array = '[' + element(4) + ',' + element(4) + ',' + element(3) + ']';
    return below(4) == 0 ? array : "{\"a\":" + array + ",\"" + name() + "\":" + value(4) + ",\"b\":" + element(4) + '}';
  }

  std::string word(std::size_t mostSteps) {
    std::string text = below(4) == 0 ? "" : step();
    for (std::size_t steps = below(mostSteps); steps > 0; --steps) {
      text += '.' + step();
    }
    return text;
  }

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }

  std::string pick(const std::vector<std::string>& texts) { return texts[below(texts.size())]; }

  std::string name() { return pick({"a", "a", "ab", "b", "b", "", "a.b", "a=7", "\\n"}); }

  std::string step() { return pick({"a", "ab", "b", "b", ""}) + (below(3) == 0 ? pick({"=7", "=a", "=", "=t"}) : ""); }

  /// Most elements are objects: words come further there.
  std::string element(int depth) {
    if (below(5) == 0) {
      return value(depth);
    }
    const std::string first = '"' + name() + "\":" + value(depth - 1);
    return '{' + first + ",\"" + name() + "\":" + value(depth - 1) + '}';
  }

  std::mt19937 random_{1};
};

TEST_F(KeyPathProjection, ChangesNoCandidates) {
  Generator generator;
  std::size_t offered = 0;
  capture([&] {
    for (int i = 0; i < 20000; ++i) {
      const std::string json = generator.document();
      const std::string text = generator.word(4);
      const std::string array = generator.word(2);
      const Document whole = loadWhole(json);
      for (const Word& word :
           {Word{text}, Word{text, {false, false}}, Word{text, {true, true}}, Word{text, {}, &array}}) {
        const auto candidates = [&](const Document& document) {
          const bool isField = word.array != nullptr;
          return keyPathCandidates(
                     isField ? arrayElements(document, *word.array) : std::vector<const Value*>{&document}, text,
                     word.use)
              .words();
        };
        const std::vector<std::string> expected = candidates(whole);
        offered += expected.size();
        ASSERT_EQ(candidates(loadFor(json, word)), expected)
            << json << ' ' << text << (word.array != nullptr ? " of " + array : "");
      }
    }
  });
  EXPECT_GT(offered, 10000U) << "the words meet too little";
}

}  // namespace
}  // namespace kovalt::test
