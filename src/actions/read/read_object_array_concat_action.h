#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "actions/read/read_action.h"

namespace kovalt {

/// Reads chosen fields of every object of an array: each element makes one record of its fields, equal records are
/// counted, and the records are sorted as bytes.
class ReadObjectArrayConcatAction : public ReadAction {
 public:
  /// `fields` are key paths inside an element. The k-th byte of `separators` stands after the k-th field, its last byte
  /// after all further ones; without any, fields are joined with nothing between them.
  ReadObjectArrayConcatAction(std::string_view keyPath, const std::vector<std::string>& fields,
                              std::string_view separators);

  /// Puts the records into `text`, a space between two, each with its count in parentheses where that is above 1.
  /// Returns false with `text` still empty where the path names nothing, which has been reported on standard error, or
  /// no array, which is not reported. A field that an element lacks is reported and reads as nothing.
  bool execute(const Value& value, std::string& text, Lookups& lookups) const override;

  /// Keeps what the read looks at, walked from a value at `from`: of each element only its fields.
  void keepFields(Projection& projection, Projection::Place from) const;

 private:
  [[nodiscard]] std::string readRecord(const Value& element) const;
  void appendSeparator(std::string& record, std::size_t fieldIndex) const;

  std::vector<std::unique_ptr<ReadAction>> fields_;
  std::string separators_;
};

}  // namespace kovalt
