#pragma once

// Rows that look at a whole document on one line.

#include <string>

#include "tool_call.h"

namespace kovalt::test {

/// `options` turn the empty document into `document`.
ToolCall added(const std::string& name, const std::string& options, const std::string& document);

/// `options` turn the document `before`, whose root is an object, into `after`. No file is saved.
ToolCall changed(const std::string& name, const std::string& before, const std::string& options,
                 const std::string& after);

/// `options` merge two types under the name `key`. f.json, which contains `before`, is neither displayed nor saved, and
/// nothing is read.
ToolCall clashing(const std::string& name, const std::string& before, const std::string& options,
                  const std::string& key);

/// A read of `path` in a file that contains `content`.
ToolCall reading(const std::string& name, const std::string& content, const std::string& path);

}  // namespace kovalt::test
