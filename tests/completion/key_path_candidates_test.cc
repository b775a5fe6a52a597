#include "completion/key_path_candidates.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "completion/candidate_list.h"
#include "json/member_finder.h"
#include "json/path/resolve_key_path.h"
#include "support/json_text.h"
#include "support/row.h"

namespace kovalt::test {
namespace {

constexpr KeyPathUse kRead = {};
constexpr KeyPathUse kRemoval = {false, false};
constexpr KeyPathUse kConcatenation = {true, true};

struct CandidateRow {
  std::string name;
  std::string json;
  std::string word;
  std::vector<std::string> expected;
  KeyPathUse use = kRead;
};

std::ostream& operator<<(std::ostream& out, const CandidateRow& row) { return out << row.name; }

std::vector<CandidateRow> memberRows() {
  const std::string json = R"({"network":{"host":"h","port":1,"tls":{"on":true}},"name":"x","none":null,"":{"a":1}})";
  return {
      {"all_members_of_the_root", json, "", {"network.", "name", "none"}},
      {"members_with_the_typed_start", json, "n", {"network.", "name", "none"}},
      {"one_member", json, "netw", {"network."}},
      {"a_whole_scalar", json, "name", {"name"}},
      {"an_object_without_its_dot", json, "network", {"network."}},
      {"members_of_an_object", json, "network.", {"network.host", "network.port", "network.tls."}},
      {"members_of_a_nested_object", json, "network.tls.o", {"network.tls.on"}},
      {"no_member_with_the_typed_start", json, "x", {}},
      {"other_case", json, "Netw", {}},
      {"nothing_in_a_scalar", json, "name.", {}},
      {"nothing_in_a_missing_member", json, "missing.", {}},
      {"members_of_the_empty_name", json, ".", {".a"}},
      {"empty_object_has_no_steps", R"({"a":{}})", "", {"a"}},
      {"first_of_two_members", R"({"a":1,"b":2,"a":{"x":1}})", "", {"a", "b"}},
      {"dot_in_a_name", R"({"a.b":1,"ab":2})", "a", {"ab"}},
      {"equals_sign_in_a_name", R"({"a=b":1,"ab":2})", "a", {"ab"}},
      {"object_of_names_with_dots", R"({"a":{"b.c":1}})", "", {"a"}},
      {"control_characters_in_a_name", R"({"a\nb":1,"a\tb":2,"a\u0000b":3,"a\u007fb":4,"ab":5})", "a", {"ab"}},
      {"control_characters_beyond_ASCII", R"({"a\u0080":1,"a\u009f":2,"a\u00a0":3})", "a", {"a\xC2\xA0"}},
      {"names_that_are_not_UTF_8", "{\"a\xFF\":1,\"a\xC3\":2,\"ab\":3}", "a", {"ab"}},
      {"object_of_names_that_cannot_be_shown", R"({"a":{"b\u009b":1}})", "", {"a"}},
      {"spaces_quotes_and_signs",
       R"({"a b":1,"a'b":2,"a\"b":3,"a$b":4,"a\\b":5})",
       "a",
       {"a b", "a'b", "a\"b", "a$b", "a\\b"}},
      {"wide_characters", R"({"größe":{"日本":1}})", "gr\xC3", {"größe."}},
      {"wide_members", R"({"größe":{"日本":1}})", "größe.日", {"größe.日本"}},
      {"root_that_is_a_scalar", "1", "", {}},
  };
}

std::vector<CandidateRow> selectionRows() {
  const std::string pools =
      R"({"pools":[{"name":"alpha","size":3,"on":true,"tags":["red",7]},{"name":"beta","size":3,"on":false}]})";
  return {
      {"array_of_objects", pools, "po", {"pools."}},
      {"array_for_an_option_that_needs_one", pools, "po", {"pools", "pools."}, kConcatenation},
      {"steps_of_an_array",
       pools,
       "pools.",
       {"pools.name=alpha.", "pools.size=3.", "pools.on=true.", "pools.tags=red.", "pools.tags=7.", "pools.name=beta.",
        "pools.on=false."}},
      {"steps_of_a_key", pools, "pools.na", {"pools.name=alpha.", "pools.name=beta."}},
      {"values_of_a_key", pools, "pools.name=", {"pools.name=alpha.", "pools.name=beta."}},
      {"typed_start_of_a_value", pools, "pools.name=b", {"pools.name=beta."}},
      {"incomplete_key_before_the_equals_sign", pools, "pools.nam=", {}},
      {"members_of_the_selected",
       pools,
       "pools.name=beta.",
       {"pools.name=beta.name", "pools.name=beta.size", "pools.name=beta.on"}},
      {"nothing_in_an_unknown_object", pools, "pools.name=gamma.", {}},
      {"root_that_is_an_array", R"([{"id":1},{"id":-2}])", "", {"id=1.", "id=-2."}},
      {"array_of_strings_has_no_steps", R"({"a":["x"]})", "", {"a"}},
      {"empty_array_has_no_steps", R"({"a":[]})", "", {"a"}},
      {"numbers_as_they_are_written", R"([{"v":1e30},{"v":2.5},{"v":3.0},{"v":-0}])", "", {"v=1e30.", "v=0."}},
      {"dot_in_a_value", R"([{"v":"a.b"},{"v":"ab"}])", "", {"v=ab."}},
      {"equals_sign_in_a_value", R"([{"v":"a=b"}])", "v=a=", {"v=a=b."}},
      {"equals_sign_in_a_key", R"([{"k=":"a","v":"b"}])", "", {"v=b."}},
      {"empty_key_and_value", R"([{"":"x","v":""}])", "", {"=x.", "v=."}},
      {"value_up_to_its_nul", R"([{"v":"a\u0000b"}])", "", {"v=a."}},
      {"line_feed_in_a_value", R"([{"v":"a\nb"}])", "", {}},
      {"control_characters_in_a_value", R"([{"v":"\u007e"},{"v":"\u007f"},{"v":"\u009b"}])", "", {"v=~."}},
      {"control_character_in_a_key", R"([{"v\u009b":"a","w":"b"}])", "", {"w=b."}},
      {"value_that_is_not_UTF_8", "[{\"v\":\"\xE6\x97\"},{\"v\":\"\xE6\x97\xA5\"}]", "", {"v=\xE6\x97\xA5."}},
      {"after_an_element_that_is_not_an_object", R"([{"v":1},2,{"v":3}])", "", {"v=1."}},
      {"after_a_null", R"([{"v":null,"w":1},{"v":2,"w":2}])", "", {"w=1.", "w=2."}},
      {"after_an_object", R"([{"v":{},"w":1},{"v":2}])", "", {"w=1."}},
      {"items_that_select_nothing", R"([{"v":[true,null,["a"],{"b":1},"c"]}])", "", {"v=c."}},
      {"first_of_two_members_selects", R"([{"v":1,"v":2}])", "", {"v=1."}},
      {"array_in_an_array", R"({"a":[[{"v":1}]]})", "", {"a"}},
  };
}

std::vector<CandidateRow> removalRows() {
  return {
      {"of_an_array", R"({"a":[{"v":1}]})", "", {"a"}, kRemoval},
      {"does_not_select", R"({"a":[{"v":1}]})", "a.", {}, kRemoval},
      {"of_a_name_with_equals_sign", R"({"a=b":{"c=d":1}})", "a", {"a=b."}, kRemoval},
      {"below_a_name_with_equals_sign", R"({"a=b":{"c=d":1}})", "a=b.", {"a=b.c=d"}, kRemoval},
  };
}

class KeyPathCandidates : public testing::TestWithParam<CandidateRow> {};

/// A separate fixture: AreFoundByTheWalk uses the walk of reads, which removals do not use.
class RemovalCandidates : public testing::TestWithParam<CandidateRow> {};

void checkCandidates(const CandidateRow& row) {
  const Document document = parsed(row.json);
  EXPECT_EQ(keyPathCandidates({&document}, row.word, row.use).words(), row.expected);
}

TEST_P(KeyPathCandidates, AreTheNextSteps) { checkCandidates(GetParam()); }

TEST_P(RemovalCandidates, AreTheNextSteps) { checkCandidates(GetParam()); }

TEST_P(KeyPathCandidates, AreFoundByTheWalk) {
  const Document document = parsed(GetParam().json);
  for (std::string candidate : keyPathCandidates({&document}, GetParam().word, kRead).words()) {
    if (candidate.back() == '.') {
      candidate.pop_back();
    }
    Lookups lookups;
    EXPECT_NE(resolveForRead(KeyPath(candidate), document, lookups), nullptr) << candidate;
  }
}

INSTANTIATE_TEST_SUITE_P(Members, KeyPathCandidates, testing::ValuesIn(memberRows()), rowName<CandidateRow>);
INSTANTIATE_TEST_SUITE_P(Selections, KeyPathCandidates, testing::ValuesIn(selectionRows()), rowName<CandidateRow>);
INSTANTIATE_TEST_SUITE_P(Removals, RemovalCandidates, testing::ValuesIn(removalRows()), rowName<CandidateRow>);

/// Returns an array of more objects than a list of candidates can show.
Document longArray() {
  std::string json = "[";
  for (std::size_t i = 0; i <= CandidateList::kLongest; ++i) {
    json += R"({"id":)" + std::to_string(i) + R"(,"name":"n)" + std::to_string(i) + R"("},)";
  }
  json.back() = ']';
  return parsed(json);
}

TEST(LongArray, OffersKeysFirst) {
  const Document document = longArray();
  EXPECT_EQ(keyPathCandidates({&document}, "", kRead).words(), (std::vector<std::string>{"id=", "name="}));
  EXPECT_EQ(keyPathCandidates({&document}, "n", kRead).words(), std::vector<std::string>{"name="});
}

TEST(LongArray, OffersValuesOfAKey) {
  const Document document = longArray();
  EXPECT_EQ(keyPathCandidates({&document}, "id=", kRead).words().size(), CandidateList::kLongest + 1);
  EXPECT_EQ(keyPathCandidates({&document}, "name=n50", kRead).words(),
            (std::vector<std::string>{"name=n50.", "name=n500."}));
}

TEST(LongArray, ReportsThatAListIsCut) {
  const Document document = longArray();
  EXPECT_TRUE(keyPathCandidates({&document}, "id=", kRead).isCut());
  EXPECT_FALSE(keyPathCandidates({&document}, "", kRead).isCut());
  EXPECT_FALSE(keyPathCandidates({&document}, "name=n50", kRead).isCut());
}

TEST(ArrayElements, AreThoseOfTheArray) {
  const Document document = parsed(R"({"a":{"b":[1,{"c":2}]},"d":3})");
  EXPECT_EQ(arrayElements(document, "a.b").size(), 2U);
  EXPECT_TRUE(arrayElements(document, "a").empty());
  EXPECT_TRUE(arrayElements(document, "d").empty());
  EXPECT_TRUE(arrayElements(document, "x").empty());
}

TEST(ArrayElements, OfferTheFieldsOfAnyOfThem) {
  const Document document = parsed(R"([{"id":1,"at":{"host":"h"}},{"id":2,"port":3},{"at":{"zone":"z"}}])");
  const std::vector<const Value*> elements = arrayElements(document, "");
  EXPECT_EQ(keyPathCandidates(elements, "", kRead).words(), (std::vector<std::string>{"id", "at.", "port"}));
  EXPECT_EQ(keyPathCandidates(elements, "at.", kRead).words(), (std::vector<std::string>{"at.host", "at.zone"}));
}

}  // namespace
}  // namespace kovalt::test
