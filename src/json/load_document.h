#pragma once

// The loading of a document.

#include <string>

#include "json/document.h"
#include "json/projection.h"

namespace kovalt {

/// Reads the JSON file at `path` into `document`. Returns false, with `document` as it was, when the file cannot be
/// opened, which is reported on standard error only with `reportOpenFailure`, or when its content is not exactly one
/// JSON value, which is always reported. A number beyond the largest double counts as an error too.
bool loadDocument(const std::string& path, Document& document, bool reportOpenFailure);

/// As `loadDocument`, but `document` becomes only what `projection` keeps of the file. All of it is read and checked.
bool loadProjected(const std::string& path, const Projection& projection, Document& document,
                   bool reportOpenFailure = false);

}  // namespace kovalt
