// Control characters inside strings that are long enough for vectorised scanning, which some builds of the JSON library
// offer and which lets some of these characters through.

#include <array>

#include "tool_call.h"

namespace kovalt::test {
namespace {

/// A control character as the last one below the blank are: written as an escape, refused as it is.
struct Control {
  char byte;
  const char* escape;
};

constexpr std::array<Control, 8> kControls = {{{'\x01', "\\u0001"},
                                               {'\x19', "\\u0019"},
                                               {'\x1A', "\\u001A"},
                                               {'\x1B', "\\u001B"},
                                               {'\x1C', "\\u001C"},
                                               {'\x1D', "\\u001D"},
                                               {'\x1E', "\\u001E"},
                                               {'\x1F', "\\u001F"}}};

std::string rowEnd(const Control& control) { return std::string(control.escape).substr(1); }

/// A long text around `middle`.
std::string around(const std::string& middle) { return std::string(40, 'x') + middle + std::string(40, 'x'); }

/// The compact text of an object that holds `text`.
std::string objectOf(const std::string& text) { return R"({"k":")" + text + R"("})"; }

std::vector<ToolCall> writtenRows() {
  std::vector<ToolCall> rows;
  for (const Control& control : kControls) {
    const std::string raw = around(std::string(1, control.byte));
    const std::string escaped = around(control.escape);
    rows.push_back(ToolCall("saved_as_an_escape_" + rowEnd(control))
                       .call({"--file", "f.json", "--addString", "k", raw})
                       .leaves("f.json", "{\n  \"k\": \"" + escaped + "\"\n}"));
    rows.push_back(ToolCall("displayed_as_an_escape_" + rowEnd(control))
                       .call({"--addString", "k", raw})
                       .prints("{\n    \"k\": \"" + escaped + "\"\n}\n"));
    rows.push_back(ToolCall("read_as_an_escape_" + rowEnd(control))
                       .call({"--addString", "k", raw, "--read", "k"})
                       .prints(escaped + "\n"));
  }
  return rows;
}

std::vector<ToolCall> loadedRows() {
  std::vector<ToolCall> rows;
  for (const Control& control : kControls) {
    rows.push_back(ToolCall("refused_as_it_is_" + rowEnd(control))
                       .given("f.json", objectOf(around(std::string(1, control.byte))))
                       .call({"--file", "f.json", "--read", ""})
                       .prints("{}\n")
                       .reports("Could not parse json file f.json\n"));
    rows.push_back(ToolCall("taken_as_an_escape_" + rowEnd(control))
                       .given("f.json", objectOf(around(control.escape)))
                       .call("--file f.json --read k")
                       .prints(around(control.escape) + "\n"));
  }
  return rows;
}

const Table kControlCharactersWritten("ControlCharactersWritten", writtenRows);
const Table kControlCharactersLoaded("ControlCharactersLoaded", loadedRows);

}  // namespace
}  // namespace kovalt::test
