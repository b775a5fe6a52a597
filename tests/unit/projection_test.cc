// The part of a document that a load keeps for reads.

#include "json/load/projection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "actions/read/read_object_array_concat_action.h"
#include "json/load/load_document.h"
#include "support/capture.h"
#include "support/json_text.h"
#include "support/memory_file.h"

namespace kovalt::test {
namespace {

class ProjectionTest : public testing::Test {
 protected:
  /// Returns the text of the part of a file that a load keeps, or "(rejected)".
  std::string kept(const std::string& content, const Projection& projection) {
    file_.write(content);
    Document document;
    bool loaded = false;
    const Printed printed = capture([&] { loaded = loadProjected(file_.path(), projection, document, false); });
    EXPECT_EQ(printed.output, "");
    EXPECT_EQ(printed.errors, loaded ? "" : "Could not parse json file " + file_.path() + "\n");
    return loaded ? jsonOf(document) : "(rejected)";
  }

  /// The part that is kept for reads of these key paths.
  std::string kept(const std::string& content, const std::vector<std::string>& keyPaths) {
    Projection projection;
    for (const std::string& keyPath : keyPaths) {
      ReadAction(keyPath).addTo(projection, Projection::kRoot);
    }
    return kept(content, projection);
  }

  /// The part that is kept for a concatenation.
  std::string keptOfFields(const std::string& content, const std::string& keyPath,
                           const std::vector<std::string>& fields) {
    Projection projection;
    ReadObjectArrayConcatAction(keyPath, fields, " ").addTo(projection, Projection::kRoot);
    return kept(content, projection);
  }

