#pragma once

// The flat forms of an array, for shell scripts: no outer brackets, a comma or a space between the elements, with or
// without the quotes around strings. A value whose text is not in brackets reads as with ReadAction. All of them return
// and report what ReadAction::execute does.

#include <string>

#include "actions/read/read_action.h"

namespace kovalt {

/// Commas between the elements, strings quoted.
class ReadArrayCommaAction : public ReadAction {
 public:
  using ReadAction::ReadAction;
  bool execute(const Value& value, std::string& text, Lookups& lookups) const override;
};

/// Commas between the elements, no quotes.
class ReadArrayCommaNoQuoteAction : public ReadAction {
 public:
  using ReadAction::ReadAction;
  bool execute(const Value& value, std::string& text, Lookups& lookups) const override;
};

/// Spaces between the elements, strings quoted.
class ReadArraySpaceAction : public ReadAction {
 public:
  using ReadAction::ReadAction;
  bool execute(const Value& value, std::string& text, Lookups& lookups) const override;
};

/// Spaces between the elements, no quotes.
class ReadArraySpaceNoQuoteAction : public ReadAction {
 public:
  using ReadAction::ReadAction;
  bool execute(const Value& value, std::string& text, Lookups& lookups) const override;
};

}  // namespace kovalt
