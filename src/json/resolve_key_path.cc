#include "json/resolve_key_path.h"

#include "json/find_member.h"
#include "json/find_object_by_ref.h"
#include "json/standard_streams.h"

namespace kovalt {
namespace {

enum class MissingMember { silent, reported };

const Value* walk(const KeyPath& path, const Value& root, MissingMember missingMember) {
  const Value* current = &root;
  for (const std::string& step : path.steps()) {
    const std::size_t equals = step.find('=');
    if (equals != std::string::npos) {
      const std::string_view selection = step;
      current = findObjectByRef(current, selection.substr(0, equals), selection.substr(equals + 1));
    } else {
      current = findMember(*current, step);
      if (current == nullptr && missingMember == MissingMember::reported) {
        reportLine("--read error : Path \"" + path.text() + "\" does not exist");
      }
    }
    if (current == nullptr) {
      return nullptr;
    }
  }
  return current;
}

}  // namespace

Value* resolveExisting(const KeyPath& path, Value& root) {
  return const_cast<Value*>(walk(path, root, MissingMember::silent));
}

const Value* resolveForRead(const KeyPath& path, const Value& root) {
  return walk(path, root, MissingMember::reported);
}

}  // namespace kovalt
