// A merge and a removal leave what the same done on plain lists leaves. An input is a line of numbers, two documents
// and two lines with key paths of a removal each; see the saved inputs.

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include "actions/edit/merge_value.h"
#include "actions/edit/remove_action.h"
#include "fuzz/ends.h"
#include "fuzz/input.h"
#include "fuzz/plain_value.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"

namespace kovalt::fuzz {
namespace {

/// How `work` ended, if it did not return.
std::optional<End> endOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const EarlyEnd& early) {
    return early.end;
  }
  return std::nullopt;
}

/// Appends `count` members to an object, with the names 0, `stride`, twice the stride and so on, modulo `count`: the
/// sizes at which the look-up of names changes its method are out of reach of what a fuzzer writes.
void widen(Value& value, std::size_t count, std::size_t stride, Allocator& allocator) {
  if (!value.IsObject()) {
    return;
  }
  for (std::size_t i = 0; i < count; ++i) {
    const std::string name = std::to_string(i * stride % count);
    value.AddMember(Value(name.c_str(), allocator), Value(static_cast<std::uint64_t>(i)), allocator);
  }
}

void tryMerge(Document& target, Document& source) {
  PlainValue expected = plainValue(target);
  const std::optional<End> expectedEnd = mergePlain(expected, plainValue(source)).end;
  EditedDocument edited(target);
  const std::optional<End> end = endOf([&] { mergeValue(target, source, edited); });
  expect(end == expectedEnd, "a merge ends the process only where it must");
  expect(end || plainValue(target) == expected, "a merge leaves the members, counts and order of the plain merge");
}

/// Returns whether the process goes on.
bool tryRemoval(Document& document, const std::string& keyPath, EmptyParents emptyParents) {
  const RemoveAction action(keyPath, emptyParents);
  PlainValue expected = plainValue(document);
  const PlainRemoval removal = removePlain(expected, action.steps(), emptyParents == EmptyParents::clear);
  bool succeeded = false;
  EditedDocument edited(document);
  const std::optional<End> end = endOf([&] { succeeded = action.execute(edited); });
  expect(end == removal.end, "a removal ends the process only where it must");
  expect(end || succeeded == removal.succeeded, "a removal succeeds like the plain one");
  expect(end || plainValue(document) == expected, "a removal leaves the members and order of the plain one");
  return !end;
}

void tryRemovals(Document& original, const std::string& kept, const std::string& cleared) {
  Document document(&original.GetAllocator());
  document.CopyFrom(original, original.GetAllocator());
  if (tryRemoval(document, kept, EmptyParents::keep)) {
    tryRemoval(document, cleared, EmptyParents::clear);
  }
}

void tryInput(std::string input) {
  std::string numbers = takeUpTo("\n", input);
  const std::size_t targetCount = numberIn(takeUpTo(" ", numbers), 200);
  const std::size_t sourceCount = numberIn(takeUpTo(" ", numbers), 200);
  const std::size_t stride = numberIn(numbers, 200);
  const std::string targetText = takeUpTo(kSectionEnd, input);
  const std::string sourceText = takeUpTo(kSectionEnd, input);
  Document target;
  Document source(&target.GetAllocator());
  if (!loadText(targetText, target) || !loadText(sourceText, source)) {
    return;
  }
  widen(target, targetCount, stride, target.GetAllocator());
  widen(source, sourceCount, stride + 1, target.GetAllocator());
  const std::string kept = takeUpTo("\n", input);
  tryRemovals(target, kept, takeUpTo("\n", input));
  tryMerge(target, source);
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
