#pragma once

// The folder for the files of the current input.

#include <map>
#include <optional>
#include <string>

#include "json/document.h"

namespace kovalt::fuzz {

/// The content of each file in a folder, by name.
using Files = std::map<std::string, std::string>;

/// The first call creates the scratch folder and makes it the current folder. It is removed when the process exits.
void enterScratchFolder();

/// Returns the files of the scratch folder.
Files readScratchFiles();

/// Replaces all files of the scratch folder.
void writeScratchFiles(const Files& files);

/// Loads a file with this content, as `loadDocument` does.
bool loadText(const std::string& text, Document& document);

/// Returns the content of a file that `writeDocument` wrote.
std::string savedText(const Document& document);

}  // namespace kovalt::fuzz
