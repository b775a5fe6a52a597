// Array reads and concatenations print the same as slow, obvious versions of them. An input has a line with a key path,
// one with fields, one with separators, one with two numbers for `lengthen`, and a document. The text operations are
// also tried on the text of the document itself.

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "actions/read/read_array_actions.h"
#include "actions/read/read_object_array_concat_action.h"
#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"
#include "json/path/resolve_key_path.h"
#include "json/write/write_value.h"

namespace kovalt::fuzz {
namespace {

enum class Commas { stay, becomeSpaces };
enum class Quotes { stay, areRemoved };

std::string slowReplace(const std::string& text, char wanted, const std::string& replacement) {
  std::string replaced;
  for (const char byte : text) {
    replaced += byte == wanted ? replacement : std::string(1, byte);
  }
  return replaced;
}

std::string slowCommasToSpaces(const std::string& text) {
  if (text.find('"') == std::string::npos) {
    return slowReplace(text, ',', " ");
  }
  std::string spaced = text;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    const auto quotes = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(i), '"');
    if (text[i] == ',' && quotes % 2 == 0) {
      spaced[i] = ' ';
    }
  }
  return spaced;
}

std::string slowFlatText(std::string text, Commas commas, Quotes quotes) {
  if (text.empty() || text[0] != '[' || text[text.size() - 1] != ']') {
    return text;
  }
  text = text.size() < 2 ? "" : text.substr(1, text.size() - 2);
  if (commas == Commas::becomeSpaces) {
    text = slowCommasToSpaces(text);
  }
  return quotes == Quotes::areRemoved ? slowReplace(text, '"', "") : text;
}

/// Returns what --read prints for the path.
std::string slowRead(const std::string& path, const Value& root) {
  Lookups lookups;
  const Value* target = resolveForRead(KeyPath(path, "."), root, lookups);
  const std::string text = target == nullptr ? "" : valueToText(*target, false);
  return target != nullptr && target->IsString() ? text.substr(1, text.size() - 2) : text;
}

std::string slowConcatenation(const Value& array, const std::vector<std::string>& fields,
                              const std::string& separators) {
  std::map<std::vector<unsigned char>, int> counts;
  for (const Value& element : array.GetArray()) {
    std::string record;
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (i > 0 && !separators.empty()) {
        record += i - 1 < separators.size() ? separators[i - 1] : separators[separators.size() - 1];
      }
      record += slowRead(fields[i], element);
    }
    ++counts[{record.begin(), record.end()}];
  }
  std::string joined;
  for (const auto& [record, count] : counts) {
    joined += std::string(&record == &counts.begin()->first ? "" : " ") + std::string(record.begin(), record.end()) +
              (count > 1 ? "(" + std::to_string(count) + ")" : "");
  }
  return joined;
}

void tryTextOperations(const std::string& text) {
  std::string spaced = text;
  if (!spaced.empty()) {
    commasToSpaces(spaced);
  }
  expect(spaced == slowCommasToSpaces(text), "commas become spaces as in the slow version");
  std::string unquoted = text;
  removeQuotes(unquoted);
  expect(unquoted == slowReplace(text, '"', ""), "quotes are removed as in the slow version");
}

void tryArrayRead(const ReadAction& action, const Value& root, Commas commas, Quotes quotes) {
  std::string text;
  Lookups lookups;
  const bool found = action.execute(root, text, lookups);
  expect(found == (resolveForRead(action, root, lookups) != nullptr), "an array read finds what a walk finds");
  expect(text == slowFlatText(slowRead(action.text(), root), commas, quotes),
         "an array read prints the same as the slow version");
}

void tryConcatenation(const std::string& path, const std::vector<std::string>& fields, const std::string& separators,
                      const Value& root) {
  std::string text;
  Lookups lookups;
  const bool found = ReadObjectArrayConcatAction(path, fields, separators).execute(root, text, lookups);
  const Value* target = resolveForRead(KeyPath(path, "."), root, lookups);
  expect(found == (target != nullptr && target->IsArray()), "a concatenation succeeds for arrays only");
  expect(text == (found ? slowConcatenation(*target, fields, separators) : ""),
         "a concatenation prints the same as the slow version");
}

/// Appends `count` objects to an array, so that records repeat and there are more of them than in most inputs. Their
/// members "n" count from 0 to `modulus` again and again.
void lengthen(Value* value, std::size_t count, std::size_t modulus, Allocator& allocator) {
  if (value == nullptr || !value->IsArray()) {
    return;
  }
  for (std::size_t i = 0; i < count; ++i) {
    Value element(rapidjson::kObjectType);
    element.AddMember("n", Value(static_cast<std::uint64_t>(i % (modulus + 1))), allocator);
    value->PushBack(element, allocator);
  }
}

void tryInput(std::string input) {
  const std::string path = takeUpTo("\n", input);
  std::string fieldList = takeUpTo("\n", input);
  const std::string separators = takeUpTo("\n", input);
  std::string numbers = takeUpTo("\n", input);
  const std::size_t count = numberIn(takeUpTo(" ", numbers), 200);
  const std::size_t modulus = numberIn(numbers, 200);
  tryTextOperations(input);
  Document document;
  if (!loadText(input, document)) {
    return;
  }
  tryArrayRead(ReadArrayCommaAction(path), document, Commas::stay, Quotes::stay);
  tryArrayRead(ReadArrayCommaNoQuoteAction(path), document, Commas::stay, Quotes::areRemoved);
  tryArrayRead(ReadArraySpaceAction(path), document, Commas::becomeSpaces, Quotes::stay);
  tryArrayRead(ReadArraySpaceNoQuoteAction(path), document, Commas::becomeSpaces, Quotes::areRemoved);
  Lookups lookups;
  lengthen(resolveExisting(KeyPath(path, "."), document, lookups), count, modulus, document.GetAllocator());
  std::vector<std::string> fields;
  while (!fieldList.empty()) {
    fields.push_back(takeUpTo(" ", fieldList));
  }
  tryConcatenation(path, fields, separators, document);
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
