#include "json/path/key_path.h"

namespace kovalt {

std::optional<SelectionStep> asSelectionStep(std::string_view step) {
  const std::size_t equals = step.find('=');
  if (equals == std::string_view::npos) {
    return std::nullopt;
  }
  return SelectionStep{step.substr(0, equals), step.substr(equals + 1)};
}

KeyPath::KeyPath(std::string_view text, std::string_view separator) {
  if (text.empty()) {
    return;
  }
  std::size_t start = 0;
  for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator, start)) {
    steps_.emplace_back(text.substr(start, end - start));
    start = end + separator.size();
  }
  steps_.emplace_back(text.substr(start));
}

std::string KeyPath::text() const {
  std::string joined;
  for (const std::string& step : steps_) {
    if (&step != &steps_.front()) {
      joined += kStepSeparator;
    }
    joined += step;
  }
  return joined;
}

}  // namespace kovalt
