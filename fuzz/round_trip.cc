// Every document that loads can be written in each format and loads again as the same document.

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "fuzz/input.h"
#include "fuzz/property.h"
#include "fuzz/scratch_folder.h"
#include "fuzz/target.h"
#include "json/write/write_value.h"

namespace kovalt::fuzz {
namespace {

/// RapidJSON converts a long decimal fraction to a double that is up to this many steps from the nearest one.
constexpr double kSteps = 8;

bool sameNumber(const Value& left, const Value& right) {
  if (!left.IsDouble() || !right.IsDouble()) {
    return left.IsDouble() == right.IsDouble() && left == right;
  }
  const double a = left.GetDouble();
  const double b = right.GetDouble();
  const double step = std::nextafter(std::fabs(a), std::numeric_limits<double>::infinity()) - std::fabs(a);
  return std::fabs(a - b) <= kSteps * step && std::signbit(a) == std::signbit(b);
}

bool equalExceptLastDigits(const Value& left, const Value& right);

bool sameElements(const Value& left, const Value& right) {
  if (left.Size() != right.Size()) {
    return false;
  }
  for (rapidjson::SizeType i = 0; i < left.Size(); ++i) {
    if (!equalExceptLastDigits(left[i], right[i])) {
      return false;
    }
  }
  return true;
}

bool sameMembers(const Value& left, const Value& right) {
  if (left.MemberCount() != right.MemberCount()) {
    return false;
  }
  for (auto a = left.MemberBegin(), b = right.MemberBegin(); a != left.MemberEnd(); ++a, ++b) {
    if (a->name != b->name || !equalExceptLastDigits(a->value, b->value)) {
      return false;
    }
  }
  return true;
}

/// Compares members in order, so that duplicate names are compared too.
bool equalExceptLastDigits(const Value& left, const Value& right) {
  if (left.GetType() != right.GetType()) {
    return false;
  }
  if (left.IsObject()) {
    return sameMembers(left, right);
  }
  if (left.IsArray()) {
    return sameElements(left, right);
  }
  return left.IsNumber() ? sameNumber(left, right) : left == right;
}

bool containsDouble(const Value& value) {
  if (value.IsObject()) {
    for (const auto& member : value.GetObject()) {
      if (containsDouble(member.value)) {
        return true;
      }
    }
  } else if (value.IsArray()) {
    for (const Value& element : value.GetArray()) {
      if (containsDouble(element)) {
        return true;
      }
    }
  }
  return value.IsDouble();
}

/// Removes the whitespace outside the strings of a document.
std::string withoutWhitespace(const std::string& text) {
  std::string tight;
  bool inString = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (inString && text[i] == '\\') {
      tight += text[i++];
    } else if (text[i] == '"') {
      inString = !inString;
    } else if (!inString && (text[i] == ' ' || text[i] == '\n')) {
      continue;
    }
    tight += text[i];
  }
  return tight;
}

/// Halves the indentation of each line.
std::string withHalfIndentation(const std::string& text) {
  std::string halved;
  for (const std::string& line : linesOf(text)) {
    const std::size_t indentation = std::min(line.find_first_not_of(' '), line.size());
    expect(indentation % 4 == 0, "a display is indented by four spaces per level");
    halved += line.substr(indentation / 2) + '\n';
  }
  halved.pop_back();
  return halved;
}

void tryText(const std::string& text) {
  Document document;
  if (!loadText(text, document)) {
    expect(document.IsNull(), "a failed load leaves the document unchanged");
    return;
  }
  const std::string compact = valueToText(document, false);
  const std::string pretty = valueToText(document, true);
  const std::string saved = savedText(document);
  expect(withoutWhitespace(pretty) == compact, "the pretty text is the compact one with whitespace");
  expect(withHalfIndentation(pretty) == saved, "a saved file is the pretty text with half its indentation");
  Document fromCompact;
  Document fromPretty;
  Document fromFile;
  expect(loadText(compact, fromCompact) && loadText(pretty, fromPretty) && loadText(saved, fromFile),
         "each format of a document loads");
  const std::string compactAgain = valueToText(fromCompact, false);
  expect(compactAgain == valueToText(fromPretty, false) && compactAgain == valueToText(fromFile, false),
         "all formats of a document load as the same document");
  expect(equalExceptLastDigits(document, fromCompact), "a saved document loads as the same document");
  expect(containsDouble(document) || compactAgain == compact, "a document without fractions prints the same again");
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryText(kovalt::fuzz::inputText(data, size));
  return 0;
}