 private:
  MemoryFile file_;
};

TEST_F(ProjectionTest, KeepsThePathAndItsWholeValue) {
  const std::string text = R"({"x":[1],"a":{"y":{},"b":{"c":[1,{"d":"e"}],"c":2.5},"z":null},"w":true})";
  EXPECT_EQ(kept(text, {"a.b"}), R"({"a":{"b":{"c":[1,{"d":"e"}],"c":2.5}}})");
  EXPECT_EQ(kept(text, {"a.b.c"}), R"({"a":{"b":{"c":[1,{"d":"e"}]}}})");
  EXPECT_EQ(kept(text, {"w"}), R"({"w":true})");
  EXPECT_EQ(kept(text, {"none"}), "{}");
  EXPECT_EQ(kept(text, {""}), text);
}

TEST_F(ProjectionTest, KeepsValuesOfEachType) {
  const std::string members =
      R"("a":null,"b":true,"c":false,"d":-1,"e":1,"f":-4294967296,"g":18446744073709551615,"h":-0.5,"i":"\u00e9\n")";
  const std::string text = '{' + members + R"(,"j":[],"k":{}})";
  Document whole = parsed(text);
  EXPECT_EQ(kept(text, {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k"}), jsonOf(whole));
  for (const char* scalar :
       {"null", "true", "-7", "7", "0.5", R"("a text that is too long to be stored inside a value")"}) {
    EXPECT_EQ(kept(scalar, {""}), scalar);
    EXPECT_EQ(kept(scalar, {"a"}), "null");
  }
}

TEST_F(ProjectionTest, KeepsTheTypeOfContainersThatThePathCannotEnter) {
  EXPECT_EQ(kept(R"({"a":"text"})", {"a.b"}), R"({"a":null})");
  EXPECT_EQ(kept(R"({"a":[{"b":1}]})", {"a.b"}), R"({"a":[]})");
  EXPECT_EQ(kept(R"({"a":{"b":1}})", {"a.b=1"}), R"({"a":{}})");
  EXPECT_EQ(kept(R"([1,[2]])", {"a"}), "[]");
  EXPECT_EQ(kept(R"({"a":{"b":1}})", {"b=1"}), "{}");
}

TEST_F(ProjectionTest, KeepsTheFirstOfMembersWithTheSameName) {
  EXPECT_EQ(kept(R"({"a":1,"a":2})", {"a"}), R"({"a":1})");
  EXPECT_EQ(kept(R"({"a":{"b":1},"x":0,"a":{"b":2,"b":3}})", {"a.b"}), R"({"a":{"b":1}})");
  EXPECT_EQ(kept(R"({"a":5,"a":{"b":2}})", {"a.b"}), R"({"a":null})");
  EXPECT_EQ(kept(R"({"a":{},"a":{"b":2}})", {"a.b"}), R"({"a":{}})");
  // In each object of an array.
  EXPECT_EQ(kept(R"({"l":[{"i":1,"i":2},{"i":3,"i":4}]})", {"l.i=3"}), R"({"l":[{"i":1,"i":2},{"i":3,"i":4}]})");
  EXPECT_EQ(kept(R"({"l":[{"i":1,"i":2,"v":1,"v":2},{"i":3,"i":4}]})", {"l.i=3.v"}),
            R"({"l":[{"i":1,"v":1},{"i":3}]})");
}

TEST_F(ProjectionTest, KeepsTheSelectingMemberAndTheNextStepOfEachElement) {
  const std::string text =
      R"({"l":[{"x":1,"i":7,"n":"a","m":[]},{"i":[1,"b",null,{"c":1},[2]],"n":{"o":1}},{"i":{"c":1}},3,[4],{}]})";
  EXPECT_EQ(kept(text, {"l.i=7.n"}),
            R"({"l":[{"i":7,"n":"a"},{"i":[1,"b",null,{},[]],"n":{"o":1}},{"i":{}},null,[],{}]})");
  EXPECT_EQ(kept(text, {"l.i=7.n.o"}),
            R"({"l":[{"i":7,"n":null},{"i":[1,"b",null,{},[]],"n":{"o":1}},{"i":{}},null,[],{}]})");
  EXPECT_EQ(kept(text, {"l.=7"}), R"({"l":[{"x":1,"i":7,"n":"a","m":[]},)"
                                  R"({"i":[1,"b",null,{"c":1},[2]],"n":{"o":1}},{"i":{"c":1}},3,[4],{}]})");
  EXPECT_EQ(kept(R"([{"":1,"a":[{"b":2,"c":3,"d":4}]}])", {"=1.a.b=2.c"}), R"([{"":1,"a":[{"b":2,"c":3}]}])");
}

TEST_F(ProjectionTest, KeepsTheFieldsOfEachElement) {
  const std::string text = R"({"l":[{"x":1,"i":7,"h":{"p":1,"q":[2]}},{"h":{"q":{"r":3}},"i":"b"},5,[6]]})";
  EXPECT_EQ(keptOfFields(text, "l", {"i", "h.q"}),
            R"({"l":[{"i":7,"h":{"q":[2]}},{"h":{"q":{"r":3}},"i":"b"},null,[]]})");
  EXPECT_EQ(keptOfFields(text, "l", {}), text);
  EXPECT_EQ(keptOfFields(text, "l", {""}), text);
  EXPECT_EQ(keptOfFields(text, "", {"l"}), "{}");
  EXPECT_EQ(keptOfFields(R"([[{"a":1,"b":2}],[]])", "", {"a=1.b"}), R"([[{"a":1,"b":2}],[]])");
}

TEST_F(ProjectionTest, KeepsThePartsOfSeveralReads) {
  const std::string text = R"({"a":{"b":{"c":1,"d":2},"e":3},"f":[{"g":1,"h":2}],"i":4})";
  EXPECT_EQ(kept(text, {"a.b.c", "a.e", "a.b.c"}), R"({"a":{"b":{"c":1},"e":3}})");
  EXPECT_EQ(kept(text, {"a.b.c", "a"}), R"({"a":{"b":{"c":1,"d":2},"e":3}})");
  EXPECT_EQ(kept(text, {"a", "a.b.c"}), R"({"a":{"b":{"c":1,"d":2},"e":3}})");
  EXPECT_EQ(kept(text, {"f.x", "f.g=1"}), R"({"f":[{"g":1,"h":2}]})");
  EXPECT_EQ(kept(text, {"f.g=1.h", "f.g.x"}), R"({"f":[{"g":1,"h":2}]})");
}

TEST_F(ProjectionTest, RejectsErrorsInSkippedValues) {
  for (const char* bad : {"1e400", "[1e400]", "tru", "[1,]", "{1}", R"("\x")", R"("\ud800")", "\"\x01\"", "\"open",
                          R"({"b":[[{"c" 1}]]})", "01", "-", "[[1]"}) {
    EXPECT_EQ(kept(R"({"x":)" + std::string(bad) + R"(,"a":1})", {"a"}), "(rejected)") << bad;
    EXPECT_EQ(kept(R"({"a":1,"x":)" + std::string(bad) + "}", {"a"}), "(rejected)") << bad;
    EXPECT_EQ(kept(bad, {"a"}), "(rejected)") << bad;
  }
  // RapidJSON's reader accepts this number as infinity.
  EXPECT_EQ(kept(R"({"x":1.8e308,"a":1})", {"a"}), "(rejected)");
  EXPECT_EQ(kept(R"({"a":1} 2)", {"a"}), "(rejected)");
  EXPECT_EQ(kept(R"({"x":"a \u0041 \ud83d\ude00 \" \\ end","\u0061":1})", {"a"}), R"({"a":1})");
}

TEST_F(ProjectionTest, SkipsWhatAWholeLoadAcceptsAcrossTheEndOfTheBuffer) {
  Projection whole;
  whole.addWhole(Projection::kRoot);
  const std::string digits(310, '9');
  const std::vector<std::string> texts = {"[0,-0,10,1.5,-0.25,1e5,-1E-5,1.5e+3]",
                                          "[01]",
                                          "[-]",
                                          "[-a]",
                                          "[1.]",
                                          "[.5]",
                                          "[1.5.5]",
                                          "[1e]",
                                          "[1.e5]",
                                          "[1x]",
                                          "[" + digits + "]",
                                          "[0." + digits + "]",
                                          "[1.7976931348623157e308]",
                                          "[1.8e308]",
                                          R"(["a\"b\\","\u0041","c"])",
                                          R"(["\x"])",
                                          R"(["\ud800"])",
                                          "[\"a",
                                          "[\"\n\"]",
                                          "[12"};
  for (const std::string& text : texts) {
    for (std::size_t inside = 0; inside <= text.size(); ++inside) {
      const std::string content = std::string(8192 - inside, ' ') + text;
      EXPECT_EQ(kept(content, {"a"}) == "(rejected)", kept(content, whole) == "(rejected)") << text << inside;
    }
  }
}

TEST(Projection, FailsSilentlyForAMissingFile) {
  Document document;
  const Printed printed = capture([&] { EXPECT_FALSE(loadProjected("/none", {}, document, false)); });
  EXPECT_EQ(printed.errors, "");
  EXPECT_TRUE(document.IsNull());
}

TEST(Projection, SupportsAPathOf200000Steps) {
  std::string keyPath = "a";
  for (int i = 0; i < 200'000; ++i) {
    keyPath += ".a";
  }
  Projection projection;
  ReadAction(keyPath).addTo(projection, Projection::kRoot);
  EXPECT_EQ(projection.size(), 200'002U);
}

}  // namespace
}  // namespace kovalt::test
