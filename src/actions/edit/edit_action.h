#pragma once

// The common base of all additions, and how one is carried out.

#include <string_view>

#include "json/document.h"
#include "json/key_path.h"
#include "json/resolve_key_path.h"

namespace kovalt {

/// An addition: it writes one value at the place that its key path names.
class EditAction {
 public:
  explicit EditAction(std::string_view keyPath);
  EditAction(const EditAction&) = delete;
  EditAction& operator=(const EditAction&) = delete;
  virtual ~EditAction();

  /// Writes the action's value into `target`, whatever that held, allocating from `allocator`, the pool of the target's
  /// document, and finding members with `members`. Returns false, having changed nothing, for a value that is not
  /// accepted, after saying so on standard error, and for a null target, silently: a path that leads nowhere is no
  /// fault of the action's, and may be handed on without a look. The base itself has no value: it changes nothing and
  /// returns true.
  virtual bool apply(Value* target, Allocator& allocator, MemberFinder& members) const;

  [[nodiscard]] const KeyPath& keyPath() const { return keyPath_; }

 private:
  KeyPath keyPath_;
};

/// Applies `action` to the value of `document` that its key path names. Returns what `apply` returned, or false without
/// calling it where the document has no such value.
bool applyAtPath(const EditAction& action, Document& document, Lookups& lookups);

/// The value of `action`, made by one call of `apply` on a fresh null, inside one object for each step of its key path:
/// merged into a document, it adds all that was missing.
Value buildPathChain(const EditAction& action, Allocator& allocator, MemberFinder& members);

}  // namespace kovalt
