#include "example_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kovalt::test {

std::string exampleFile(const std::string& name) {
  const std::string path = std::string(KOVALT_EXAMPLES_DIR) + "/" + name;
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error("cannot read the example " + path);
  }
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace kovalt::test
