#include "actions/read/print_read_results.h"

#include <string>

#include "json/print_value.h"
#include "json/standard_streams.h"
#include "json/text_value.h"

namespace kovalt {
namespace {

void printSingle(const ReadAction& action, const Document& document) {
  Lookups lookups;
  std::string text;
  if (action.execute(document, text, lookups)) {
    printLine(text);
  }
}

void printGathered(const std::vector<std::unique_ptr<ReadAction>>& actions, Document& document) {
  Allocator& allocator = document.GetAllocator();
  Lookups lookups;
  Value results(rapidjson::kObjectType);
  for (const auto& action : actions) {
    std::string text;
    if (action->execute(document, text, lookups)) {
      // A path that is read twice makes two members.
      results.AddMember(copyText(action->text(), allocator), copyText(text, allocator), allocator);
    }
  }
  printValue(results);
}

}  // namespace

bool printReadResults(const std::vector<std::unique_ptr<ReadAction>>& actions, Document& document) {
  if (actions.empty()) {
    return false;
  }
  if (actions.size() == 1) {
    printSingle(*actions.front(), document);
  } else {
    printGathered(actions, document);
  }
  return true;
}

}  // namespace kovalt
