#pragma once

// One call of the built program, as a row: what it is given and every byte that it must leave. Without GoogleTest, so
// that long tables compile fast.

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace kovalt::test {

/// What stands under one name of the working folder of a call.
struct Entry {
  enum class Kind { file, directory, symbolicLink };

  std::string path;
  Kind kind = Kind::file;
  std::string content;  ///< A file's bytes, or the target of a symbolic link.
  unsigned mode = 0644;
};

/// A row of a table. What a row does not name is expected to be empty, zero or unchanged: standard output and
/// standard error are empty, the exit status is 0, every file is as it was before and no other file has appeared.
class ToolCall {
 public:
  /// `name` tells the idea of the row, in letters, digits and underscores.
  explicit ToolCall(std::string_view name) : name_(name) {}

  /// Puts a file into the fresh working folder of the call.
  ToolCall& given(std::string_view path, std::string_view content, unsigned mode = 0644);
  ToolCall& givenDirectory(std::string_view path, unsigned mode = 0755);
  ToolCall& givenSymbolicLink(std::string_view path, std::string_view target);

  /// The arguments of the call, without the program's own name, as one text that is cut at blanks.
  ToolCall& call(std::string_view arguments);
  /// The same as a list, for arguments that hold blanks, are empty or are not known as a literal.
  ToolCall& call(std::initializer_list<std::string_view> arguments);

  /// Runs the call as a user without privileges, so that file modes count even where the tests run as root.
  ToolCall& withoutPrivileges();
  /// Starts the program with its standard output closed.
  ToolCall& withClosedOutput();
  /// Starts the program with its standard output on a full device.
  ToolCall& withFullOutput();
  /// Sends both streams to one place, as `2>&1` does; `prints` then holds the bytes of both.
  ToolCall& withMergedStreams();

  /// The exact bytes of standard output.
  ToolCall& prints(std::string_view bytes);
  /// The exact bytes of standard error; with `aborts`, the bytes with which it begins.
  ToolCall& reports(std::string_view bytes);
  /// The exit status.
  ToolCall& exits(int status);
  /// The call ends by SIGABRT, and after the bytes of `reports` standard error holds `fragment`.
  ToolCall& aborts(std::string_view fragment = "");
  /// The content of a file after the call, made or changed by it.
  ToolCall& leaves(std::string_view path, std::string_view content);

  [[nodiscard]] const std::string& name() const { return name_; }

  /// Runs the call in a fresh folder and compares all that it left, as a GoogleTest test does.
  void check() const;

 private:
  enum class Output { captured, closed, full };

  std::string name_;
  std::vector<std::string> arguments_;
  std::vector<Entry> before_;
  std::vector<Entry> changed_;
  std::string output_;
  std::string errors_;
  std::string abortFragment_;
  Output outputPlace_ = Output::captured;
  int status_ = 0;
  bool aborts_ = false;
  bool merged_ = false;
  bool unprivileged_ = false;
};

/// The rows of one topic. A constant of this type makes its rows tests, listed as NAME.ROW.
class Table {
 public:
  using Rows = std::vector<ToolCall> (*)();

  Table(const char* name, Rows makeRows) noexcept;

  [[nodiscard]] const char* name() const { return name_; }
  [[nodiscard]] std::vector<ToolCall> rows() const { return makeRows_(); }

  /// All tables of the program.
  static std::vector<Table>& all();

 private:
  const char* name_;
  Rows makeRows_;
};

}  // namespace kovalt::test
