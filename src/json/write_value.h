#pragma once

// The walk that hands a value to one of the library's writers.

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

#include <vector>

#include "json/document.h"

namespace kovalt {

/// How a text is laid out: without any white space, or indented by a number of spaces for each level.
enum class TextLayout { compact, fileIndented, screenIndented };

/// An array or object whose end has not been written yet.
class OpenContainer {
 public:
  explicit OpenContainer(const Value& container) : container_(&container) {
    if (container.IsObject()) {
      member_ = container.MemberBegin();
      memberEnd_ = container.MemberEnd();
    } else {
      element_ = container.Begin();
      elementEnd_ = container.End();
    }
  }

  [[nodiscard]] bool atEnd() const { return element_ == elementEnd_ && member_ == memberEnd_; }

  /// Steps over the next value; inside an object its name is written first.
  template <typename Writer>
  const Value& next(Writer& writer) {
    if (element_ != nullptr) {
      return *element_++;
    }
    writer.Key(member_->name.GetString(), member_->name.GetStringLength());
    return (member_++)->value;
  }

  template <typename Writer>
  void writeEnd(Writer& writer) const {
    if (container_->IsObject()) {
      writer.EndObject(container_->MemberCount());
    } else {
      writer.EndArray(container_->Size());
    }
  }

 private:
  const Value* container_;
  const Value* element_ = nullptr;
  const Value* elementEnd_ = nullptr;
  Value::ConstMemberIterator member_;
  Value::ConstMemberIterator memberEnd_;
};

/// Hands `root` and all that is in it to `writer`, in document order. Open containers are kept on the heap instead of
/// the call stack, so that no depth of nesting can end the process in the middle of a file.
template <typename Writer>
void writeValue(const Value& root, Writer& writer) {
  std::vector<OpenContainer> open;
  const Value* value = &root;
  while (true) {
    if (value->IsObject()) {
      writer.StartObject();
      open.emplace_back(*value);
    } else if (value->IsArray()) {
      writer.StartArray();
      open.emplace_back(*value);
    } else {
      value->Accept(writer);
    }
    while (!open.empty() && open.back().atEnd()) {
      open.back().writeEnd(writer);
      open.pop_back();
    }
    if (open.empty()) {
      return;
    }
    value = &open.back().next(writer);
  }
}

/// Writes the text of `value` to a stream of the library and flushes it.
template <typename Stream>
void writeText(const Value& value, TextLayout layout, Stream& stream) {
  if (layout == TextLayout::compact) {
    rapidjson::Writer<Stream> writer(stream);
    writeValue(value, writer);
  } else {
    // Files and the screen are indented differently on purpose.
    rapidjson::PrettyWriter<Stream> writer(stream);
    writer.SetIndent(' ', layout == TextLayout::fileIndented ? 2 : 4);
    writeValue(value, writer);
  }
  // The writers flush after an array or object, but not after a scalar root.
  stream.Flush();
}

}  // namespace kovalt
