#include "json/load_document.h"

#include <cstdio>

#include "json/standard_streams.h"
#include "json/tuning/input_stream.h"

namespace kovalt {
namespace {

bool parse(std::FILE* file, Document& document) {
  InputBuffer buffer(file);
  InputStream stream(buffer);
  bool parsed = false;
  // The same document is passed in, but as its base, whose builder would take infinite numbers.
  auto generate = [&](auto& /*base*/) {
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, AbortingAllocator> reader;
    // The reader also stops at a NUL character.
    parsed = !reader.Parse<rapidjson::kParseDefaultFlags>(stream, document).IsError() && stream.isAtEnd();
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
