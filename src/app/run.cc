#include "app/run.h"

#include "actions/edit/merge_value.h"
#include "actions/read/print_read_results.h"
#include "json/document.h"
#include "json/load/load_document.h"
#include "json/write/write_value.h"

namespace kovalt {
namespace {

/// Whether only the reads use the document.
bool onlyReads(const ToolContext& context) {
  return context.editActions.empty() && context.removeActions.empty() && !context.displayResult &&
         !context.readActions.empty();
}

/// Loads what the call looks at. A file that is missing, unreadable or not JSON is treated as an empty object.
void loadOrStartEmpty(const ToolContext& context, Document& document) {
  Projection kept;
  if (onlyReads(context)) {
    for (const auto& action : context.readActions) {
      action->addTo(kept, Projection::kRoot);
    }
  } else {
    kept.addWhole(Projection::kRoot);
  }
  if (context.filePath.empty() || !loadProjected(context.filePath, kept, document, false)) {
    document.SetObject();
  }
}

void applyAdditions(const ToolContext& context, EditedDocument& document) {
  for (const auto& action : context.editActions) {
    if (!applyAtPath(*action, document)) {
      Value chain = buildPathChain(*action, document);
      mergeValue(document.root, chain, document);
    }
  }
}

/// Applies the removals. Returns whether they count as a modification: there are some, and all succeeded.
bool applyRemovals(const ToolContext& context, EditedDocument& document) {
  bool allRemovalsOk = !context.removeActions.empty();
  for (const auto& action : context.removeActions) {
    allRemovalsOk &= action->execute(document);
  }
  return allRemovalsOk;
}

}  // namespace

bool run(const ToolContext& context) {
  Document document;
  loadOrStartEmpty(context, document);
  EditedDocument edited(document);
  applyAdditions(context, edited);
  const bool allRemovalsOk = applyRemovals(context, edited);

  // Any addition at all counts as a modification, even one that failed.
  const bool modified = !context.editActions.empty() || allRemovalsOk;
  const bool saveNeeded = !context.filePath.empty() && modified;
  if (context.displayResult || (context.readActions.empty() && !saveNeeded)) {
    printValue(document);
  }
  const bool saved = !saveNeeded || writeDocument(document, context.filePath);
  printReadResults(context.readActions, document);
  return saved;
}

}  // namespace kovalt
