#pragma once

// The steps of RapidJSON that are done in another way here: all of them, in the one header that every user of its types
// gets by json/document.h. A step that only some of the sources knew would be another one in each.

#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/writer.h>

#include <cstddef>

#include "json/tuning/aborting_allocator.h"
#include "json/tuning/display_stream.h"
#include "json/tuning/input_stream.h"

namespace rapidjson {

static_assert(RAPIDJSON_MAJOR_VERSION == 1 && RAPIDJSON_MINOR_VERSION == 1 && RAPIDJSON_PATCH_VERSION == 0,
              "the steps below take the place of those of RapidJSON 1.1.0");

/// The reader works on a copy of the stream where it takes a number: its place then stands in a register.
template <>
struct StreamTraits<kovalt::InputStream> {
  enum { copyOptimization = 1 };
};

/// How the reader comes to the next token.
template <>
inline void SkipWhitespace(kovalt::InputStream& stream) {
  stream.skipBlanks();
}

/// The step of the reader that takes those characters of a string which need no look at each. It may leave any of them,
/// of which the reader then takes one by itself.
template <>
template <>
inline void GenericReader<UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ScanCopyUnescapedString(
    kovalt::InputStream& stream, StackStream<char>& text) {
  stream.takePlain(text);
}

/// How the pretty writer indents.
template <>
inline void PutN(kovalt::DisplayStream& stream, char c, std::size_t n) {
  stream.putRepeated(c, n);
}

/// The step of the writer that takes what needs no look at each character. Returns whether any of the string is left,
/// of which the writer then takes one character by itself.
template <>
inline bool Writer<kovalt::DisplayStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ScanWriteUnescapedString(
    GenericStringStream<UTF8<>>& text, std::size_t length) {
  text.src_ += os_->putUnescaped({text.src_, length - text.Tell()});
  return text.Tell() < length;
}

}  // namespace rapidjson
