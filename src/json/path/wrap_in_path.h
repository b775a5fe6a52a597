#pragma once

// The nested objects for a place that a document does not have yet.

#include "json/document.h"
#include "json/path/key_path.h"

namespace kovalt {

/// Wraps `leaf` in one object per step of `path`, the first step outermost; each object has one member, named by its
/// step. Every step is a member name here, so a selection that finds nothing makes a member of that literal name.
/// Without steps the result is `leaf` itself. Names are copied into `allocator`.
Value wrapInPath(const KeyPath& path, Value leaf, Allocator& allocator);

}  // namespace kovalt
