#pragma once

// The walks of a key path through a document.

#include "json/document.h"
#include "json/find_object_by_ref.h"
#include "json/key_path.h"
#include "json/member_finder.h"

namespace kovalt {

/// What the walks through one document share, so that many of them do not look through the same places again and again.
struct Lookups {
  MemberFinder members;
  ObjectFinder objects;
};

/// The value that `path` names, walked from `root`, or nullptr. A missing member is silent; a selection step that finds
/// nothing prints its own messages on standard error. The result is valid until the document changes. It alone may be
/// changed before the next walk with the same `lookups`, besides what is appended to objects and arrays.
Value* resolveExisting(const KeyPath& path, Value& root, Lookups& lookups);

/// As `resolveExisting`, for reads: a missing member is reported on standard error with the whole path, and the result
/// must not change.
const Value* resolveForRead(const KeyPath& path, const Value& root, Lookups& lookups);

}  // namespace kovalt
