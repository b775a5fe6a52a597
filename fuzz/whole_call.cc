// A whole call returns, or exits in a documented way, and changes no file except its work file. An input has a section
// with one argument per line, and up to two with the content of the files "a" and "b".

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/parse_arguments.h"
#include "app/run.h"
#include "fuzz/early_exits.h"
#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"

namespace kovalt::fuzz {
namespace {

/// Whether a file of this name is certainly in the scratch folder.
bool staysInside(const std::string& name) {
  return name.find('/') == std::string::npos || (name.front() != '/' && name.find("..") == std::string::npos);
}

bool containsAny(const std::vector<std::string>& arguments, std::initializer_list<const char*> wanted) {
  return std::find_first_of(arguments.begin(), arguments.end(), wanted.begin(), wanted.end()) != arguments.end();
}

bool loadsAsAnotherType(const std::string& text) {
  Document document;
  return loadText(text, document) && !document.IsObject();
}

/// Whether a file is missing, unchanged or a document.
bool isWhole(const std::string& name, const Files& before, const Files& after) {
  const auto file = after.find(name);
  if (file == after.end() || (before.count(name) == 1 && before.at(name) == file->second)) {
    return true;
  }
  Document document;
  return loadText(file->second, document);
}

/// Whether a merge or removal may work on a value that is not an object: the root of a file, or the result of an edit
/// of the root.
bool mayMeetAnotherType(const std::vector<std::string>& arguments, const Files& files) {
  return containsAny(arguments, {""}) ||
         std::any_of(files.begin(), files.end(), [](const auto& file) { return loadsAsAnotherType(file.second); });
}

bool isExplained(Exit kind, const std::vector<std::string>& arguments, const Files& files) {
  switch (kind) {
    case Exit::typeClash:
      return true;
    case Exit::notAnObject:
      return mayMeetAnotherType(arguments, files);
    case Exit::skippedStep:
      break;
  }
  return containsAny(arguments, {"--removeAndClear", "-rmc"});
}

/// Runs a parsed command line. Returns false if it exited early, which `arguments` and `files` must explain.
bool runsThrough(const ToolContext& context, const std::vector<std::string>& arguments, const Files& files) {
  std::optional<Exit> earlyExit;
  bool badNumber = false;
  try {
    run(context);
  } catch (const EarlyExit& early) {
    earlyExit = early.kind;
  } catch (const std::invalid_argument&) {
    badNumber = true;
  } catch (const std::out_of_range&) {
    badNumber = true;
  }
  expect(!badNumber || containsAny(arguments, {"--addNumber", "-an", "--addArrayNumber", "-aan"}),
         "only an addition of numbers aborts for a bad number");
  const bool early = earlyExit || badNumber;
  expect(!early || readScratchFiles() == files, "a call that exits early changes no file");
  expect(!earlyExit || isExplained(*earlyExit, arguments, files), "a call exits early only in documented cases");
  return !early;
}

void expectOtherFilesUntouched(const Files& before, Files after, const std::string& workFile) {
  for (const auto& [name, content] : before) {
    if (name != workFile) {
      expect(after.count(name) == 1 && after[name] == content, "a call changes no other file");
    }
    after.erase(name);
  }
  after.erase(workFile);
  expect(after.empty(), "a call creates no other file");
}

void tryCall(const std::vector<std::string>& arguments, const Files& files) {
  std::vector<const char*> pointers = {"Kovalt"};
  for (const std::string& argument : arguments) {
    pointers.push_back(argument.c_str());
  }
  ToolContext context;
  const bool parsed = parseArguments(context, static_cast<int>(pointers.size()), pointers.data());
  expect(readScratchFiles() == files, "parsing touches no file");
  if (!parsed || !runsThrough(context, arguments, files)) {
    return;
  }
  const Files after = readScratchFiles();
  const std::string workFile = std::filesystem::path(context.filePath).lexically_normal();
  expectOtherFilesUntouched(files, after, workFile);
  expect(isWhole(workFile, files, after), "a saved file is a document");
  if (context.editActions.empty() && context.removeActions.empty()) {
    expect(after == files, "a call that only reads does not change its file");
  }
}

void tryInput(std::string input) {
  std::vector<std::string> arguments = linesOf(takeUpTo(kSectionEnd, input));
  for (std::string& argument : arguments) {
    argument = argument.substr(0, argument.find('\0'));
    if (!staysInside(argument)) {
      return;
    }
  }
  Files files;
  for (const char* name : {"a", "b"}) {
    if (!input.empty()) {
      files[name] = takeUpTo(kSectionEnd, input);
    }
  }
  enterScratchFolder();
  writeScratchFiles(files);
  tryCall(arguments, files);
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
