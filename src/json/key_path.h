#pragma once

// A key path names a place in a document: member names and selections, cut at ".".

#include <string>
#include <string_view>
#include <vector>

namespace kovalt {

/// The parsed form of a key-path argument. Every action owns one: reads and removals are key paths that can be carried
/// out, while an addition has one beside its value. A step is kept as it was written, because only the walks take a
/// step with "=" for a selection; removals and new members take it as a name.
class KeyPath {
 public:
  /// Between the steps of every key path of the command line.
  static constexpr std::string_view kStepSeparator = ".";

  /// Cuts `text` at every occurrence of `separator`, which must not be empty. Empty steps are kept; only an empty text
  /// has no steps at all, and then names the root of the document.
  explicit KeyPath(std::string_view text, std::string_view separator = kStepSeparator);
  KeyPath(const KeyPath&) = delete;
  KeyPath& operator=(const KeyPath&) = delete;
  virtual ~KeyPath();

  /// The steps in order, byte for byte as they were written.
  [[nodiscard]] const std::vector<std::string>& steps() const { return steps_; }

  /// The steps joined with ".", whatever separator they were cut at: the argument as the user wrote it.
  [[nodiscard]] std::string text() const;

 private:
  std::vector<std::string> steps_;
};

}  // namespace kovalt
