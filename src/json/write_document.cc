#include "json/write_document.h"

#include <cstdio>

#include "json/standard_streams.h"
#include "json/write_value.h"

namespace kovalt {

bool writeDocument(const Document& document, const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) {
    reportLine("Could not write document: " + path);
    return false;
  }
  OutputStream stream(file);
  writeText(document, TextLayout::fileIndented, stream);
  std::fclose(file);
  return true;
}

}  // namespace kovalt
