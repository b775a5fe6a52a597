#pragma once

// JSON values from and to their texts, by the JSON library alone.

#include <gtest/gtest.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string>
#include <string_view>

#include "json/document.h"

namespace kovalt::test {

/// The document of a text that a test wrote itself; one that does not parse fails the test.
inline Document parsed(std::string_view text) {
  Document document;
  document.Parse(text.data(), text.size());
  EXPECT_FALSE(document.HasParseError()) << text;
  return document;
}

/// A value made from such a text, in the pool of another document.
inline Value parsedInto(std::string_view text, Allocator& allocator) { return {parsed(text), allocator}; }

/// The text of `value` without any white space.
inline std::string textOf(const Value& value) {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  value.Accept(writer);
  return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace kovalt::test
