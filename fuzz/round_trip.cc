// Every document that loads can be written in each layout and loads again as the same document.

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

/// The reader's conversion of long decimal fractions may miss the nearest double by a few steps.
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

bool sameButForLastDigits(const Value& left, const Value& right);

bool sameElements(const Value& left, const Value& right) {
  if (left.Size() != right.Size()) {
    return false;
  }
  for (rapidjson::SizeType i = 0; i < left.Size(); ++i) {
    if (!sameButForLastDigits(left[i], right[i])) {
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
    if (a->name != b->name || !sameButForLastDigits(a->value, b->value)) {
      return false;
    }
  }
  return true;
}

/// Members in order, so that duplicate names are compared too.
bool sameButForLastDigits(const Value& left, const Value& right) {
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

bool holdsDouble(const Value& value) {
  if (value.IsObject()) {
    for (const auto& member : value.GetObject()) {
      if (holdsDouble(member.value)) {
        return true;
      }
    }
  } else if (value.IsArray()) {
    for (const Value& element : value.GetArray()) {
      if (holdsDouble(element)) {
        return true;
      }
    }
  }
  return value.IsDouble();
}

/// The text of a document without the white space outside its strings.
std::string withoutWhiteSpace(const std::string& text) {
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

/// The text of a document with half of the spaces that each line begins with.
std::string withHalfIndentation(const std::string& text) {
  std::string halved;
  for (const std::string& line : linesOf(text)) {
    const std::size_t indentation = std::min(line.find_first_not_of(' '), line.size());
    expect(indentation % 4 == 0, "the screen is indented by four spaces a level");
    halved += line.substr(indentation / 2) + '\n';
  }
  halved.pop_back();
  return halved;
}

void tryText(const std::string& text) {
  Document document;
  if (!loadText(text, document)) {
    expect(document.IsNull(), "a failed load leaves the document as it was");
    return;
  }
  const std::string compact = valueToText(document, false);
  const std::string pretty = valueToText(document, true);
  const std::string saved = savedText(document);
  expect(withoutWhiteSpace(pretty) == compact, "a pretty text is the compact one with white space");
  expect(withHalfIndentation(pretty) == saved, "a file is the pretty text with half of its indentation");
  Document fromCompact;
  Document fromPretty;
  Document fromFile;
  expect(loadText(compact, fromCompact) && loadText(pretty, fromPretty) && loadText(saved, fromFile),
         "each layout of a document loads");
  const std::string compactAgain = valueToText(fromCompact, false);
  expect(compactAgain == valueToText(fromPretty, false) && compactAgain == valueToText(fromFile, false),
         "all layouts of a document load to the same");
  expect(sameButForLastDigits(document, fromCompact), "a document loads again as it was");
  expect(holdsDouble(document) || compactAgain == compact, "a document without fractions prints the same again");
}

}  // namespace
}  // namespace kovalt::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kovalt::fuzz::tryText(kovalt::fuzz::inputText(data, size));
  return 0;
}
