#pragma once

// Texts of values, collected in memory.

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstddef>

#include "json/aborting_allocator.h"
#include "json/write/double_text.h"

namespace kovalt {

/// An output stream of RapidJSON's kind that collects a text in memory.
using TextBuffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, AbortingAllocator>;

}  // namespace kovalt

namespace rapidjson {

/// Replaces the function of both writers that writes a floating-point number to a `TextBuffer`.
template <>
inline bool Writer<kovalt::TextBuffer, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteDouble(double number) {
  char* const text = os_->Push(kovalt::kLongestDouble);
  os_->Pop(static_cast<std::size_t>(text + kovalt::kLongestDouble - kovalt::writeDouble(number, text)));
  return true;
}

}  // namespace rapidjson
