// A call with many options prints, saves and exits like a plain call, which applies the options one by one to plain
// lists. An input has a section with one argument per line, and up to two with the content of the files "a", the work
// file, and "b", the file to merge.
//
// In an input, <N:text> means N copies of the text, separated by line feeds (arguments) or commas (files), in which "#"
// is the number of the copy, from 0. <N%M:text> uses that number modulo M. A fuzzer rarely writes inputs so large that
// the lookups change their method.

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "app/parse_arguments.h"
#include "app/run.h"
#include "fuzz/input.h"
#include "fuzz/plain_call.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"
#include "support/capture.h"

namespace kovalt::fuzz {
namespace {

constexpr std::size_t kMostRepetitions = 200;
constexpr std::size_t kLongestInput = 65536;

std::string repeated(std::string text, const std::string& separator) {
  std::string numbers = takeUpTo(":", text);
  const std::size_t count = numberIn(takeUpTo("%", numbers), kMostRepetitions);
  const std::size_t modulus = std::max<std::size_t>(1, numbers.empty() ? count : numberIn(numbers, kMostRepetitions));
  std::string all;
  for (std::size_t i = 0; i < count; ++i) {
    all += i == 0 ? "" : separator;
    for (const char byte : text) {
      all += byte == '#' ? std::to_string(i % modulus) : std::string(1, byte);
    }
  }
  return all;
}

std::string expanded(std::string text, const std::string& separator) {
  std::string all;
  while (!text.empty() && all.size() < kLongestInput) {
    all += takeUpTo("<", text);
    all += repeated(takeUpTo(">", text), separator);
  }
  return all;
}

std::optional<Exit> exitOf(const ToolContext& context) {
  try {
    run(context);
  } catch (const EarlyExit& early) {
    return early.kind;
  }
  return std::nullopt;
}

bool takesValue(const std::string& name) { return name == "-as" || name == "-an" || name == "-ab" || name == "-afat"; }

bool isPrintedNumber(const std::string& text) {
  return text.size() < 10 && std::to_string(std::strtol(text.c_str(), nullptr, 10)) == text;
}

/// Returns the options of a call, or nothing if the plain call does not support one of them.
std::vector<PlainOption> optionsIn(const std::vector<std::string>& arguments) {
  std::vector<PlainOption> options;
  for (std::size_t i = 0; i < arguments.size();) {
    const std::string& name = arguments[i];
    const bool known = takesValue(name) || name == "-ao" || name == "-rm" || name == "-rmc" || name == "-r";
    const std::size_t length = takesValue(name) ? 3 : 2;
    if (!known || i + length > arguments.size()) {
      return {};
    }
    options.push_back({name, arguments[i + 1], takesValue(name) ? arguments[i + 2] : ""});
    if (name == "-afat") {
      options.back().value = "b";
    }
    if (name == "-an" && !isPrintedNumber(options.back().value)) {
      return {};
    }
    i += length;
  }
  return options;
}

/// Parses the command line of these options. Returns false if the result is not exactly these options.
bool parses(const std::vector<PlainOption>& options, ToolContext& context) {
  std::vector<const char*> arguments = {"Kovalt", "-f", "a"};
  for (const PlainOption& option : options) {
    arguments.push_back(option.name.c_str());
    arguments.push_back(option.keyPath.c_str());
    if (takesValue(option.name)) {
      arguments.push_back(option.value.c_str());
    }
  }
  const bool parsed = parseArguments(context, static_cast<int>(arguments.size()), arguments.data());
  return parsed &&
         context.editActions.size() + context.removeActions.size() + context.readActions.size() == options.size();
}

void tryCall(const ToolContext& context, const Files& files, const PlainCall& expected) {
  writeScratchFiles(files);
  std::optional<Exit> earlyExit;
  const auto [output, errors] = test::capture([&] { earlyExit = exitOf(context); });
  expect(earlyExit == expected.earlyExit, "many options exit early like the plain call");
  expect(errors == expected.errors, "many options report the same as the plain call");
  expect(earlyExit || output == expected.output, "many options print the same as the plain call");
  Files after = files;
  if (!earlyExit && expected.modified) {
    after["a"] = plainText(expected.document, 2);
  }
  expect(readScratchFiles() == after, "many options save the same as the plain call");
}

void tryInput(std::string input) {
  std::vector<std::string> arguments = linesOf(expanded(takeUpTo(kSectionEnd, input), "\n"));
  for (std::string& argument : arguments) {
    argument = argument.substr(0, argument.find('\0'));
  }
  const std::vector<PlainOption> options = optionsIn(arguments);
  Files files;
  files["a"] = expanded(takeUpTo(kSectionEnd, input), ",");
  files["b"] = expanded(takeUpTo(kSectionEnd, input), ",");
  Document document;
  Document merged;
  ToolContext context;
  if (options.empty() || !loadText(files["a"], document) || !loadText(files["b"], merged) ||
      !parses(options, context)) {
    return;
  }
  tryCall(context, files, callPlainly(options, plainValue(document), plainValue(merged)));
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryInput(kovalt::fuzz::inputText(data, size));
  return 0;
}
