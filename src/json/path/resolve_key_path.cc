#include "json/path/resolve_key_path.h"

#include "json/standard_streams.h"

namespace kovalt {
namespace {

enum class Purpose { edit, read };

/// Projection::addStep in json/load/ mirrors what a step looks at: change both or neither.
const Value* walk(const KeyPath& path, const Value& root, Lookups& lookups, Purpose purpose) {
  const Value* current = &root;
  for (auto step = path.steps().begin(); step != path.steps().end() && current != nullptr; ++step) {
    const std::optional<SelectionStep> selection = asSelectionStep(*step);
    if (!selection) {
      current = lookups.members.find(*current, *step);
      if (current == nullptr && purpose == Purpose::read) {
        reportLine("--read error : Path \"" + path.text() + "\" does not exist");
      }
      continue;
    }
    const Value& array = *current;
    current = lookups.elements.find(&array, selection->refKey, selection->refValue);
    if (current != nullptr && purpose == Purpose::edit) {
      // The caller is about to change the element, or only the member that the next step names or something inside it.
      lookups.elements.willChange(array, *current, step + 1 == path.steps().end() ? nullptr : &step[1]);
    }
  }
  return current;
}

}  // namespace

Value* resolveExisting(const KeyPath& path, Value& root, Lookups& lookups) {
  return const_cast<Value*>(walk(path, root, lookups, Purpose::edit));
}

const Value* resolveForRead(const KeyPath& path, const Value& root, Lookups& lookups) {
  return walk(path, root, lookups, Purpose::read);
}

}  // namespace kovalt
