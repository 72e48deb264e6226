// The program's one way of meeting a failure: it is recorded in four process-wide fields, the user sees
// nothing, and the procedure goes on with its next statement.
#pragma once

#include <optional>

#include "controls/Component.h"
#include "workbench/Log.h"

namespace tarvik {

/// The last failure that was trapped.
class Errors : public Component {
 public:
  explicit Errors(Log& log) : Component("Errors"), log_(log) {}

  Property<std::string> ErrorTag{*this, "ErrorTag"};
  Property<float> ErrorNumber{*this, "ErrorNumber"};
  Property<std::string> ErrorText{*this, "ErrorText"};
  Property<std::string> ErrorDllCode{*this, "ErrorDllCode"};

  void Record(std::string_view tag, const Failure& failure) {
    ErrorTag = std::string(tag);
    ErrorNumber = static_cast<float>(failure.number);
    ErrorText = failure.text;
    ErrorDllCode = TextOf(failure.systemCode);
    log_.ErrorRecorded(tag, failure);
    ReportError();
  }

  /// Called with the four fields set. Nothing hooks in here: a failure is not shown.
  void ReportError() {}

 private:
  Log& log_;
};

/// Stands at the head of a procedure and passes each outcome on: the value, or nothing once the failure is
/// recorded under the procedure's tag.
class Trap {
 public:
  Trap(Errors& errors, std::string_view tag) : errors_(errors), tag_(tag) {}

  template <class T>
  std::optional<T> operator()(Outcome<T> outcome) const {
    if (!outcome) errors_.Record(tag_, outcome.failure());
    return std::move(outcome).Take();
  }

 private:
  Errors& errors_;
  std::string tag_;
};

/// Passes the outcome of a light procedure on, and leaves its failure unrecorded.
template <class T>
std::optional<T> Ignore(Outcome<T> outcome) {
  return std::move(outcome).Take();
}

}  // namespace tarvik
