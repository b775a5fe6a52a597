#pragma once

#include "json/document.h"
#include "json/path/resolve_key_path.h"

namespace kovalt {

/// The document that the edits of a call change, with the pool of its values and the lookups that the edits share. The
/// lookups stay correct: additions change the document only as `resolveExisting` permits; removals come later and use
/// only `lookups.members`; reads have lookups of their own.
struct EditedDocument {
  /// `document` must outlive this object.
  explicit EditedDocument(Document& document) : root(document), allocator(document.GetAllocator()) {}

  Value& root;
  Allocator& allocator;
  Lookups lookups;
};

}  // namespace kovalt
