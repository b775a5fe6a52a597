// A merge and a removal have the same result as on plain lists. An input has a line with three numbers for `widen`, two
// documents, and two lines with the key path of a removal each.

#include <functional>
#include <optional>
#include <string>

#include "actions/edit/merge_value.h"
#include "actions/edit/remove_action.h"
#include "fuzz/early_exits.h"
#include "fuzz/input.h"
#include "fuzz/plain_value.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"

namespace kovalt::fuzz {
namespace {

/// Returns how `work` exited, or nothing if it returned.
std::optional<Exit> exitOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const EarlyExit& early) {
    return early.kind;
  }
  return std::nullopt;
}

/// Appends `count` members to an object, with the names 0, `stride`, twice the stride and so on, modulo `count`. A
/// fuzzer rarely writes objects so large that the lookup of names changes its method.
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
  const std::optional<Exit> expectedExit = mergePlain(expected, plainValue(source)).earlyExit;
  EditedDocument edited(target);
  const std::optional<Exit> earlyExit = exitOf([&] { mergeValue(target, source, edited); });
  expect(earlyExit == expectedExit, "a merge exits early like the plain merge");
  expect(earlyExit || plainValue(target) == expected, "a merge has the same result as the plain merge");
}

/// Returns false if the removal exited early.
bool tryRemoval(Document& document, const std::string& keyPath, EmptyParents emptyParents) {
  const RemoveAction action(keyPath, emptyParents);
  PlainValue expected = plainValue(document);
  const PlainRemoval removal = removePlain(expected, action.steps(), emptyParents == EmptyParents::clear);
  bool succeeded = false;
  EditedDocument edited(document);
  const std::optional<Exit> earlyExit = exitOf([&] { succeeded = action.execute(edited); });
  expect(earlyExit == removal.earlyExit, "a removal exits early like the plain removal");
  expect(earlyExit || succeeded == removal.succeeded, "a removal succeeds like the plain removal");
  expect(earlyExit || plainValue(document) == expected, "a removal has the same result as the plain removal");
  return !earlyExit;
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
