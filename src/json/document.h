#pragma once

// The JSON types of the one document of a call.

#include <rapidjson/document.h>

#include "json/tuning/aborting_allocator.h"
#include "json/tuning/rapidjson_steps.h"

namespace kovalt {

/// The document of a run. Its memory pool takes chunks of 65,536 bytes and frees them together when it is destroyed.
using Document =
    rapidjson::GenericDocument<rapidjson::UTF8<>, rapidjson::MemoryPoolAllocator<AbortingAllocator>, AbortingAllocator>;

/// The memory pool that holds every value of a document.
using Allocator = Document::AllocatorType;

/// A value inside a document or on its way into one.
using Value = Document::ValueType;

}  // namespace kovalt
