// Runs a fuzz target on the saved inputs in FOLDER. Fails if an input shows a defect, or if there are no inputs.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/target.h"

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesOf(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    files.push_back(fs::absolute(entry.path()));
  }
  return files;
}

void runOn(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  if (argumentCount != 2) {
    std::cerr << "Usage: " << arguments[0] << " FOLDER\n";
    return EXIT_FAILURE;
  }
  const std::vector<fs::path> files = filesOf(arguments[1]);
  if (files.empty()) {
    std::cerr << "No inputs in " << arguments[1] << '\n';
    return EXIT_FAILURE;
  }
  LLVMFuzzerInitialize(&argumentCount, &arguments);
  for (const fs::path& file : files) {
    // The last printed name is that of the input that shows the defect.
    std::cerr << "Input " << file << std::endl;
    runOn(file);
  }
  return EXIT_SUCCESS;
}
