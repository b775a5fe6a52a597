#pragma once

// The distinct records of a concatenation and how often each was seen.

#include <cstdint>
#include <map>
#include <string>

namespace kovalt {

/// The number of elements that made a record, by its text.
using ConcatRecords = std::map<std::string, std::int32_t>;

/// All records in the order of their bytes, a space between two, each count above 1 after its text in parentheses.
std::string joined(const ConcatRecords& records);

}  // namespace kovalt
