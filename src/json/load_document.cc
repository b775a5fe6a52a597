#include "json/load_document.h"

#include <rapidjson/filereadstream.h>
#include <rapidjson/reader.h>

#include <cstdio>

#include "json/standard_streams.h"

namespace kovalt {
namespace {

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
  // The same document is passed in, but as its base, whose builder would take infinite numbers.
  auto generate = [&](auto& /*base*/) {
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> reader;
    parsed = !reader.Parse<rapidjson::kParseDefaultFlags>(stream, document).IsError() && atEnd(stream);
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
