#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "actions/read/read_action.h"

namespace kovalt {

/// The number of elements with each record, by the text of the record; sorted as bytes.
using ConcatRecords = std::map<std::string, std::int32_t>;

/// All records in order, separated by spaces, each followed by its count in parentheses if that is above 1.
std::string joined(const ConcatRecords& records);

/// Reads chosen fields of every object of an array: each element makes one record of its fields, equal records are
/// counted, and the records are sorted as bytes.
class ReadObjectArrayConcatAction : public ReadAction {
 public:
  /// `fields` are key paths inside an element. The k-th byte of `separators` is put between the k-th field and the
  /// next, and its last byte also between all further ones; if it is empty, nothing is between the fields.
  ReadObjectArrayConcatAction(std::string_view keyPath, const std::vector<std::string>& fields,
                              std::string_view separators);

  /// Puts the records into `text`, in the form of `joined`. Returns false with `text` still empty if the path names
  /// nothing, which is reported on standard error, or not an array, which is not reported. A field that an element
  /// lacks is reported and reads as nothing.
  bool execute(const Value& value, std::string& text, Lookups& lookups) const override;

 private:
  [[nodiscard]] std::string readRecord(const Value& element) const;

  std::string separators_;
};

}  // namespace kovalt
