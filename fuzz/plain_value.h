#pragma once

// A JSON value in the most obvious form, and the merge and the removal done on it in the most obvious way.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/ends.h"
#include "json/document.h"

namespace kovalt::fuzz {

struct PlainValue {
  rapidjson::Type type = rapidjson::kNullType;
  std::string text;  ///< The compact text of a scalar.
  std::vector<PlainValue> elements;
  std::vector<std::pair<std::string, PlainValue>> members;

  bool operator==(const PlainValue& other) const;
  bool operator!=(const PlainValue& other) const { return !(*this == other); }
};

PlainValue plainValue(const Value& value);

/// The value of the first member of `object` of that name; nullptr where there is none.
PlainValue* plainMember(PlainValue& object, const std::string& name);

/// How a merge ended the process, if it did not come through, and the name at which types clashed.
struct PlainMerge {
  std::optional<End> end;
  std::string clash;
};

/// Merges `source` into `target`.
PlainMerge mergePlain(PlainValue& target, const PlainValue& source);

/// What became of a removal: whether it was a success, or how it ended the process.
struct PlainRemoval {
  bool succeeded = true;
  std::optional<End> end;
};

PlainRemoval removePlain(PlainValue& root, const std::vector<std::string>& steps, bool clearEmptyParents);

}  // namespace kovalt::fuzz
