#include "json/load/load_document.h"

#include "json/load/input_buffer.h"
#include "json/load/projection_builder.h"
#include "json/standard_streams.h"

namespace kovalt {

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
  const bool parsed = parseFile(file, projection, document);
  std::fclose(file);
  if (!parsed) {
    reportLine("Could not parse json file " + path);
  }
  return parsed;
}

bool parseFile(std::FILE* file, const Projection& projection, Document& document) {
  InputBuffer buffer(file);
  Scanner(buffer).skipWhitespace();
  TokenReader reader;
  bool parsed = false;
  auto generate = [&](Document& target) {
    ProjectionBuilder builder(reader, projection, target);
    return parsed = parseValue(buffer, builder) && Scanner(buffer).skipToEnd();
  };
  document.Populate(generate);
  return parsed;
}

}  // namespace kovalt
