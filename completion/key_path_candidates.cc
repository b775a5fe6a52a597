#include "completion/key_path_candidates.h"

#include <algorithm>
#include <unordered_set>

#include "completion/candidate_list.h"
#include "completion/starts_with.h"
#include "json/find_member.h"
#include "json/find_object_by_ref.h"
#include "json/key_path.h"
#include "json/tuning/first_match_index.h"
#include "json/value_to_text.h"

namespace kovalt {
namespace {

using Values = std::vector<const Value*>;

/// What is offered of the objects of an array.
enum class Selections { whole, keys };

bool canStandInStep(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return c == '.' || byte < 0x20 || byte == 0x7F;
  });
}

bool isMemberStep(std::string_view name, KeyPathUse use) {
  const bool readAsSelection = use.selects && name.find('=') != std::string_view::npos;
  return !name.empty() && !readAsSelection && canStandInStep(name);
}

bool isRefKey(std::string_view name) { return name.find('=') == std::string_view::npos && canStandInStep(name); }

/// Whether `key` can be the key of a selection step that begins with `typed`.
bool keyFits(std::string_view key, std::string_view typed) {
  const std::size_t equals = typed.find('=');
  return equals == std::string_view::npos ? startsWith(key, typed) : key == typed.substr(0, equals);
}

/// Whether `isWanted` is true for the name and the value of any member, asked in order. Of members with the same name
/// only the first counts.
template <typename IsWanted>
bool anyMember(const Value& object, IsWanted isWanted) {
  const auto nameAt = [&object](std::size_t i) {
    const Value& name = object.MemberBegin()[static_cast<std::ptrdiff_t>(i)].name;
    return std::string_view(name.GetString(), name.GetStringLength());
  };
  FirstMatchIndex firstOf;
  for (std::size_t i = 0; i < object.MemberCount(); ++i) {
    if (firstOf.find(nameAt(i), i, nameAt) == i &&
        isWanted(nameAt(i), object.MemberBegin()[static_cast<std::ptrdiff_t>(i)].value)) {
      return true;
    }
  }
  return false;
}

/// Whether `isWanted` is true for any text that selects by `value`.
template <typename IsWanted>
bool anyRefValue(const Value& value, IsWanted isWanted) {
  if (value.IsBool()) {
    return isWanted(value.GetBool() ? "true" : "false");
  }
  if (value.IsNumber()) {
    return isWanted(valueToText(value, false));
  }
  if (value.IsString()) {
    // A selection compares a string up to its first NUL byte.
    return isWanted(std::string_view(value.GetString()));
  }
  return value.IsArray() && std::any_of(value.Begin(), value.End(), [&](const Value& item) {
           return (item.IsNumber() || item.IsString()) && anyRefValue(item, isWanted);
         });
}

/// Whether `isWanted` is true for the key and the value of any selection that finds an object of `array`, by one of the
/// keys that `isKeyWanted` is true for.
template <typename IsKeyWanted, typename IsWanted>
bool anySelection(const Value& array, IsKeyWanted isKeyWanted, IsWanted isWanted) {
  // A selection stops at an element that is no object, and at a null or an object under its key.
  std::unordered_set<std::string_view> endedKeys;
  for (const Value& element : array.GetArray()) {
    if (!element.IsObject()) {
      return false;
    }
    const bool found = anyMember(element, [&](std::string_view key, const Value& value) {
      if (!isKeyWanted(key) || !isRefKey(key)) {
        return false;
      }
      if (value.IsNull() || value.IsObject()) {
        endedKeys.insert(key);
        return false;
      }
      return endedKeys.count(key) == 0 && anyRefValue(value, [&](std::string_view refValue) {
               return canStandInStep(refValue) && isWanted(key, refValue);
             });
    });
    if (found) {
      return true;
    }
  }
  return false;
}

