#pragma once

// One call of the built program, as a row: what it is given and every byte that it must leave.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace kovalt::test {

/// What stands under one name of the working folder of a call.
struct Entry {
  enum class Kind { file, directory, symbolicLink };

  Kind kind = Kind::file;
  std::string content;  ///< A file's bytes, or the target of a symbolic link.
  unsigned mode = 0644;
};

/// A row of a case table. What a row does not name is expected to be empty, zero or unchanged: standard output and
/// standard error are empty, the exit status is 0, every file is as it was before and no other file has appeared.
class Case {
 public:
  /// `name` tells the idea of the row, in letters, digits and underscores.
  explicit Case(std::string name) : name_(std::move(name)) {}

  /// Puts a file into the fresh working folder of the call.
  Case& given(const std::string& path, std::string content, unsigned mode = 0644);
  Case& givenDirectory(const std::string& path, unsigned mode = 0755);
  Case& givenSymbolicLink(const std::string& path, std::string target);

  /// The arguments of the call, without the program's own name.
  Case& call(std::vector<std::string> arguments);

  /// Runs the call as a user without privileges, so that file modes count even where the tests run as root.
  Case& withoutPrivileges();
  /// Starts the program with its standard output closed.
  Case& withClosedOutput();
  /// Starts the program with its standard output on a full device.
  Case& withFullOutput();
  /// Sends both streams to one place, as `2>&1` does; `prints` then holds the bytes of both.
  Case& withMergedStreams();

  /// The exact bytes of standard output.
  Case& prints(std::string bytes);
  /// The exact bytes of standard error; with `aborts`, the bytes with which it begins.
  Case& reports(std::string bytes);
  /// The exit status.
  Case& exits(int status);
  /// The call ends by SIGABRT, and after the bytes of `reports` standard error holds `fragment`.
  Case& aborts(std::string fragment = "");
  /// The content of a file after the call, made or changed by it.
  Case& leaves(const std::string& path, std::string content);

  [[nodiscard]] const std::string& name() const { return name_; }

  /// Runs the call in a fresh folder and compares all that it left.
  void check() const;

 private:
  enum class Output { captured, closed, full };

  std::string name_;
  std::vector<std::string> arguments_;
  std::map<std::string, Entry> before_;
  std::map<std::string, std::string> changed_;
  std::string output_;
  std::string errors_;
  std::string abortFragment_;
  Output outputPlace_ = Output::captured;
  int status_ = 0;
  bool aborts_ = false;
  bool merged_ = false;
  bool unprivileged_ = false;
};

/// Shows the row's name where GoogleTest would print its bytes.
void PrintTo(const Case& row, std::ostream* out);

/// The suite that runs rows; a table joins it with INSTANTIATE_TEST_SUITE_P(Topic, ToolCall, ValuesIn(rows()),
/// rowName).
class ToolCall : public testing::TestWithParam<Case> {};

/// The name under which GoogleTest lists a row.
std::string rowName(const testing::TestParamInfo<Case>& info);

}  // namespace kovalt::test
