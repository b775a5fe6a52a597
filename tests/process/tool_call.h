#pragma once

// One call of the built program as a row: its files and arguments, and every byte that it must print and write. Does
// not include GoogleTest, so that long tables compile fast.

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace kovalt::test {

/// A file, folder or symbolic link in the working folder of a call.
struct Entry {
  enum class Kind { file, folder, symbolicLink };

  std::string path;
  Kind kind = Kind::file;
  std::string content;  ///< The bytes of a file, or the target of a symbolic link.
  unsigned mode = 0644;
};

/// A row of a table. Everything that a row does not name must be empty, zero or unchanged: standard output and standard
/// error are empty, the exit status is 0, every file keeps its bytes and its mode, and no file appears.
///
/// Expectations are compared byte for byte. An expectation of several lines is a raw literal that looks like the output
/// and begins right after `R"(`: a display ends with an end of line before `)"`, a saved file does not.
class ToolCall {
 public:
  /// `name` says what the row checks, in letters, digits and underscores.
  explicit ToolCall(std::string_view name) : name_(name) {}

  /// Creates a file in the fresh working folder of the call, and the folders on its path.
  ToolCall& given(std::string_view path, std::string_view content, unsigned mode = 0644);
  ToolCall& givenFolder(std::string_view path, unsigned mode = 0755);
  ToolCall& givenSymbolicLink(std::string_view path, std::string_view target);

  /// The arguments, without the program's name, as one text that is split at spaces. An argument in single quotes may
  /// contain spaces or be empty: `-as k ''`.
  ToolCall& call(std::string_view arguments);
  /// The same as a list, for arguments that contain single quotes or are computed.
  ToolCall& call(std::initializer_list<std::string_view> arguments);

  /// Runs the program as an unprivileged user, so that file modes count even if the tests run as root.
  ToolCall& withoutPrivileges();
  /// Starts the program with its standard output closed.
  ToolCall& withClosedOutput();
  /// Starts the program with its standard output on a full device.
  ToolCall& withFullOutput();
  /// Sends both streams to one place, like `2>&1`; `prints` then expects the bytes of both.
  ToolCall& withMergedStreams();

  /// The bytes of standard output.
  ToolCall& prints(std::string_view bytes);
  /// Standard output consists of this line and its end of line.
  ToolCall& printsLine(std::string_view line);
  /// The bytes of standard error; if the call aborts, the bytes at its start. messages.h has the messages.
  ToolCall& reports(std::string_view bytes);
  /// The exit status.
  ToolCall& exits(int status);
  /// The call aborts with SIGABRT, and standard error contains `fragment` after the bytes of `reports`.
  ToolCall& aborts(std::string_view fragment = "");
  /// The bytes of a file that the call creates or changes.
  ToolCall& leaves(std::string_view path, std::string_view content);

  [[nodiscard]] const std::string& name() const { return name_; }

  /// Runs the call in a fresh folder and compares everything that it printed and wrote. Failures are reported to
  /// GoogleTest.
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

/// The rows of one topic. A constant of this type registers its rows as tests, named NAME.ROW.
class Table {
 public:
  using Rows = std::vector<ToolCall> (*)();

  Table(const char* name, Rows makeRows) noexcept;

  [[nodiscard]] const char* name() const { return name_; }
  [[nodiscard]] std::vector<ToolCall> rows() const { return makeRows_(); }

  /// All tables of the test program.
  static std::vector<Table>& all();

 private:
  const char* name_;
  Rows makeRows_;
};

}  // namespace kovalt::test
