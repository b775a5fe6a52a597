#pragma once

// Key paths, which name a place in a document: member names and selections, separated by ".".

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kovalt {

/// The two parts of a selection step, `refKey=refValue`. Either may be empty.
struct SelectionStep {
  std::string_view refKey;
  std::string_view refValue;
};

/// Splits `step` at its first "=". Used wherever steps can select: in the walks of additions and reads, the projection
/// that mirrors them, and the completion. Returns nothing for a member step, which has no "=". The parts refer to
/// `step`.
std::optional<SelectionStep> asSelectionStep(std::string_view step);

/// The parsed form of a key-path argument. Reads and removals are key paths that can be executed; an addition has one
/// beside its value. A step is kept as it was written, because removals and new members take "=" as part of a name.
class KeyPath {
 public:
  /// Separates the steps of every key path of the command line.
  static constexpr std::string_view kStepSeparator = ".";

  /// Splits `text` at every occurrence of `separator`, which must not be empty. Empty steps are kept; only an empty
  /// text has no steps at all, and names the root of the document.
  explicit KeyPath(std::string_view text, std::string_view separator = kStepSeparator);
  KeyPath(const KeyPath&) = delete;
  KeyPath& operator=(const KeyPath&) = delete;
  virtual ~KeyPath() = default;

  /// The steps in order, byte for byte as they were written.
  [[nodiscard]] const std::vector<std::string>& steps() const { return steps_; }

  /// The steps joined with ".", whatever separator they were split at. The command line has no other, so for its key
  /// paths this is the argument as the user wrote it.
  [[nodiscard]] std::string text() const;

 private:
  std::vector<std::string> steps_;
};

}  // namespace kovalt
