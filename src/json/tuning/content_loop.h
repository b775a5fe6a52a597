#pragma once

// The loop through the content of arrays and objects. It takes half the instructions that RapidJSON's reader needs to
// pass over records, and a tenth off the time of loading them: the place in the stream stands in a register, and no
// handler is asked for each value.

#include <rapidjson/rapidjson.h>

#include <optional>
#include <vector>

#include "json/tuning/input_stream.h"

namespace kovalt {

/// Takes what stands in an array or object whose start was taken, up to the bracket `end`, which is left. `content`
/// takes texts and other scalars out of the stream, as RapidJSON's reader accepts them, and is told
/// of the arrays and objects inside. Returns the number of elements or members; none where the text is no JSON.
template <typename Content>
[[gnu::noinline]] std::optional<rapidjson::SizeType> takeContent(InputStream& stream, char end, Content& content) {
  struct OpenContainer {
    char end;
    rapidjson::SizeType count;
  };
  std::vector<OpenContainer> outer;
  rapidjson::SizeType count = 0;
  InputStream next = stream;  // Its place stands in a register.
  next.skipBlanks();
  bool isEmpty = next.Peek() == end;
  while (true) {
    if (!isEmpty) {
      if (end == '}' && !(next.Peek() == '"' && content.takeText(next) && next.takeSeparator(':'))) {
        return std::nullopt;
      }
      ++count;
      const char first = next.Peek();
      if (first == '{' || first == '[') {
        outer.push_back({end, count});
        count = 0;
        end = first == '{' ? '}' : ']';
        content.start(end);
        next.takeSeparator(first);
        isEmpty = next.Peek() == end;
        continue;
      }
      if (!(first == '"' ? content.takeText(next) : content.takeOther(next))) {
        return std::nullopt;
      }
    }
    // What ends here may be the last element or member of the next outer container.
    while (!next.takeSeparator(',')) {
      if (next.Peek() != end) {
        return std::nullopt;
      }
      if (outer.empty()) {
        stream = next;
        return count;
      }
      next.Take();
      content.end(end, count);
      end = outer.back().end;
      count = outer.back().count;
      outer.pop_back();
    }
    isEmpty = false;
  }
}

}  // namespace kovalt
