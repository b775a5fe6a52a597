#pragma once

// The common base of all additions, and how one is executed.

#include <string_view>

#include "actions/edit/edited_document.h"
#include "json/document.h"
#include "json/path/key_path.h"

namespace kovalt {

/// An addition: it sets or changes the value that its key path names.
class EditAction {
 public:
  explicit EditAction(std::string_view keyPath) : keyPath_(keyPath) {}
  EditAction(const EditAction&) = delete;
  EditAction& operator=(const EditAction&) = delete;
  virtual ~EditAction() = default;

  /// Changes `target`, a value of `document` or on its way into it, as the class of the action says. Returns false with
  /// `target` unchanged if the class rejects the value as a whole, after a report on standard error, and for a null
  /// target, silently: a path that leads nowhere may be passed on unchecked. The base changes nothing and returns true.
  virtual bool apply(Value* target, EditedDocument& document) const;

  [[nodiscard]] const KeyPath& keyPath() const { return keyPath_; }

 private:
  KeyPath keyPath_;
};

/// Applies `action` to the value of `document` that its key path names. Returns what `apply` returns, or false without
/// calling it if the document has no such value.
bool applyAtPath(const EditAction& action, EditedDocument& document);

/// Returns the value of `action`, made by one call of `apply` on a fresh null, inside one object for each step of its
/// key path: merged into the document, it adds everything that was missing.
Value buildPathChain(const EditAction& action, EditedDocument& document);

}  // namespace kovalt
