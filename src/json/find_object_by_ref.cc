#include "json/find_object_by_ref.h"

#include <cstdlib>
#include <string>

#include "json/find_member.h"
#include "json/ref_value.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

// Up to this size an array is scanned, and so is a greater one for its first questions: its index costs as much.
constexpr SizeType kScannedSize = 32;
constexpr unsigned kScans = 8;

/// What an element holds besides scalars to select it by.
enum class Rest {
  nothing,
  badItems,    ///< Items of a type that never matches, in an array.
  impossible,  ///< Nothing of this type can be selected by.
};

/// Calls `visit` with each boolean, number or string that selects `element` by `refKey`.
template <typename Visit>
Rest visitScalars(const Value& element, std::string_view refKey, Visit visit) {
  if (!element.IsObject()) {
    return Rest::impossible;
  }
  const Value* member = findMember(element, refKey);
  if (member == nullptr) {
    return Rest::nothing;
  }
  if (!canSelect(*member)) {
    return Rest::impossible;
  }
  if (!member->IsArray()) {
    visit(*member);
    return Rest::nothing;
  }
  Rest rest = Rest::nothing;
  for (const Value& item : member->GetArray()) {
    if (itemCanSelect(item)) {
      visit(item);
    } else {
      rest = Rest::badItems;
    }
  }
  return rest;
}

/// The text to select by, with the number that it stands for: the text of a number reads back as just this number, so
/// only a number that equals it has to be written.
class Wanted {
 public:
  explicit Wanted(std::string_view text) : text_(text), number_(std::strtod(std::string(text).c_str(), nullptr)) {}

  [[nodiscard]] bool matches(const Value& scalar) const {
    if (scalar.IsNumber()) {
      return scalar.GetDouble() == number_ && refValueOf(scalar) == text_;
    }
    return text_ == (scalar.IsString() ? scalar.GetString() : scalar.IsTrue() ? "true" : "false");
  }

 private:
  std::string_view text_;
  double number_;  ///< Zero for a text that is no number, which then matches none.
};

/// Whether `element` is one to select, and what else it holds.
std::pair<bool, Rest> compare(const Value& element, std::string_view refKey, const Wanted& wanted) {
  bool matched = false;
  const Rest rest =
      visitScalars(element, refKey, [&](const Value& scalar) { matched = matched || wanted.matches(scalar); });
  return {matched, rest};
}

void reportNotFound(std::string_view refKey, std::string_view refValue, bool explainArgument) {
  std::string message = "Kovalt path not found with refKey=refValue \"";
  message.append(refKey).append("=").append(refValue).append("\"");
  reportLine(message);
  if (explainArgument) {
    reportLine(
        "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
        "refKey must be a bool/number/string/array of numbers/strings.");
  }
}

}  // namespace

const Value* findObjectByRef(const Value* array, std::string_view refKey, std::string_view refValue) {
  // A value that is no array gets no explanation, although the explanation speaks of just that. Kept: scripts know it.
  bool explainArgument = false;
  if (array != nullptr && array->IsArray()) {
    const Wanted wanted(refValue);
    for (const Value& element : array->GetArray()) {
      const auto [matched, rest] = compare(element, refKey, wanted);
      if (matched) {
        return &element;
      }
      explainArgument |= rest != Rest::nothing;
      if (rest == Rest::impossible) {
        break;
      }
    }
  }
  reportNotFound(refKey, refValue, explainArgument);
  return nullptr;
}

const Value* ObjectFinder::find(const Value* array, std::string_view refKey, std::string_view refValue) {
  const bool isLarge = array != nullptr && array->IsArray() && array->Size() > kScannedSize;
  Index* index = isLarge ? indexFor(*array, refKey) : nullptr;
  if (index == nullptr) {
    return findObjectByRef(array, refKey, refValue);
  }
  const Wanted wanted(refValue);
  auto& elements = index->elementsWith[std::string(refValue)];
  while (!elements.empty() && *elements.begin() < index->size) {
    const Value& element = (*array)[*elements.begin()];
    if (compare(element, refKey, wanted).first) {
      return &element;
    }
    elements.erase(elements.begin());
  }
  reportNotFound(refKey, refValue,
                 index->size < array->Size() || (!index->badItems.empty() && *index->badItems.begin() < index->size));
  return nullptr;
}

ObjectFinder::Index* ObjectFinder::indexFor(const Value& array, std::string_view refKey) {
  Index& index = indexes_[{array.Begin(), std::string(refKey)}];
  if (index.scans < kScans) {
    ++index.scans;
    return nullptr;
  }
  const auto takeIn = [&](SizeType position) {
    const Rest rest = visitScalars(
        array[position], refKey, [&](const Value& scalar) { index.elementsWith[refValueOf(scalar)].insert(position); });
    if (rest == Rest::badItems) {
      index.badItems.insert(position);
    } else {
      index.badItems.erase(position);
    }
    return rest != Rest::impossible;
  };
  for (const SizeType position : index.changed) {
    if (position < index.size && !takeIn(position)) {
      index.size = position;
    }
  }
  index.changed.clear();
  while (index.size < array.Size() && takeIn(index.size)) {
    ++index.size;
  }
  return &index;
}

void ObjectFinder::willChange(const Value& array, const Value& element, const std::string* name) {
  for (auto index = indexes_.lower_bound({array.Begin(), std::string()});
       index != indexes_.end() && index->first.first == array.Begin(); ++index) {
    if (name == nullptr || index->first.second == *name) {
      index->second.changed.push_back(static_cast<SizeType>(&element - array.Begin()));
    }
  }
}

}  // namespace kovalt
