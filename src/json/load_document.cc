#include "json/load_document.h"

#include <cstdio>

#include "json/projected_parse.h"
#include "json/standard_streams.h"
#include "json/tuning/input_stream.h"

namespace kovalt {
namespace {

bool parse(std::FILE* file, const Projection& projection, Document& document) {
  InputBuffer buffer(file);
  InputStream stream(buffer);
  bool parsed = false;
  auto generate = [&](Document& /*document*/) { return parsed = parseProjected(stream, projection, document); };
  document.Populate(generate);
  return parsed;
}

}  // namespace

bool loadDocument(const std::string& path, Document& document, bool reportOpenFailure) {
  Projection whole;
  whole.addWhole(Projection::kRoot);
  return loadProjected(path, whole, document, reportOpenFailure);
}

bool loadProjected(const std::string& path, const Projection& projection, Document& document, bool reportOpenFailure) {
  std::FILE* file = std::fopen(path.c_str(), "r");
  if (file == nullptr) {
    if (reportOpenFailure) {
      reportLine("Could not open document: " + path);
    }
    return false;
  }
  const bool parsed = parse(file, projection, document);
  std::fclose(file);
  if (!parsed) {
    reportLine("Could not parse json file " + path);
  }
  return parsed;
}

}  // namespace kovalt
