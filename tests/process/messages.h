#pragma once

// The messages of the program, each with its end of line.

#include <string>

namespace kovalt::test {

/// A member of the key path `path` of a read does not exist.
inline std::string readError(const std::string& path) {
  return "--read error : Path \"" + path + "\" does not exist\n";
}

/// The selection step `step` selects nothing.
inline std::string notFound(const std::string& step) {
  return "Kovalt path not found with refKey=refValue \"" + step + "\"\n";
}

/// The selection step `step` selects nothing, and the search found a value that cannot be compared.
inline std::string notComparable(const std::string& step) {
  return notFound(step) +
         "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
         "refKey must be a bool/number/string/array of numbers/strings.\n";
}

/// An addition of booleans rejects `values`: a value in lower case, or all values of an array, such as `[ yes true ]`.
inline std::string rejected(const std::string& values) {
  return "Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, " + values + " rejected.\n";
}

/// A merge finds two types under the name `key`. The program then exits with status 1.
inline std::string clash(const std::string& key) { return "Incompatible types for key " + key + "\n"; }

inline std::string cannotOpen(const std::string& path) { return "Could not open document: " + path + "\n"; }
inline std::string cannotParse(const std::string& path) { return "Could not parse json file " + path + "\n"; }
inline std::string cannotWrite(const std::string& path) { return "Could not write document: " + path + "\n"; }

/// The messages of the parser go to standard output.
inline std::string invalidArgument(const std::string& argument) { return "Error: invalid argument " + argument + "\n"; }
inline std::string missingArguments(const std::string& option) {
  return "Error: Error: missing argument(s) after " + option + "\n";
}

}  // namespace kovalt::test
