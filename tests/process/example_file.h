#pragma once

// Files of the project, as input of rows.

#include <string>

namespace kovalt::test {

/// The bytes of the file `path` of the project, or of the copy that KOVALT_TEST_PROJECT names in its place. Throws
/// std::runtime_error, naming the file, when it cannot be read.
std::string projectFile(const std::string& path);

/// The bytes of the example file `name`. Throws as projectFile does.
std::string exampleFile(const std::string& name);

}  // namespace kovalt::test
