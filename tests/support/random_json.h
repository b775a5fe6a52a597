#pragma once

// Random documents with duplicate names and values of unexpected types, and key paths that lead into them.

#include <cstddef>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>

namespace kovalt::test {

/// The same sequence in every run.
class RandomJson {
 public:
  std::size_t below(std::size_t limit) { return random_() % limit; }

  std::string pick(std::initializer_list<std::string_view> texts) {
    return std::string(texts.begin()[below(texts.size())]);
  }

  /// A JSON text of at most `depth` + 1 nested containers.
  std::string value(int depth) {
    const std::size_t kind = below(depth > 0 ? 11 : 6);
    if (kind < 6) {
      return pick({"null", "true", "false", "7", "-7.5", "1e30", R"("a")", R"("a.b")", R"("7")", R"("a\u0000b")",
                   R"("a text that does not fit into a value")"});
    }
    const bool isArray = kind < 9;
    std::string text(1, isArray ? '[' : '{');
    for (std::size_t size = below(5), i = 0; i < size; ++i) {
      text += i > 0 ? "," : "";
      text += isArray ? element(depth - 1) : '"' + name() + "\":" + value(depth - 1);
    }
    return text + (isArray ? ']' : '}');
  }

  /// A document into which key paths lead deep: it usually has an array of objects at "a", or is one.
  std::string document() {
    std::string array = '[' + element(4) + ',' + element(4) + ',' + element(3) + ']';
    switch (below(6)) {
      case 0:
        return value(4);
      case 1:
        return array;
      default:
        return "{\"" + name() + "\":" + value(2) + ",\"a\":" + array + ",\"" + name() + "\":" + value(3) +
               ",\"b\":" + element(4) + '}';
    }
  }

  /// A step of a key path: a name or a selection.
  std::string step() { return name() + (below(3) == 0 ? pick({"=7", "=-7.5", "=true", "=a", "=", "=t"}) : ""); }

  /// A key path of at most `steps` steps, and one more for each dot in a name or value.
  std::string path(std::size_t steps) {
    std::string text = below(8) == 0 ? "" : "a";
    for (std::size_t count = below(steps); count > 0; --count) {
      text += '.' + step();
    }
    return text;
  }

 private:
  std::string name() { return pick({"a", "a", "ab", "b", "b", "c", "", "a.b", "a=7", "\\n"}); }

  /// Usually an object.
  std::string element(int depth) {
    if (below(5) == 0) {
      return value(depth);
    }
    const std::string first = '"' + name() + "\":" + value(depth - 1);
    return '{' + first + ",\"" + name() + "\":" + value(depth - 1) + '}';
  }

  std::mt19937 random_{1};
};

}  // namespace kovalt::test
