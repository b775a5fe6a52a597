// A key path gives its text back, both walks come to the place that a walk by plain loops comes to, and a chain built
// for a path is read back along it. An input is a line with a key path, one with another separator, and a document.

#include "json/path/key_path.h"

#include <algorithm>
#include <string>

#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"
#include "json/path/resolve_key_path.h"
#include "json/path/wrap_in_path.h"
#include "json/write/write_value.h"

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
  expect(join(path.steps(), separator) == text, "the steps of a path joined are the path");
  expect(path.steps().empty() == text.empty(), "only an empty path has no steps");
  for (const std::string& step : path.steps()) {
    expect(step.find(separator) == std::string::npos, "no step holds a separator");
  }
}

const Value* slowMember(const Value& value, const std::string& name) {
  if (value.IsObject()) {
    for (const auto& member : value.GetObject()) {
      if (textOf(member.name) == name) {
        return &member.value;
      }
    }
  }
  return nullptr;
}

/// Whether a value is a number or string that `wanted` selects by.
bool slowScalarMatch(const Value& value, const std::string& wanted) {
  return (value.IsNumber() && valueToText(value, false) == wanted) || (value.IsString() && value.GetString() == wanted);
}

bool slowMatch(const Value& value, const std::string& wanted) {
  if (value.IsArray()) {
    return std::any_of(value.Begin(), value.End(), [&](const Value& item) { return slowScalarMatch(item, wanted); });
  }
  return value.IsBool() ? wanted == (value.GetBool() ? "true" : "false") : slowScalarMatch(value, wanted);
}

const Value* slowSelection(const Value& value, const std::string& name, const std::string& wanted) {
  if (!value.IsArray()) {
    return nullptr;
  }
  for (const Value& element : value.GetArray()) {
    if (!element.IsObject()) {
      return nullptr;
    }
    const Value* member = slowMember(element, name);
    if (member == nullptr) {
      continue;
    }
    if (member->IsNull() || member->IsObject()) {
      return nullptr;
    }
    if (slowMatch(*member, wanted)) {
      return &element;
    }
  }
  return nullptr;
}

const Value* slowWalk(const std::vector<std::string>& steps, const Value& root) {
  const Value* current = &root;
  for (const std::string& step : steps) {
    const std::size_t equals = step.find('=');
    current = equals == std::string::npos ? slowMember(*current, step)
                                          : slowSelection(*current, step.substr(0, equals), step.substr(equals + 1));
    if (current == nullptr) {
      return nullptr;
    }
  }
  return current;
}

void tryWalks(const KeyPath& path, Document& document) {
  const Value* expected = slowWalk(path.steps(), document);
  Lookups lookups;
  expect(resolveForRead(path, document, lookups) == expected, "a walk for a read comes to the place of the slow walk");
  expect(resolveExisting(path, document, lookups) == expected,
         "a walk for an edit comes to the place of the slow walk");
}

void tryChain(const KeyPath& path) {
  Document document;
  Value chain = wrapInPath(path, Value("leaf"), document.GetAllocator());
  if (path.text().find('=') == std::string::npos) {
    Lookups lookups;
    const Value* leaf = resolveForRead(path, chain, lookups);
    expect(leaf != nullptr && *leaf == Value("leaf"), "a chain is read back along its path");
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
