#pragma once

// The steps of RapidJSON that are done in another way here. The one for strings takes a tenth off the instructions of
// saving records. All stand in the one header that every user of its types gets by json/document.h. A step that only
// some of the sources knew would be another one in each.

#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstddef>
#include <cstring>
#include <string_view>

#include "json/double_text.h"
#include "json/tuning/aborting_allocator.h"
#include "json/tuning/input_stream.h"
#include "json/tuning/output_stream.h"

namespace kovalt {

/// What texts in memory are written to.
using TextBuffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, AbortingAllocator>;

/// Has `write` put the text of a number into `stream`.
template <typename Stream, typename Write>
bool putNumber(Stream& stream, Write write) {
  char* const text = stream.Push(kLongestNumber);
  stream.Pop(static_cast<std::size_t>(text + kLongestNumber - write(text)));
  return true;
}

}  // namespace kovalt

namespace rapidjson {

static_assert(RAPIDJSON_MAJOR_VERSION == 1 && RAPIDJSON_MINOR_VERSION == 1 && RAPIDJSON_PATCH_VERSION == 0,
              "the steps below take the place of those of RapidJSON 1.1.0");

/// The step of the reader that takes those characters of a string which need no look at each. It may leave any of them,
/// of which the reader then takes one by itself.
template <>
template <>
inline void GenericReader<UTF8<>, UTF8<>, kovalt::AbortingAllocator>::ScanCopyUnescapedString(
    kovalt::InputStream& stream, StackStream<char>& text) {
  const std::string_view run = stream.peekPlain();
  if (!run.empty()) {
    std::memcpy(text.Push(static_cast<SizeType>(run.size())), run.data(), run.size());
  }
  stream.skip(run.size());
}

/// How the pretty writer indents.
template <>
inline void PutN(kovalt::OutputStream& stream, char c, std::size_t n) {
  stream.putRepeated(c, n);
}

/// What the pretty writer puts in front of a name or value.
template <>
inline void PrettyWriter<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::PrettyPrefix(Type type) {
  if (level_stack_.Empty()) {
    RAPIDJSON_ASSERT(!hasRoot_);
    hasRoot_ = true;
    return;
  }
  Level& level = *level_stack_.Top<Level>();
  if (!level.inArray && level.valueCount % 2 != 0) {
    std::memcpy(os_->Push(2), ": ", 2);
  } else {
    RAPIDJSON_ASSERT(level.inArray || type == kStringType);
    os_->startLine(level.valueCount > 0, level_stack_.GetSize() / sizeof(Level) * indentCharCount_);
  }
  ++level.valueCount;
}

/// How the writers put numbers.
template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteInt64(int64_t number) {
  return kovalt::putNumber(*os_, [=](char* text) { return internal::i64toa(number, text); });
}
template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteUint64(uint64_t number) {
  return kovalt::putNumber(*os_, [=](char* text) { return internal::u64toa(number, text); });
}
template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteDouble(double number) {
  return kovalt::putNumber(*os_, [=](char* text) { return kovalt::writeDouble(number, text); });
}
template <>
inline bool Writer<kovalt::TextBuffer, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteDouble(double number) {
  return kovalt::putNumber(*os_, [=](char* text) { return kovalt::writeDouble(number, text); });
}

/// How the writers put strings.
template <>
inline bool Writer<kovalt::OutputStream, UTF8<>, UTF8<>, kovalt::AbortingAllocator>::WriteString(const char* text,
                                                                                                 SizeType length) {
  os_->putString({text, length});
  return true;
}

}  // namespace rapidjson
