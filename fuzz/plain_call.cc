#include "fuzz/plain_call.h"

#include <algorithm>
#include <cctype>

#include "json/write/write_value.h"

namespace kovalt::fuzz {
namespace {

PlainValue object() {
  PlainValue value;
  value.type = rapidjson::kObjectType;
  return value;
}

/// Returns the JSON text of a string.
std::string quoted(const std::string& bytes) {
  return valueToText(Value(rapidjson::StringRef(bytes.data(), static_cast<rapidjson::SizeType>(bytes.size()))), false);
}

PlainValue scalar(rapidjson::Type type, const std::string& text) {
  PlainValue value;
  value.type = type;
  value.text = text;
  return value;
}

/// Cuts the JSON text of a string at its first NUL.
std::string upToNul(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); i += text[i] == '\\' ? 2U : 1U) {
    if (text.compare(i, 6, "\\u0000") == 0) {
      return text.substr(0, i) + '"';
    }
  }
  return text;
}

std::vector<std::string> stepsOf(const std::string& keyPath) {
  std::vector<std::string> steps;
  std::string step;
  for (const char byte : keyPath) {
    if (byte == '.') {
      steps.push_back(step);
      step.clear();
    } else {
      step += byte;
    }
  }
  if (!keyPath.empty()) {
    steps.push_back(step);
  }
  return steps;
}

bool matches(const PlainValue& item, const std::string& refValue) {
  return item.type == rapidjson::kStringType ? upToNul(item.text) == quoted(refValue) : item.text == refValue;
}

PlainValue* select(PlainValue& array, const std::string& refKey, const std::string& refValue, std::string& errors) {
  bool explained = false;
  if (array.type == rapidjson::kArrayType) {
    for (PlainValue& element : array.elements) {
      const PlainValue* member = plainMember(element, refKey);
      if (element.type != rapidjson::kObjectType ||
          (member != nullptr && (member->type == rapidjson::kNullType || member->type == rapidjson::kObjectType))) {
        explained = true;
        break;
      }
      if (member == nullptr) {
        continue;
      }
      if (member->type != rapidjson::kArrayType) {
        if (matches(*member, refValue)) {
          return &element;
        }
        continue;
      }
      bool badItem = false;
      for (const PlainValue& item : member->elements) {
        if (item.type != rapidjson::kNumberType && item.type != rapidjson::kStringType) {
          badItem = true;
        } else if (matches(item, refValue)) {
          return &element;
        }
      }
      explained |= badItem;
    }
  }
  errors += "Kovalt path not found with refKey=refValue \"" + refKey + "=" + refValue + "\"\n";
  if (explained) {
    errors +=
        "Error in path argument, when you use prop1.refKey=refValue.prop2, prop1 must be an array of objects, and "
        "refKey must be a bool/number/string/array of numbers/strings.\n";
  }
  return nullptr;
}

class Call {
 public:
  Call(const std::vector<PlainOption>& options, PlainValue document, const PlainValue& merged)
      : options_(options), merged_(merged) {
    call_.document = std::move(document);
  }

  PlainCall run() {
    if (edit() && remove()) {
      read();
    }
    return call_;
  }

 private:
  static bool isRead(const PlainOption& option) { return option.name == "-r"; }
  static bool isRemoval(const PlainOption& option) { return option.name == "-rm" || option.name == "-rmc"; }

  void report(const std::string& line) { call_.errors += line + "\n"; }

  /// Returns whether the value was accepted. A merge may set `call_.earlyExit`.
  bool apply(const PlainOption& option, PlainValue& target) {
    if (option.name == "-as") {
      target = scalar(rapidjson::kStringType, quoted(option.value));
    } else if (option.name == "-an") {
      target = scalar(rapidjson::kNumberType, option.value);
    } else if (option.name == "-ao") {
      target = object();
    } else if (option.name == "-afat") {
      if (target.type != rapidjson::kObjectType) {
        target = object();
      }
      exitAfter(mergePlain(target, merged_));
    } else {
      std::string word = option.value;
      std::transform(word.begin(), word.end(), word.begin(), [](unsigned char byte) { return std::tolower(byte); });
      if (word == "true" || word == "1") {
        target = scalar(rapidjson::kTrueType, "true");
      } else if (word == "false" || word == "0") {
        target = scalar(rapidjson::kFalseType, "false");
      } else {
        report("Accepted values for --addBoolean[Array] are true, false, 0 or 1 only, " + word + " rejected.");
        return false;
      }
    }
    return true;
  }

