#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>

#include "tool_call.h"

namespace kovalt::test {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kUnprivilegedUser = 65534;

/// A fresh folder, which the destructor removes with its content.
class WorkingFolder {
 public:
  WorkingFolder() {
    std::string pattern = (fs::temp_directory_path() / "kovalt-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
      throw std::runtime_error("cannot create a working folder");
    }
    path_ = pattern;
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder() {
    for (const auto& entry : fs::recursive_directory_iterator(path_)) {
      if (!entry.is_symlink() && entry.is_directory()) {
        fs::permissions(entry.path(), fs::perms::owner_all);
      }
    }
    fs::remove_all(path_);
  }

  [[nodiscard]] const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

/// An unnamed file that receives a stream of the program.
class CapturedStream {
 public:
  CapturedStream() : file_(std::tmpfile()) {
    if (file_ == nullptr) {
      throw std::runtime_error("cannot create a file for a stream");
    }
    fcntl(descriptor(), F_SETFL, O_APPEND);
  }
  CapturedStream(const CapturedStream&) = delete;
  CapturedStream& operator=(const CapturedStream&) = delete;
  ~CapturedStream() { std::fclose(file_); }

  [[nodiscard]] int descriptor() const { return fileno(file_); }

  [[nodiscard]] std::string content() const {
    std::string bytes;
    std::rewind(file_);
    char buffer[65536];
    for (std::size_t count = 0; (count = std::fread(buffer, 1, sizeof(buffer), file_)) > 0;) {
      bytes.append(buffer, count);
    }
    return bytes;
  }

 private:
  std::FILE* file_;
};

void writeEntry(const fs::path& folder, const Entry& entry) {
  const fs::path path = folder / entry.path;
  fs::create_directories(path.parent_path());
  switch (entry.kind) {
    case Entry::Kind::folder:
      fs::create_directories(path);
      break;
    case Entry::Kind::symbolicLink:
      fs::create_symlink(entry.content, path);
      return;
    case Entry::Kind::file:
      std::ofstream(path, std::ios::binary) << entry.content;
      break;
  }
  fs::permissions(path, static_cast<fs::perms>(entry.mode));
}

/// The bytes of a file, even if its mode forbids its owner to read it.
std::string readFile(const fs::path& path) {
  const fs::perms mode = fs::status(path).permissions();
  fs::permissions(path, mode | fs::perms::owner_read);
  std::ifstream file(path, std::ios::binary);
  fs::permissions(path, mode);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Everything below a folder, by its relative path.
std::map<std::string, std::string> listFiles(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().lexically_relative(folder).string();
    if (entry.is_symlink()) {
      files[name] = "link to " + fs::read_symlink(entry.path()).string();
    } else if (entry.is_directory()) {
      files[name + "/"] = "";
    } else {
      files[name] = readFile(entry.path());
    }
  }
  return files;
}

/// The modes of all files below a folder.
std::map<std::string, fs::perms> listModes(const fs::path& folder) {
  std::map<std::string, fs::perms> modes;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_symlink() && !entry.is_directory()) {
      modes[entry.path().lexically_relative(folder).string()] = entry.status().permissions();
    }
  }
  return modes;
}

int openOutput(bool closed, bool full, const CapturedStream& stream) {
  if (closed) {
    return -1;
  }
  return full ? open("/dev/full", O_WRONLY) : dup(stream.descriptor());
}

void giveTo(unsigned user, const fs::path& folder) {
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (lchown(entry.path().c_str(), user, user) != 0) {
      throw std::runtime_error("cannot give away " + entry.path().string());
    }
  }
  if (chown(folder.c_str(), user, user) != 0) {
    throw std::runtime_error("cannot give away the working folder");
  }
}

/// The program under test: the one that was built, or the one that KOVALT_TEST_PROGRAM names, such as another build or
/// a script that runs the program under a checker such as Valgrind.
const char* programPath() {
  const char* replacement = std::getenv("KOVALT_TEST_PROGRAM");
  return replacement == nullptr ? KOVALT_PROGRAM : replacement;
}

/// Runs in the child process, and becomes the program.
[[noreturn]] void execute(const std::vector<std::string>& arguments, const fs::path& folder, int output, int errors,
                          bool dropPrivileges) {
  // Opened before the privileges are dropped, because other users may have no access to the build folder. Not closed
  // by exec, because the interpreter of a script opens it again.
  const int program = open(programPath(), O_RDONLY);
  std::vector<char*> argumentVector;
  std::string name = "Kovalt";
  argumentVector.push_back(name.data());
  for (const std::string& argument : arguments) {
    argumentVector.push_back(const_cast<char*>(argument.c_str()));
  }
  argumentVector.push_back(nullptr);

  close(STDIN_FILENO);
  open("/dev/null", O_RDONLY);
  if (output < 0) {
    close(STDOUT_FILENO);
  } else {
    dup2(output, STDOUT_FILENO);
  }
  dup2(errors, STDERR_FILENO);
  if (chdir(folder.c_str()) == 0 &&
      (!dropPrivileges || (setgid(kUnprivilegedUser) == 0 && setuid(kUnprivilegedUser) == 0))) {
    fexecve(program, argumentVector.data(), environ);
  }
  _exit(127);
}

}  // namespace

void ToolCall::check() const {
  const WorkingFolder folder;
  const CapturedStream output;
  const CapturedStream errors;
  // Folders last, because their modes may prevent the creation of files.
  for (const bool folders : {false, true}) {
    for (const Entry& entry : before_) {
      if ((entry.kind == Entry::Kind::folder) == folders) {
        writeEntry(folder.path(), entry);
      }
    }
  }
  std::map<std::string, std::string> expectedFiles = listFiles(folder.path());
  for (const Entry& entry : changed_) {
    expectedFiles[entry.path] = entry.content;
  }
  const std::map<std::string, fs::perms> modesBefore = listModes(folder.path());
  const bool dropPrivileges = unprivileged_ && geteuid() == 0;
  if (dropPrivileges) {
    giveTo(kUnprivilegedUser, folder.path());
  }

  const int outputDescriptor = openOutput(outputPlace_ == Output::closed, outputPlace_ == Output::full, output);
  const int errorDescriptor = merged_ ? output.descriptor() : errors.descriptor();
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    execute(arguments_, folder.path(), outputDescriptor, errorDescriptor, dropPrivileges);
  }
  if (outputDescriptor >= 0) {
    close(outputDescriptor);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);

  EXPECT_EQ(output.content(), output_) << "standard output";
  if (aborts_) {
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT) << "did not abort, wait status " << status;
    EXPECT_EQ(errors.content().substr(0, errors_.size()), errors_) << "start of standard error";
    EXPECT_NE(errors.content().find(abortFragment_, errors_.size()), std::string::npos)
        << "standard error lacks " << abortFragment_ << ":\n"
        << errors.content();
  } else {
    EXPECT_TRUE(WIFEXITED(status)) << "killed by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), status_) << "exit status";
    EXPECT_EQ(errors.content(), errors_) << "standard error";
  }
  EXPECT_EQ(listFiles(folder.path()), expectedFiles) << "files after the call";
  std::map<std::string, fs::perms> modesAfter = listModes(folder.path());
  for (const auto& [path, mode] : modesBefore) {
    EXPECT_EQ(modesAfter[path], mode) << "mode of " << path;
  }
}

}  // namespace kovalt::test
