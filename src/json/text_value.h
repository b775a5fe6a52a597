#pragma once

// Strings of a document as texts, and texts as strings of a document. RapidJSON counts their bytes in 32 bits.

#include <string_view>

#include "json/document.h"

namespace kovalt {

/// The bytes of the string `value`, which keeps them.
inline std::string_view textOf(const Value& value) { return {value.GetString(), value.GetStringLength()}; }

/// A string with a copy of `text`, made in `allocator`.
inline Value copyText(std::string_view text, Allocator& allocator) {
  return {text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator};
}

/// A string that looks into `text` and must not outlive it: the key of a search.
inline Value referToText(std::string_view text) {
  return Value(rapidjson::StringRef(text.data(), static_cast<rapidjson::SizeType>(text.size())));
}

}  // namespace kovalt