  void exitAfter(const PlainMerge& merge) {
    if (merge.earlyExit == Exit::typeClash) {
      report("Incompatible types for key " + merge.clash);
    }
    call_.earlyExit = merge.earlyExit;
  }

  bool edit() {
    for (const PlainOption& option : options_) {
      if (isRead(option) || isRemoval(option)) {
        continue;
      }
      call_.modified = true;
      PlainValue* target = walkPlain(call_.document, option.keyPath, false, call_.errors);
      const bool applied = target != nullptr && apply(option, *target);
      if (!applied && !call_.earlyExit) {
        PlainValue chain = scalar(rapidjson::kNullType, "null");
        apply(option, chain);
        const std::vector<std::string> steps = stepsOf(option.keyPath);
        for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
          PlainValue outer = object();
          outer.members.emplace_back(*step, chain);
          chain = outer;
        }
        if (!call_.earlyExit) {
          exitAfter(mergePlain(call_.document, chain));
        }
      }
      if (call_.earlyExit) {
        return false;
      }
    }
    return true;
  }

  bool remove() {
    bool hasRemovals = false;
    bool allRemoved = true;
    for (const PlainOption& option : options_) {
      if (!isRemoval(option)) {
        continue;
      }
      const PlainRemoval removal = removePlain(call_.document, stepsOf(option.keyPath), option.name == "-rmc");
      if (removal.earlyExit) {
        call_.earlyExit = removal.earlyExit;
        return false;
      }
      hasRemovals = true;
      allRemoved = allRemoved && removal.succeeded;
    }
    call_.modified |= hasRemovals && allRemoved;
    return true;
  }

  void read() {
    PlainValue gathered = object();
    std::size_t reads = 0;
    for (const PlainOption& option : options_) {
      if (!isRead(option)) {
        continue;
      }
      ++reads;
      if (const PlainValue* target = walkPlain(call_.document, option.keyPath, true, call_.errors)) {
        std::string text = plainText(*target, 0);
        if (text.front() == '"') {
          text = text.substr(1, text.size() - 2);
        }
        gathered.members.emplace_back(option.keyPath, scalar(rapidjson::kStringType, quoted(text)));
        call_.output = text + "\n";
      }
    }
    if (reads > 1) {
      call_.output = plainText(gathered, 4) + "\n";
    } else if (reads == 0 && !call_.modified) {
      call_.output = plainText(call_.document, 4) + "\n";
    }
  }

  const std::vector<PlainOption>& options_;
  const PlainValue& merged_;
  PlainCall call_;
};

void writePlain(const PlainValue& value, std::size_t indent, std::size_t depth, std::string& text) {
  const auto startLine = [&](std::size_t level) {
    if (indent > 0) {
      text += "\n" + std::string(level * indent, ' ');
    }
  };
  if (value.type != rapidjson::kObjectType && value.type != rapidjson::kArrayType) {
    text += value.text;
    return;
  }
  const bool isObject = value.type == rapidjson::kObjectType;
  const std::size_t size = isObject ? value.members.size() : value.elements.size();
  text += isObject ? "{" : "[";
  for (std::size_t i = 0; i < size; ++i) {
    text += i == 0 ? "" : ",";
    startLine(depth + 1);
    if (isObject) {
      text += quoted(value.members[i].first) + (indent > 0 ? ": " : ":");
    }
    writePlain(isObject ? value.members[i].second : value.elements[i], indent, depth + 1, text);
  }
  if (size > 0) {
    startLine(depth);
  }
  text += isObject ? "}" : "]";
}

}  // namespace

PlainValue* walkPlain(PlainValue& root, const std::string& keyPath, bool reportsMissing, std::string& errors) {
  PlainValue* current = &root;
  for (const std::string& step : stepsOf(keyPath)) {
    const std::size_t equals = step.find('=');
    if (equals != std::string::npos) {
      current = select(*current, step.substr(0, equals), step.substr(equals + 1), errors);
    } else {
      current = current->type == rapidjson::kObjectType ? plainMember(*current, step) : nullptr;
      if (current == nullptr && reportsMissing) {
        errors += "--read error : Path \"" + keyPath + "\" does not exist\n";
      }
    }
    if (current == nullptr) {
      break;
    }
  }
  return current;
}

PlainCall callPlainly(const std::vector<PlainOption>& options, PlainValue document, const PlainValue& merged) {
  return Call(options, std::move(document), merged).run();
}

std::string plainText(const PlainValue& value, std::size_t indent) {
  std::string text;
  writePlain(value, indent, 0, text);
  return text;
}

}  // namespace kovalt::fuzz
