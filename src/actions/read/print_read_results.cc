#include "actions/read/print_read_results.h"

#include <string>

#include "json/standard_streams.h"
#include "json/write/write_value.h"

namespace kovalt {

bool printReadResults(const std::vector<std::unique_ptr<ReadAction>>& actions, Document& document) {
  Allocator& allocator = document.GetAllocator();
  Lookups lookups;
  Value results(rapidjson::kObjectType);
  for (const auto& action : actions) {
    std::string text;
    if (!action->execute(document, text, lookups)) {
      continue;
    }
    if (actions.size() == 1) {
      printLine(text);
    } else {
      // A path that is read twice has two members.
      results.AddMember(copyText(action->text(), allocator), copyText(text, allocator), allocator);
    }
  }
  if (actions.size() > 1) {
    printValue(results);
  }
  return !actions.empty();
}

}  // namespace kovalt
