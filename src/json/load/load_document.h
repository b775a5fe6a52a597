#pragma once

// The loading of a document from a file.

#include <cstdio>
#include <string>

#include "json/document.h"
#include "json/load/projection.h"

namespace kovalt {

/// Loads the JSON file at `path` into `document`. Returns false, with `document` unchanged, if the file cannot be
/// opened, which is reported on standard error only with `reportOpenFailure`, or if its content is not exactly one JSON
/// value, which is always reported. A number too large for a double is an error too.
bool loadDocument(const std::string& path, Document& document, bool reportOpenFailure);

/// As `loadDocument`, but keeps only what `projection` says. The whole file is validated.
bool loadProjected(const std::string& path, const Projection& projection, Document& document, bool reportOpenFailure);

/// Parses the content of `file` from its current position into `document`, and keeps what `projection` says. The file
/// stays open. Returns false, with `document` unchanged and nothing reported, if the content is not exactly one JSON
/// value.
bool parseFile(std::FILE* file, const Projection& projection, Document& document);

}  // namespace kovalt
