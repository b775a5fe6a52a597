#include "completion/key_path_candidates.h"

#include <optional>
#include <set>
#include <string>
#include <utility>

#include "completion/reachable_steps.h"
#include "completion/starts_with.h"
#include "json/document.h"
#include "json/member_finder.h"
#include "json/path/find_object_by_ref.h"
#include "json/path/key_path.h"

namespace kovalt {
namespace {

using Values = std::vector<const Value*>;

/// Whether the objects of an array are offered as whole selections, or only as the keys to select by.
enum class Selections { whole, keys };

/// Collects the steps that continue from values of a document and begin with the typed text.
class StepCollector {
 public:
  /// `prefix` is the key path before the typed text, and begins every candidate.
  StepCollector(std::string_view prefix, std::string_view typed, KeyPathUse use)
      : prefix_(prefix), typed_(typed), use_(use) {}

  void addFrom(const Value& value, Selections selections) {
    if (value.IsObject()) {
      addMembers(value);
    } else if (value.IsArray() && use_.selects) {
      selections == Selections::whole ? addSelections(value) : addSelectionKeys(value);
    }
  }

  /// Whether the list is cut and no key is chosen yet, so that arrays should offer the keys of their selections first.
  /// If members have cut it, collecting again does not change them.
  [[nodiscard]] bool hasTooManySelections() const {
    return candidates_.isCut() && typed_.find('=') == std::string_view::npos;
  }

  [[nodiscard]] CandidateList candidates() && { return std::move(candidates_); }

 private:
  void addMembers(const Value& object) {
    for (const Value::Member* member : reachableMembers(object, use_)) {
      const std::string_view name = textOf(member->name);
      if (!startsWith(name, typed_)) {
        continue;
      }
      const bool hasNext = hasNextStep(member->value, use_);
      if (!hasNext || (use_.namesArray && member->value.IsArray())) {
        add(name, "");
      }
      if (hasNext) {
        add(name, ".");
      }
    }
  }

  void addSelections(const Value& array) {
    SelectionReader reader(array, typed_);
    while (const auto selections = reader.nextObject()) {
      for (const Selection& selection : *selections) {
        const std::string step = std::string(selection.refKey) + '=' + selection.refValue;
        if (startsWith(step, typed_)) {
          add(step, ".");
        }
      }
      if (hasTooManySelections()) {
        return;
      }
    }
  }

  void addSelectionKeys(const Value& array) {
    SelectionReader reader(array, typed_);
    while (const auto selections = reader.nextObject()) {
      for (const Selection& selection : *selections) {
        if (keys_.insert(selection.refKey).second) {
          add(selection.refKey, "=");
        }
      }
    }
  }

  void add(std::string_view step, std::string_view end) {
    candidates_.add(std::string(prefix_).append(step).append(end));
  }

  std::string_view prefix_;
  std::string_view typed_;
  KeyPathUse use_;
  CandidateList candidates_;
  std::set<std::string_view> keys_;
};

Values follow(const Values& values, std::string_view step, KeyPathUse use) {
  const std::optional<SelectionStep> selection = use.selects ? asSelectionStep(step) : std::nullopt;
  Values reached;
  for (const Value* value : values) {
    const Value* next =
        selection ? findObjectByRef(value, selection->refKey, selection->refValue) : findMember(*value, step);
    if (next != nullptr) {
      reached.push_back(next);
    }
  }
  return reached;
}

}  // namespace

CandidateList keyPathCandidates(const Values& roots, std::string_view word, KeyPathUse use) {
  const std::string_view prefix = word.substr(0, word.rfind(KeyPath::kStepSeparator) + 1);
  const std::string_view typed = word.substr(prefix.size());
  const KeyPath path(word);
  Values values = roots;
  for (std::size_t i = 0; i + 1 < path.steps().size(); ++i) {
    values = follow(values, path.steps()[i], use);
  }

  StepCollector steps(prefix, typed, use);
  for (const Value* value : values) {
    steps.addFrom(*value, Selections::whole);
  }
  if (!steps.hasTooManySelections()) {
    return std::move(steps).candidates();
  }
  StepCollector keySteps(prefix, typed, use);
  for (const Value* value : values) {
    keySteps.addFrom(*value, Selections::keys);
  }
  return std::move(keySteps).candidates();
}

Values arrayElements(const Value& root, std::string_view keyPath) {
  const KeyPath path(keyPath);
  Values values = {&root};
  for (const std::string& step : path.steps()) {
    values = follow(values, step, {});
  }
  Values elements;
  for (const Value* value : values) {
    if (value->IsArray()) {
      for (const Value& element : value->GetArray()) {
        elements.push_back(&element);
      }
    }
  }
  return elements;
}

}  // namespace kovalt
