// The part of a file that a load for a completion keeps.

#include "completion/key_path_projection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "completion/key_path_candidates.h"
#include "json/load/load_document.h"
#include "json/path/key_path.h"
#include "support/capture.h"
#include "support/json_text.h"
#include "support/memory_file.h"
#include "support/random_json.h"

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

TEST_F(KeyPathProjection, KeepsTheMembersThatBeginWithTheWord) {
  const std::string json = R"({"items":[{"id":1},{"id":2}],"meta":{"version":7,"via":{"x":{"y":1}},"name":"n"}})";
  EXPECT_EQ(kept(json, "meta.v"), R"({"meta":{"version":null,"via":{"x":{}}}})");
  EXPECT_EQ(kept(json, "meta"), R"({"meta":{"version":null,"via":{},"name":null}})");
  EXPECT_EQ(kept(json, "none.x"), "{}");
  EXPECT_EQ(kept(json, "meta.none"), R"({"meta":{}})");
}

TEST_F(KeyPathProjection, KeepsTheSelectingMembersOfArrays) {
  const std::string json = R"({"items":[{"id":1,"in":[2,[3],{"a":4}],"at":{"x":5},"name":"n"},{"id":6}]})";
  EXPECT_EQ(kept(json, "items.i"), R"({"items":[{"id":1,"in":[2,[],{}]},{"id":6}]})");
  EXPECT_EQ(kept(json, "items.id="), R"({"items":[{"id":1},{"id":6}]})");
  EXPECT_EQ(kept(json, "items.id=6.n"), R"({"items":[{"id":1,"name":null},{"id":6}]})");
}

TEST_F(KeyPathProjection, KeepsTheNextStepsBelowASelectingMember) {
  const Word word = {"a=7."};
  const Document document = loadFor(R"([{"a":[{"b":1},7],"c":2}])", word);
  EXPECT_EQ(keyPathCandidates({&document}, word.text, word.use).words(), (std::vector<std::string>{"a=7.a.", "a=7.c"}));
}

/// A word that is being typed: its last step may be empty or the start of one.
std::string randomWord(RandomJson& random) { return random.path(3) + random.pick({"", "", ".", "b", "=7"}); }

TEST_F(KeyPathProjection, ChangesNoCandidates) {
  RandomJson random;
  std::size_t offered = 0;
  capture([&] {
    for (int i = 0; i < 20000; ++i) {
      const std::string json = random.document();
      const std::string text = randomWord(random);
      const std::string array = random.path(2);
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
  EXPECT_GT(offered, 0U) << "no word has a candidate";
}

}  // namespace
}  // namespace kovalt::test
