#pragma once

// The saving of a document.

#include <string>

#include "json/document.h"

namespace kovalt {

/// Replaces the content of the file at `path`, made if it is missing, by the text of `document`, indented by two spaces
/// a level and without a final line end. Returns false only when the file cannot be opened for writing, which is
/// reported on standard error; a write that fails later is not noticed.
bool writeDocument(const Document& document, const std::string& path);

}  // namespace kovalt
