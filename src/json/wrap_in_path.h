#pragma once

// The nested objects that stand in for a place that a document does not have yet.

#include "json/document.h"
#include "json/key_path.h"

namespace kovalt {

/// Wraps `leaf` in one object per step of `path`, the first step outermost; each object has the step as its one member.
/// A step is taken verbatim as a member name, selections included, so a selection that finds nothing makes a member of
/// that literal name. Without steps the result is `leaf` itself. Names are copied into `allocator`.
Value wrapInPath(const KeyPath& path, Value leaf, Allocator& allocator);

}  // namespace kovalt
