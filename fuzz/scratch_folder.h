#pragma once

// The folder in which a target keeps the files of the input at hand.

#include <map>
#include <optional>
#include <string>

#include "json/document.h"

namespace kovalt::fuzz {

/// The content of every file of a folder, by name.
using Files = std::map<std::string, std::string>;

/// Makes a fresh folder at the first call and the current one of the process; it is removed when the process ends.
void enterScratchFolder();

/// The files of the scratch folder.
Files readScratchFiles();

/// Replaces all files of the scratch folder.
void writeScratchFiles(const Files& files);

/// What `loadDocument` makes of a file with this content.
bool loadText(const std::string& text, Document& document);

/// What `writeDocument` leaves in a file.
std::string savedText(const Document& document);

}  // namespace kovalt::fuzz
