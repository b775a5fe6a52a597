#pragma once

// Files of the project, as input of rows.

#include <string>

namespace kovalt::test {

/// The bytes of the file `path` of the project, or of the copy of the project that KOVALT_TEST_PROJECT names. Throws
/// std::runtime_error with the name of the file if it cannot be read.
std::string projectFile(const std::string& path);

/// The bytes of the example file `name`. Throws as projectFile does.
std::string exampleFile(const std::string& name);

}  // namespace kovalt::test
