#pragma once

// The walk that hands a value to one of RapidJSON's writers.

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <vector>

#include "json/document.h"

namespace kovalt {

/// How a text is laid out: without any white space, or indented by a number of spaces for each level.
enum class TextLayout { compact, fileIndented, screenIndented };

/// Whether `value` can hold others.
inline bool isContainer(const Value& value) { return value.IsObject() || value.IsArray(); }

/// Hands a value that holds no others to `writer`.
template <typename Writer>
void writeScalar(const Value& value, Writer& writer) {
  if (value.IsString()) {
    writer.String(value.GetString(), value.GetStringLength());
  } else if (value.IsInt64()) {
    writer.Int64(value.GetInt64());
  } else if (value.IsDouble()) {
    writer.Double(value.GetDouble());
  } else if (value.IsBool()) {
    writer.Bool(value.GetBool());
  } else if (value.IsNull()) {
    writer.Null();
  } else {
    writer.Uint64(value.GetUint64());
  }
}

/// An array or object of which only the first part is written so far.
class OpenContainer {
 public:
  /// Writes the start of `container`.
  template <typename Writer>
  OpenContainer(const Value& container, Writer& writer) : container_(&container) {
    if (container.IsObject()) {
      writer.StartObject();
      member_ = container.MemberBegin();
    } else {
      writer.StartArray();
      element_ = container.Begin();
    }
  }

  /// Goes on writing up to the next container inside, which is returned, or to the end, when nullptr is returned.
  template <typename Writer>
  const Value* writeToNextContainer(Writer& writer) {
    return container_->IsObject() ? writeMembers(writer) : writeElements(writer);
  }

 private:
  template <typename Writer>
  const Value* writeMembers(Writer& writer) {
    const auto end = container_->MemberEnd();
    while (member_ != end) {
      const Value::Member& member = *member_++;
      writer.Key(member.name.GetString(), member.name.GetStringLength());
      if (isContainer(member.value)) {
        return &member.value;
      }
      writeScalar(member.value, writer);
    }
    writer.EndObject(container_->MemberCount());
    return nullptr;
  }

  template <typename Writer>
  const Value* writeElements(Writer& writer) {
    const Value* end = container_->End();
    while (element_ != end) {
      const Value& element = *element_++;
      if (isContainer(element)) {
        return &element;
      }
      writeScalar(element, writer);
    }
    writer.EndArray(container_->Size());
    return nullptr;
  }

  const Value* container_;
  Value::ConstMemberIterator member_;
  const Value* element_ = nullptr;
};

/// Hands `root` and all that is in it to `writer`, in document order. Open containers are kept on the heap instead of
/// the call stack, so that no depth of nesting can end the process in the middle of a file.
template <typename Writer>
void writeValue(const Value& root, Writer& writer) {
  if (!isContainer(root)) {
    writeScalar(root, writer);
    return;
  }
  std::vector<OpenContainer> open;
  open.emplace_back(root, writer);
  while (!open.empty()) {
    if (const Value* container = open.back().writeToNextContainer(writer)) {
      open.emplace_back(*container, writer);
    } else {
      open.pop_back();
    }
  }
}

/// Writes the text of `value` to a stream of RapidJSON's kind and flushes it.
template <typename Stream>
void writeText(const Value& value, TextLayout layout, Stream& stream) {
  if (layout == TextLayout::compact) {
    rapidjson::Writer<Stream, rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> writer(stream);
    writeValue(value, writer);
  } else {
    // Files and the screen are indented differently on purpose.
    rapidjson::PrettyWriter<Stream, rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> writer(stream);
    writer.SetIndent(' ', layout == TextLayout::fileIndented ? 2 : 4);
    writeValue(value, writer);
  }
  // The writers flush after an array or object, but not after a scalar root.
  stream.Flush();
}

}  // namespace kovalt
