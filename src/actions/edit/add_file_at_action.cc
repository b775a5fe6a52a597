#include "actions/edit/add_file_at_action.h"

#include "actions/edit/merge_value.h"
#include "json/load/load_document.h"

namespace kovalt {

bool AddFileAtAction::apply(Value* target, EditedDocument& document) const {
  if (target == nullptr) {
    return false;
  }
  // Built in the pool of the target, so that merging moves its values instead of copying them.
  Document file(&document.allocator);
  file.SetObject();
  loadDocument(filePath_, file, true);
  if (!target->IsObject()) {
    target->SetObject();
  }
  mergeValue(*target, file, document);
  return true;
}

}  // namespace kovalt
