#pragma once

// The walks of a key path through a document.

#include "json/document.h"
#include "json/member_finder.h"
#include "json/path/find_object_by_ref.h"
#include "json/path/key_path.h"

namespace kovalt {

/// What the walks through one document share, so that many of them do not scan the same objects and arrays again and
/// again.
struct Lookups {
  MemberFinder members;
  ElementFinder elements;
};

/// Returns the value that `path` names, walked from `root`, or nullptr. A missing member is silent; a selection that
/// finds nothing prints its own messages on standard error. The result is valid until the document changes.
///
/// Before the next walk with the same `lookups`, the caller may replace the result. In the result, and in values that
/// are not inside an array, it may also replace scalars, append elements to arrays, and append members to objects, but
/// not change elements that an array in the result already has. All members are appended with `lookups.members`.
/// Nothing else may change.
Value* resolveExisting(const KeyPath& path, Value& root, Lookups& lookups);

/// As `resolveExisting`, for reads: a missing member is reported on standard error with the whole path, and the caller
/// must not change the result.
const Value* resolveForRead(const KeyPath& path, const Value& root, Lookups& lookups);

}  // namespace kovalt
