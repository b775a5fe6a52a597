#pragma once

// The JSON types of the one document of a call, and conversions between their strings and std::string_view.

#ifdef NDEBUG
#error "Compile Kovalt without NDEBUG: RapidJSON's assertions are part of what it does"
#endif

#include <rapidjson/document.h>

#include <string_view>

#include "json/aborting_allocator.h"

namespace kovalt {

static_assert(RAPIDJSON_MAJOR_VERSION == 1 && RAPIDJSON_MINOR_VERSION == 1 && RAPIDJSON_PATCH_VERSION == 0,
              "the specialisations next to Kovalt's streams replace functions of RapidJSON 1.1.0");

/// The document of a call, or a file that is merged into it and shares its memory pool. The pool allocates chunks of at
/// least 65,536 bytes, and frees all of them when the document of the call is destroyed. Until then it never uses
/// memory twice, so the address of the first element or member of an array or object never belongs to another one.
using Document =
    rapidjson::GenericDocument<rapidjson::UTF8<>, rapidjson::MemoryPoolAllocator<AbortingAllocator>, AbortingAllocator>;

/// The memory pool that holds every value of a document.
using Allocator = Document::AllocatorType;

/// A value inside a document or on its way into one.
using Value = Document::ValueType;

/// The bytes of the string `value`, valid until it changes or moves. RapidJSON counts the bytes of strings in 32 bits.
inline std::string_view textOf(const Value& value) { return {value.GetString(), value.GetStringLength()}; }

/// A string with a copy of `text`, allocated from `allocator`.
inline Value copyText(std::string_view text, Allocator& allocator) {
  return {text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator};
}

/// A string that refers to the bytes of `text` and must not outlive them: a search key.
inline Value referToText(std::string_view text) {
  return Value(rapidjson::StringRef(text.data(), static_cast<rapidjson::SizeType>(text.size())));
}

}  // namespace kovalt
