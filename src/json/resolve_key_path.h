#pragma once

// The walks of a key path through a document.

#include "json/document.h"
#include "json/key_path.h"

namespace kovalt {

/// The value that `path` names, walked from `root`, or nullptr. A missing member is silent; a selection step that finds
/// nothing prints its own messages on standard error. The result is valid until the document changes.
Value* resolveExisting(const KeyPath& path, Value& root);

/// As `resolveExisting`, for reads: a missing member is reported on standard error with the whole path.
const Value* resolveForRead(const KeyPath& path, const Value& root);

}  // namespace kovalt
