#include "json/load_document.h"

#include <rapidjson/filereadstream.h>
#include <rapidjson/reader.h>

#include <cmath>
#include <cstdio>

#include "json/standard_streams.h"

namespace kovalt {
namespace {

using rapidjson::SizeType;

/// Builds the document from what the reader finds, and stops it at a number that became infinite: the reader lets some
/// pass, and the writers could not write them.
class FiniteDocumentBuilder {
 public:
  explicit FiniteDocumentBuilder(Document& document) : document_(document) {}

  bool Null() { return document_.Null(); }
  bool Bool(bool value) { return document_.Bool(value); }
  bool Int(int value) { return document_.Int(value); }
  bool Uint(unsigned value) { return document_.Uint(value); }
  bool Int64(std::int64_t value) { return document_.Int64(value); }
  bool Uint64(std::uint64_t value) { return document_.Uint64(value); }
  bool Double(double value) { return std::isfinite(value) && document_.Double(value); }
  bool RawNumber(const char* text, SizeType length, bool copy) { return document_.RawNumber(text, length, copy); }
  bool String(const char* text, SizeType length, bool copy) { return document_.String(text, length, copy); }
  bool Key(const char* text, SizeType length, bool copy) { return document_.Key(text, length, copy); }
  bool StartObject() { return document_.StartObject(); }
  bool EndObject(SizeType memberCount) { return document_.EndObject(memberCount); }
  bool StartArray() { return document_.StartArray(); }
  bool EndArray(SizeType elementCount) { return document_.EndArray(elementCount); }

 private:
  Document& document_;
};

/// Whether nothing is left of the stream. The reader also stops at a NUL byte, which is content like any other.
bool atEnd(rapidjson::FileReadStream& stream) {
  const std::size_t position = stream.Tell();
  stream.Take();
  return stream.Tell() == position;
}

bool parse(std::FILE* file, Document& document) {
  char buffer[8192];
  rapidjson::FileReadStream stream(file, buffer, sizeof(buffer));
  bool parsed = false;
  auto generate = [&](Document& target) {
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> reader;
    FiniteDocumentBuilder builder(target);
    parsed = !reader.Parse<rapidjson::kParseDefaultFlags>(stream, builder).IsError() && atEnd(stream);
    return parsed;
  };
  document.Populate(generate);
  return parsed;
}

}  // namespace

bool loadDocument(const std::string& path, Document& document, bool reportOpenFailure) {
  std::FILE* file = std::fopen(path.c_str(), "r");
  if (file == nullptr) {
    if (reportOpenFailure) {
      reportLine("Could not open document: " + path);
    }
    return false;
  }
  const bool parsed = parse(file, document);
  std::fclose(file);
  if (!parsed) {
    reportLine("Could not parse json file " + path);
  }
  return parsed;
}

}  // namespace kovalt
