#include "json/path/find_object_by_ref.h"

#include <algorithm>
#include <cstdlib>

#include "json/contract.h"
#include "json/path/selecting_values.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

constexpr SizeType kNoElement = static_cast<SizeType>(-1);

SizeType firstOf(const std::set<SizeType>& positions) { return positions.empty() ? kNoElement : *positions.begin(); }

/// The refValue of a selection. Numbers are compared by their text; a number with another value has another text, so
/// only equal numbers are converted to text.
struct Wanted {
  [[nodiscard]] bool matches(const Value& scalar) const {
    if (scalar.IsNumber()) {
      return scalar.GetDouble() == number && refValueOf(scalar) == text;
    }
    return text == (scalar.IsString() ? scalar.GetString() : scalar.IsTrue() ? "true" : "false");
  }

  std::string text;
  double number = std::strtod(text.c_str(), nullptr);  ///< The number at the start of `text`; zero if there is none.
};

const Value* reportNotFound(std::string_view refKey, std::string_view refValue, bool explainArgument) {
  std::string message = "Kovalt path not found with refKey=refValue \"";
  reportLine(message.append(refKey).append("=").append(refValue).append("\""));
  if (explainArgument) {
    reportLine(
        "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
        "refKey must be a bool/number/string/array of numbers/strings.");
  }
  return nullptr;
}

}  // namespace

const Value* findObjectByRef(const Value* array, std::string_view refKey, std::string_view refValue) {
  return ElementFinder().find(array, refKey, refValue);
}

const Value* ElementFinder::find(const Value* array, std::string_view refKey, std::string_view refValue) {
  if (array == nullptr || !array->IsArray()) {
    // Without the advice, although it describes this very case: scripts rely on the exact message.
    return reportNotFound(refKey, refValue, false);
  }
  const bool isLarge = array->Size() > IndexBudget::kEntryCost;
  Index unused;
  Index& index = isLarge ? indexes_[{array->Begin(), std::string(refKey)}] : unused;
  require(index.size <= array->Size());

  const Wanted wanted = {std::string(refValue)};
  const auto indexed = index.elementsWith.find(wanted.text);
  SizeType match = indexed == index.elementsWith.end() ? kNoElement : firstOf(indexed->second);
  SizeType stop = firstOf(index.stops);
  bool hasBadItems = !index.badItems.empty();
  std::size_t comparisons = 0;
  const auto compare = [&](SizeType position) {
    const Value& element = (*array)[position];
    bool matches = false;
    const Obstacle obstacle = visitSelecting(element, refKey, [&](const Value& scalar) {
      ++comparisons;
      matches = matches || wanted.matches(scalar);
    });
    ++comparisons;
    match = matches ? position : match;
    stop = !matches && obstacle == Obstacle::stop ? position : stop;
    hasBadItems |= obstacle == Obstacle::badItems;
  };
  for (auto position = index.changed.begin(); position != index.changed.end() && *position < std::min(match, stop);
       ++position) {
    compare(*position);
  }
  for (SizeType position = index.size; position < array->Size() && position < std::min(match, stop); ++position) {
    compare(position);
  }
  if (isLarge && comparisons > 0) {
    // Something that is not in the index was compared, so a larger index may pay.
    index.grow(*array, refKey);
  }
  index.budget.earn(comparisons + std::min({index.size, match, stop}));
  return match < stop ? &(*array)[match] : reportNotFound(refKey, refValue, stop != kNoElement || hasBadItems);
}

void ElementFinder::willChange(const Value& array, const Value& element, const std::string* name) {
  const auto position = static_cast<SizeType>(&element - array.Begin());
  for (auto index = indexes_.lower_bound({array.Begin(), name == nullptr ? std::string() : *name});
       index != indexes_.end() && index->first.first == array.Begin() &&
       (name == nullptr || index->first.second == *name);
       ++index) {
    if (position < index->second.size && index->second.changed.insert(position).second) {
      index->second.remove(element, index->first.second, position);
    }
  }
}

void ElementFinder::Index::add(const Value& element, std::string_view refKey, SizeType position) {
  const Obstacle obstacle =
      visitSelecting(element, refKey, [&](const Value& scalar) { elementsWith[refValueOf(scalar)].insert(position); });
  if (obstacle != Obstacle::none) {
    (obstacle == Obstacle::stop ? stops : badItems).insert(position);
  }
}

void ElementFinder::Index::remove(const Value& element, std::string_view refKey, SizeType position) {
  visitSelecting(element, refKey, [&](const Value& scalar) {
    const auto entry = elementsWith.find(refValueOf(scalar));
    // An array may have the same item twice.
    if (entry != elementsWith.end() && entry->second.erase(position) > 0 && entry->second.empty()) {
      elementsWith.erase(entry);
    }
  });
  stops.erase(position);
  badItems.erase(position);
}

void ElementFinder::Index::grow(const Value& array, std::string_view refKey) {
  const auto canPayFor = [&](SizeType position) { return budget.pay(countEntries(array[position], refKey)); };
  while (!changed.empty() && canPayFor(*changed.begin())) {
    add(array[*changed.begin()], refKey, *changed.begin());
    changed.erase(changed.begin());
  }
  for (; changed.empty() && size < array.Size() && canPayFor(size); ++size) {
    add(array[size], refKey, size);
  }
}

}  // namespace kovalt