bool canGoOn(const Value& value, KeyPathUse use) {
  if (value.IsObject()) {
    return anyMember(value, [use](std::string_view name, const Value&) { return isMemberStep(name, use); });
  }
  const auto isAny = [](auto...) { return true; };
  return use.selects && value.IsArray() && anySelection(value, isAny, isAny);
}

/// Collects the steps that go on from values of a document and begin with what is typed.
class StepCollector {
 public:
  StepCollector(std::string_view way, std::string_view typed, KeyPathUse use) : way_(way), typed_(typed), use_(use) {}

  void addFrom(const Value& value, Selections selections) {
    if (value.IsObject()) {
      addMembers(value);
    } else if (value.IsArray() && use_.selects) {
      selections == Selections::whole ? addSelections(value) : addSelectionKeys(value);
    }
  }

  /// Whether there are so many candidates that the key of a selection is better chosen first.
  [[nodiscard]] bool isBetterWithKeys() const {
    return candidates_.isCut() && typed_.find('=') == std::string_view::npos;
  }

  [[nodiscard]] std::vector<std::string> candidates() const { return candidates_.words(); }

 private:
  void addMembers(const Value& object) {
    anyMember(object, [this](std::string_view name, const Value& value) {
      if (startsWith(name, typed_) && isMemberStep(name, use_)) {
        const bool goesOn = canGoOn(value, use_);
        if (!goesOn || (use_.namesArray && value.IsArray())) {
          add(name, "");
        }
        if (goesOn) {
          add(name, ".");
        }
      }
      return false;
    });
  }

  void addSelections(const Value& array) {
    anySelection(
        array, [this](std::string_view key) { return keyFits(key, typed_); },
        [this](std::string_view key, std::string_view refValue) {
          const std::string step = std::string(key) + '=' + std::string(refValue);
          if (startsWith(step, typed_)) {
            add(step, ".");
          }
          return isBetterWithKeys();
        });
  }

  void addSelectionKeys(const Value& array) {
    anySelection(
        array, [this](std::string_view key) { return keyFits(key, typed_) && keys_.count(key) == 0; },
        [this](std::string_view key, std::string_view) {
          keys_.insert(key);
          add(key, "=");
          return false;
        });
  }

  void add(std::string_view step, std::string_view end) { candidates_.add(std::string(way_).append(step).append(end)); }

  std::string_view way_;
  std::string_view typed_;
  KeyPathUse use_;
  CandidateList candidates_;
  std::unordered_set<std::string_view> keys_;
};

Values follow(const Values& values, std::string_view step, KeyPathUse use) {
  const std::size_t equals = use.selects ? step.find('=') : std::string_view::npos;
  Values reached;
  for (const Value* value : values) {
    const Value* next = equals == std::string_view::npos
                            ? findMember(*value, step)
                            : findObjectByRef(value, step.substr(0, equals), step.substr(equals + 1));
    if (next != nullptr) {
      reached.push_back(next);
    }
  }
  return reached;
}

}  // namespace

std::vector<std::string> keyPathCandidates(const Values& roots, std::string_view word, KeyPathUse use) {
  const std::string_view way = word.substr(0, word.rfind(KeyPath::kStepSeparator) + 1);
  const std::string_view typed = word.substr(way.size());
  const KeyPath path(word, KeyPath::kStepSeparator);
  Values values = roots;
  for (std::size_t i = 0; i + 1 < path.steps().size(); ++i) {
    values = follow(values, path.steps()[i], use);
  }

  StepCollector steps(way, typed, use);
  for (const Value* value : values) {
    steps.addFrom(*value, Selections::whole);
  }
  if (!steps.isBetterWithKeys()) {
    return steps.candidates();
  }
  StepCollector keySteps(way, typed, use);
  for (const Value* value : values) {
    keySteps.addFrom(*value, Selections::keys);
  }
  return keySteps.candidates();
}

Values arrayElements(const Value& root, std::string_view keyPath) {
  const KeyPath path(keyPath, KeyPath::kStepSeparator);
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
