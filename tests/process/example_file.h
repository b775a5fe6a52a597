#pragma once

// The example files of the project, as input of rows.

#include <string>

namespace kovalt::test {

/// The bytes of the example file `name`. Throws std::runtime_error, naming the file, when it cannot be read.
std::string exampleFile(const std::string& name);

}  // namespace kovalt::test
