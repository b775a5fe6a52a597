#include "document_rows.h"

#include "messages.h"

namespace kovalt::test {

ToolCall added(const std::string& name, const std::string& options, const std::string& document) {
  return ToolCall(name).call(options + " --read ''").printsLine(document);
}

ToolCall changed(const std::string& name, const std::string& before, const std::string& options,
                 const std::string& after) {
  return ToolCall(name).given("f.json", before).call("--addFile f.json " + options + " --read ''").printsLine(after);
}

ToolCall clashing(const std::string& name, const std::string& before, const std::string& options,
                  const std::string& key) {
  return ToolCall(name)
      .given("f.json", before)
      .call("--fileDisplay f.json --addString added v " + options + " --read ''")
      .reports(clash(key))
      .exits(1);
}

ToolCall reading(const std::string& name, const std::string& content, const std::string& path) {
  return ToolCall(name).given("f.json", content).call({"--file", "f.json", "--read", path});
}

}  // namespace kovalt::test
