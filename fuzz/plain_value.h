#pragma once

// A JSON value in the simplest form, with the simplest merge and removal.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/early_exits.h"
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

/// Returns the value of the first member of `object` with this name, or nullptr.
PlainValue* plainMember(PlainValue& object, const std::string& name);

/// How a merge exited, if it did, and the name of the member whose types clashed.
struct PlainMerge {
  std::optional<Exit> earlyExit;
  std::string clash;
};

/// Merges `source` into `target`.
PlainMerge mergePlain(PlainValue& target, const PlainValue& source);

/// Whether a removal succeeded, or how it exited.
struct PlainRemoval {
  bool succeeded = true;
  std::optional<Exit> earlyExit;
};

PlainRemoval removePlain(PlainValue& root, const std::vector<std::string>& steps, bool clearEmptyParents);

}  // namespace kovalt::fuzz
