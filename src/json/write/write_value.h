#pragma once

// Values as JSON text: in a string, on standard output and in a file. Numbers and strings have one form everywhere, and
// no depth of nesting is too deep.

#include <string>

#include "json/document.h"

namespace kovalt {

/// Returns the JSON text of `value`: without whitespace, or with `pretty` as it is displayed, indented by four spaces
/// per level. There are only these two forms, hence the plain Boolean. No end of line follows.
std::string valueToText(const Value& value, bool pretty);

/// Prints the text of `value` on standard output, indented by four spaces per level, and an end of line.
void printValue(const Value& value);

/// Replaces the content of the file at `path`, which is created if it is missing, by the text of `document`, indented
/// by two spaces per level and without a final end of line. Returns false, after a report on standard error, only if
/// the file cannot be opened for writing; later write errors are not noticed.
bool writeDocument(const Document& document, const std::string& path);

}  // namespace kovalt
