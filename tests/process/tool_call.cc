#include "tool_call.h"

#include <algorithm>

namespace kovalt::test {

ToolCall& ToolCall::given(std::string_view path, std::string_view content, unsigned mode) {
  before_.push_back({std::string(path), Entry::Kind::file, std::string(content), mode});
  return *this;
}

ToolCall& ToolCall::givenFolder(std::string_view path, unsigned mode) {
  before_.push_back({std::string(path), Entry::Kind::folder, "", mode});
  return *this;
}

ToolCall& ToolCall::givenSymbolicLink(std::string_view path, std::string_view target) {
  before_.push_back({std::string(path), Entry::Kind::symbolicLink, std::string(target), 0});
  return *this;
}

ToolCall& ToolCall::call(std::string_view arguments) {
  arguments_.clear();
  while (!arguments.empty()) {
    const bool quoted = arguments.front() == '\'';
    arguments.remove_prefix(quoted ? 1 : 0);
    const std::size_t end = std::min(arguments.find(quoted ? '\'' : ' '), arguments.size());
    arguments_.emplace_back(arguments.substr(0, end));
    // The space after an argument follows its closing quote.
    arguments.remove_prefix(std::min(end + (quoted ? 2 : 1), arguments.size()));
  }
  return *this;
}

ToolCall& ToolCall::call(std::initializer_list<std::string_view> arguments) {
  arguments_.assign(arguments.begin(), arguments.end());
  return *this;
}

ToolCall& ToolCall::withoutPrivileges() {
  unprivileged_ = true;
  return *this;
}

ToolCall& ToolCall::withClosedOutput() {
  outputPlace_ = Output::closed;
  return *this;
}

ToolCall& ToolCall::withFullOutput() {
  outputPlace_ = Output::full;
  return *this;
}

ToolCall& ToolCall::withMergedStreams() {
  merged_ = true;
  return *this;
}

ToolCall& ToolCall::prints(std::string_view bytes) {
  output_ = bytes;
  return *this;
}

ToolCall& ToolCall::printsLine(std::string_view line) {
  output_ = std::string(line) + '\n';
  return *this;
}

ToolCall& ToolCall::reports(std::string_view bytes) {
  errors_ = bytes;
  return *this;
}

ToolCall& ToolCall::exits(int status) {
  status_ = status;
  return *this;
}

ToolCall& ToolCall::aborts(std::string_view fragment) {
  aborts_ = true;
  abortFragment_ = fragment;
  return *this;
}

ToolCall& ToolCall::leaves(std::string_view path, std::string_view content) {
  changed_.push_back({std::string(path), Entry::Kind::file, std::string(content)});
  return *this;
}

Table::Table(const char* name, Rows makeRows) noexcept : name_(name), makeRows_(makeRows) { all().push_back(*this); }

std::vector<Table>& Table::all() {
  static std::vector<Table> tables;
  return tables;
}

}  // namespace kovalt::test
