#include "app/run.h"

#include "actions/edit/merge_value.h"
#include "actions/read/print_read_results.h"
#include "json/document.h"
#include "json/load_document.h"
#include "json/print_value.h"
#include "json/write_document.h"

namespace kovalt {
namespace {

/// Whether nothing but the reads can look at the document.
bool onlyReads(const ToolContext& context) {
  return context.editActions.empty() && context.removeActions.empty() && !context.displayResult &&
         !context.readActions.empty();
}

bool load(const ToolContext& context, Document& document) {
  return onlyReads(context) ? loadProjected(context.filePath, context.projection, document)
                            : loadDocument(context.filePath, document, false);
}

/// A file that is missing, unreadable or no JSON counts as an empty object.
void loadOrStartEmpty(const ToolContext& context, Document& document) {
  if (context.filePath.empty() || !load(context, document)) {
    document.SetObject();
  }
}

void applyEdits(const ToolContext& context, Document& document) {
  Lookups lookups;
  for (const auto& action : context.editActions) {
    if (!applyAtPath(*action, document, lookups)) {
      Value chain = buildPathChain(*action, document.GetAllocator(), lookups.members);
      mergeValue(document, chain, document.GetAllocator(), lookups.members);
    }
  }
}

/// Whether there were removals and all of them succeeded: only then have they modified the document.
bool applyRemovals(const ToolContext& context, Document& document) {
  MemberFinder members;
  bool allRemovalsOk = !context.removeActions.empty();
  for (const auto& action : context.removeActions) {
    allRemovalsOk &= action->execute(document, members);
  }
  return allRemovalsOk;
}

}  // namespace

bool run(const ToolContext& context) {
  Document document;
  loadOrStartEmpty(context, document);
  applyEdits(context, document);
  const bool allRemovalsOk = applyRemovals(context, document);

  // Any edit at all counts as a modification, even one that failed.
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
