#include "support/json_text.h"

#include <gtest/gtest.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace kovalt::test {

Document parsed(std::string_view text) {
  Document document;
  document.Parse(text.data(), text.size());
  EXPECT_FALSE(document.HasParseError()) << text;
  return document;
}

Value parsedInto(std::string_view text, Allocator& allocator) { return {parsed(text), allocator}; }

std::string jsonOf(const Value& value) {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  value.Accept(writer);
  return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace kovalt::test
