// A whole call, from its arguments to its files, comes to one of the ends that the tool has, and changes no file but
// the one that it works on. An input is a section with one argument a line, and up to two with the files "a" and "b".

#include <algorithm>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/parse_arguments.h"
#include "app/run.h"
#include "fuzz/ends.h"
#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"

namespace kovalt::fuzz {
namespace {

/// Whether a file of this name cannot stand outside of the scratch folder.
bool staysInside(const std::string& name) {
  return name.find('/') == std::string::npos || (name.front() != '/' && name.find("..") == std::string::npos);
}

bool holds(const std::vector<std::string>& arguments, std::initializer_list<const char*> wanted) {
  return std::find_first_of(arguments.begin(), arguments.end(), wanted.begin(), wanted.end()) != arguments.end();
}

bool loadsAsNoObject(const std::string& text) {
  Document document;
  return loadText(text, document) && !document.IsObject();
}

/// Whether a file is missing, was left as it was, or holds a document.
bool isWhole(const std::string& name, const Files& before, const Files& after) {
  const auto file = after.find(name);
  if (file == after.end() || (before.count(name) == 1 && before.at(name) == file->second)) {
    return true;
  }
  Document document;
  return loadText(file->second, document);
}

/// Only a file whose root is no object, or an edit of the root itself, can bring such a value into a merge or removal.
bool mayMeetNoObject(const std::vector<std::string>& arguments, const Files& files) {
  return holds(arguments, {""}) ||
         std::any_of(files.begin(), files.end(), [](const auto& file) { return loadsAsNoObject(file.second); });
}

bool isExplained(End end, const std::vector<std::string>& arguments, const Files& files) {
  switch (end) {
    case End::typeClash:
      return true;
    case End::noObject:
      return mayMeetNoObject(arguments, files);
    case End::skippedStep:
      break;
  }
  return holds(arguments, {"--removeAndClear", "-rmc"});
}

/// Runs a parsed command line. Returns false where it came to an early end, of which `arguments` and `files` show that
/// it is none of the tool's defects.
bool runsThrough(const ToolContext& context, const std::vector<std::string>& arguments, const Files& files) {
  std::optional<End> end;
  bool badNumber = false;
  try {
    run(context);
  } catch (const EarlyEnd& early) {
    end = early.end;
  } catch (const std::invalid_argument&) {
    badNumber = true;
  } catch (const std::out_of_range&) {
    badNumber = true;
  }
  expect(!badNumber || holds(arguments, {"--addNumber", "-an", "--addArrayNumber", "-aan"}),
         "only an addition of numbers ends for a bad number");
  const bool early = end || badNumber;
  expect(!early || readScratchFiles() == files, "a call that ends early leaves every file as it was");
  expect(!end || isExplained(*end, arguments, files), "a call ends early only where it must");
  return !early;
}

void expectOtherFilesUntouched(const Files& before, Files after, const std::string& workFile) {
  for (const auto& [name, content] : before) {
    if (name != workFile) {
      expect(after.count(name) == 1 && after[name] == content, "a call leaves other files as they were");
    }
    after.erase(name);
  }
  after.erase(workFile);
  expect(after.empty(), "a call makes no other file");
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
  expect(isWhole(workFile, files, after), "what a call saves is a document");
  if (context.editActions.empty() && context.removeActions.empty()) {
    expect(after == files, "a call that only reads leaves its file as it was");
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
