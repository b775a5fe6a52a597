#pragma once

// The folder for the files of the current input.

#include <map>
#include <string>

#include "json/document.h"

namespace kovalt::fuzz {

/// The content of each file in a folder, by name.
using Files = std::map<std::string, std::string>;

/// The first call creates the scratch folder and makes it the current folder. It is removed when the process exits.
void enterScratchFolder();

/// Returns the files of the scratch folder, which must be the current folder.
Files readScratchFiles();

/// Replaces all files of the current folder, which must be the scratch folder: they are deleted.
void writeScratchFiles(const Files& files);

/// Loads a file with this content, as `loadDocument` does. Returns whether it loads.
bool loadText(const std::string& text, Document& document);

/// Saves `document` with `writeDocument` and returns the file's content.
std::string savedText(const Document& document);

}  // namespace kovalt::fuzz
