#include "fuzz/scratch_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/property.h"
#include "json/load/load_document.h"
#include "json/write/write_value.h"

namespace kovalt::fuzz {
namespace {

namespace fs = std::filesystem;

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string path = fs::temp_directory_path() / "kovalt-fuzz-XXXXXX";
    expect(mkdtemp(path.data()) != nullptr, "a scratch folder can be created");
    path_ = path;
    fs::current_path(path_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

 private:
  fs::path path_;
};

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

}  // namespace

void enterScratchFolder() { static const ScratchFolder kFolder; }

Files readScratchFiles() {
  Files files;
  for (const fs::directory_entry& entry : fs::directory_iterator(".")) {
    const std::string name = entry.path().filename();
    files[name] = readFile(name);
  }
  return files;
}

void writeScratchFiles(const Files& files) {
  for (const fs::directory_entry& entry : fs::directory_iterator(".")) {
    fs::remove(entry.path());
  }
  for (const auto& [name, content] : files) {
    writeFile(name, content);
  }
}

bool loadText(const std::string& text, Document& document) {
  enterScratchFolder();
  writeFile("loaded", text);
  return loadDocument("loaded", document, true);
}

std::string savedText(const Document& document) {
  enterScratchFolder();
  expect(writeDocument(document, "saved"), "a document can be saved");
  return readFile("saved");
}

}  // namespace kovalt::fuzz
