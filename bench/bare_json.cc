// The minimal work of RapidJSON on a file, with its own streams and buffers of the tool's sizes, as a reference.
//   bare_json load FILE        parses FILE
//   bare_json save FILE OUT    parses FILE and writes it to OUT, indented by two spaces
//   bare_json display FILE     parses FILE and prints it from a copy of RapidJSON's string buffer

#include <rapidjson/document.h>
#include <rapidjson/filereadstream.h>
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

bool load(const char* path, rapidjson::Document& document) {
  std::FILE* file = std::fopen(path, "r");
  if (file == nullptr) {
    return false;
  }
  char buffer[8192];
  rapidjson::FileReadStream stream(file, buffer, sizeof(buffer));
  document.ParseStream(stream);
  std::fclose(file);
  return !document.HasParseError();
}

void save(const rapidjson::Document& document, const char* path) {
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr) {
    return;
  }
  char buffer[65536];
  rapidjson::FileWriteStream stream(file, buffer, sizeof(buffer));
  rapidjson::PrettyWriter<rapidjson::FileWriteStream> writer(stream);
  writer.SetIndent(' ', 2);
  document.Accept(writer);
  std::fclose(file);
}

std::string text(const rapidjson::Document& document) {
  rapidjson::StringBuffer buffer;
  rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
  document.Accept(writer);
  return buffer.GetString();
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  if (argumentCount < 3) {
    return EXIT_FAILURE;
  }
  const std::string_view mode = arguments[1];
  rapidjson::Document document;
  if (!load(arguments[2], document)) {
    return EXIT_FAILURE;
  }
  if (mode == "save" && argumentCount == 4) {
    save(document, arguments[3]);
  } else if (mode == "display") {
    std::string line = text(document);
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stdout);
  }
  return EXIT_SUCCESS;
}
