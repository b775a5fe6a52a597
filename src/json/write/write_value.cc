#include "json/write/write_value.h"

#include <cstddef>
#include <vector>

#include "json/standard_streams.h"
#include "json/write/output_stream.h"
#include "json/write/text_buffer.h"

namespace kovalt {
namespace {

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

/// Passes `root` and all that it contains to `writer`. Open containers are kept on the heap, so that no depth of
/// nesting exhausts the call stack in the middle of a file.
template <typename Writer>
void writeNested(const Value& root, Writer& writer) {
  struct OpenContainer {
    const Value* value;
    bool isObject;
    rapidjson::SizeType size;
    rapidjson::SizeType written;
  };
  std::vector<OpenContainer> open;
  const Value* next = &root;
  while (true) {
    if (next->IsObject() || next->IsArray()) {
      const bool isObject = next->IsObject();
      isObject ? writer.StartObject() : writer.StartArray();
      open.push_back({next, isObject, isObject ? next->MemberCount() : next->Size(), 0});
    } else {
      writeScalar(*next, writer);
    }
    while (!open.empty() && open.back().written == open.back().size) {
      open.back().isObject ? writer.EndObject() : writer.EndArray();
      open.pop_back();
    }
    if (open.empty()) {
      return;
    }
    OpenContainer& container = open.back();
    if (container.isObject) {
      const Value::Member& member = *(container.value->MemberBegin() + static_cast<std::ptrdiff_t>(container.written));
      writer.Key(member.name.GetString(), member.name.GetStringLength());
      next = &member.value;
    } else {
      next = container.value->Begin() + container.written;
    }
    ++container.written;
  }
}

// Files and the screen are indented differently on purpose.
constexpr unsigned kCompact = 0;
constexpr unsigned kFileIndent = 2;
constexpr unsigned kScreenIndent = 4;

/// Writes the text of `value` to a stream of RapidJSON's kind, indented by `indent` spaces per level, and flushes it.
template <typename Stream>
void writeText(const Value& value, unsigned indent, Stream& stream) {
  if (indent == kCompact) {
    rapidjson::Writer<Stream, rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> writer(stream);
    writeNested(value, writer);
  } else {
    rapidjson::PrettyWriter<Stream, rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> writer(stream);
    writer.SetIndent(' ', indent);
    writeNested(value, writer);
  }
  // The pretty writer flushes after an array or object, but not after a scalar root.
  stream.Flush();
}

}  // namespace

std::string valueToText(const Value& value, bool pretty) {
  TextBuffer buffer;
  writeText(value, pretty ? kScreenIndent : kCompact, buffer);
  return {buffer.GetString(), buffer.GetSize()};
}

void printValue(const Value& value) {
  OutputStream stream(stdout);
  writeText(value, kScreenIndent, stream);
  printLine("");
}

bool writeDocument(const Document& document, const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) {
    reportLine("Could not write document: " + path);
    return false;
  }
  OutputStream stream(file);
  writeText(document, kFileIndent, stream);
  std::fclose(file);
  return true;
}

}  // namespace kovalt
