#pragma once

#include <memory>
#include <string>
#include <vector>

#include "actions/edit/edit_action.h"
#include "actions/edit/remove_action.h"
#include "actions/read/read_action.h"

namespace kovalt {

/// The parsed command line of one call. It owns its actions, each list in command-line order.
struct ToolContext {
  std::vector<std::unique_ptr<EditAction>> editActions;
  std::vector<std::unique_ptr<RemoveAction>> removeActions;
  std::vector<std::unique_ptr<ReadAction>> readActions;
  std::string filePath;        ///< The file to load and save; empty for none.
  bool displayResult = false;  ///< Whether to display the document even if the call saves or reads.
};

}  // namespace kovalt
