#pragma once

// The JSON types of the one document of a call.

#include <rapidjson/document.h>

#include <cmath>

#include "json/tuning/aborting_allocator.h"
#include "json/tuning/rapidjson_steps.h"

namespace kovalt {

/// The document of a run. Its memory pool takes chunks of 65,536 bytes and frees them together when it is destroyed.
class Document : public rapidjson::GenericDocument<rapidjson::UTF8<>, rapidjson::MemoryPoolAllocator<AbortingAllocator>,
                                                   AbortingAllocator> {
 public:
  using GenericDocument::GenericDocument;

  /// Takes in a number that the reader found, in place of the base's operation, as the reader is handed this type.
  /// Stops the reader at one that became infinite: it lets some pass, and the writers could not write them.
  bool Double(double value) { return std::isfinite(value) && GenericDocument::Double(value); }
};

/// The memory pool that holds every value of a document.
using Allocator = Document::AllocatorType;

/// A value inside a document or on its way into one.
using Value = Document::ValueType;

}  // namespace kovalt
