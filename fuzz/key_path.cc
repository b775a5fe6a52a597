// The text of a key path is its argument, both walks reach the same value as a plain walk, and a chain of objects that
// is built for a path can be read along it. An input has a line with a key path, one with another separator, and a
// document.

#include "json/path/key_path.h"

#include <string>

#include "fuzz/input.h"
#include "fuzz/plain_call.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"
#include "json/path/resolve_key_path.h"
#include "json/path/wrap_in_path.h"
#include "json/write/write_value.h"
#include "support/capture.h"

namespace kovalt::fuzz {
namespace {

std::string join(const std::vector<std::string>& steps, const std::string& separator) {
  std::string joined;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    joined += (i > 0 ? separator : "") + steps[i];
  }
  return joined;
}

void trySeparator(const std::string& text, const std::string& separator) {
  const KeyPath path(text, separator);
  expect(join(path.steps(), separator) == text, "the joined steps are the path");
  expect(path.steps().empty() == text.empty(), "only an empty path has no steps");
  for (const std::string& step : path.steps()) {
    expect(step.find(separator) == std::string::npos, "no step contains a separator");
  }
}

/// Changes the value that the walks reach, so that the documents differ if the plain walk reached another one.
void tryWalks(const KeyPath& path, Document& document) {
  PlainValue plain = plainValue(document);
  std::string errors;
  std::string readErrors;
  PlainValue* expected = walkPlain(plain, path.text(), false, errors);
  walkPlain(plain, path.text(), true, readErrors);
  Lookups lookups;
  const Value* read = nullptr;
  Value* found = nullptr;
  expect(test::capture([&] { read = resolveForRead(path, document, lookups); }).errors == readErrors,
         "a walk for a read reports what the plain walk reports");
  expect(test::capture([&] { found = resolveExisting(path, document, lookups); }).errors == errors,
         "a walk for an edit reports what the plain walk reports");
  expect(found == read && (found == nullptr) == (expected == nullptr), "all walks find a value, or none does");
  if (found != nullptr) {
    found->SetString("here");
    *expected = plainValue(*found);
    expect(plainValue(document) == plain, "a walk reaches the same value as the plain walk");
  }
}

void tryChain(const KeyPath& path) {
  Document document;
  Value chain = wrapInPath(path, Value("leaf"), document.GetAllocator());
  if (path.text().find('=') == std::string::npos) {
    Lookups lookups;
    const Value* leaf = resolveForRead(path, chain, lookups);
    expect(leaf != nullptr && *leaf == Value("leaf"), "a chain can be read along its path");
  }
  const Value* current = &chain;
  for (const std::string& step : path.steps()) {
    expect(current->IsObject() && current->MemberCount() == 1, "each object of a chain has one member");
    expect(textOf(current->MemberBegin()->name) == step, "the members of a chain are named by the steps");
    current = &current->MemberBegin()->value;
  }
  expect(*current == Value("leaf"), "a chain ends at its leaf");
}

void tryInput(std::string input) {
  const std::string text = takeUpTo("\n", input);
  const std::string separator = takeUpTo("\n", input);
  trySeparator(text, ".");
  if (!separator.empty()) {
    trySeparator(text, separator);
  }
  const KeyPath path(text);
  expect(path.text() == text, "the text of a path is the argument");
  tryChain(path);
  Document document;
  if (loadText(input, document)) {
    tryWalks(path, document);
  }
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
