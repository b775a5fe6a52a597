#include "completion/shown_text.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

namespace kovalt {

bool canBeShown(std::string_view text) {
  rapidjson::MemoryStream stream(text.data(), text.size());
  while (stream.Tell() < text.size()) {
    unsigned character = 0;
    const bool isValid = rapidjson::UTF8<>::Decode(stream, &character);
    if (!isValid || character < 0x20 || (character >= 0x7F && character <= 0x9F)) {
      return false;
    }
  }
  return true;
}

}  // namespace kovalt
