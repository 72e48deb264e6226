// The result of everything that can fail. A fallible operation returns an Outcome, and the compiler complains
// when nobody looks at it; what throws is a mistake of the program itself.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace tarvik {

/// A failure as the error trap records it: the error's number and description, and the system's own code.
struct Failure {
  int number = 0;
  std::string text;
  int systemCode = 0;
};

/// Error numbers that the program itself looks at or hands out.
namespace error {
inline constexpr int kInvalidCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kPathNotFound = 76;
inline constexpr int kFileNotFound = 53;
inline constexpr int kPathAccess = 75;
inline constexpr int kDiskFull = 61;
inline constexpr int kFileTooStrange = 321;
inline constexpr int kPrinter = 482;
inline constexpr int kUnexpected = 51;
inline constexpr int kDialogCancelled = 32755;
}  // namespace error

/// Stands for "it worked" where there is no value to give back.
struct Done {};

template <class T = Done>
class [[nodiscard]] Outcome {
 public:
  Outcome(T value) : value_(std::move(value)) {}              // NOLINT(google-explicit-constructor)
  Outcome(Failure failure) : failure_(std::move(failure)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return value_.has_value(); }
  T& operator*() & { return *value_; }
  T&& operator*() && { return *std::move(value_); }
  const T& operator*() const& { return *value_; }
  T* operator->() { return &*value_; }
  const T* operator->() const { return &*value_; }
  /// The failure; its number is 0 where the operation worked.
  [[nodiscard]] const Failure& failure() const { return failure_; }
  /// The value alone, or nothing.
  [[nodiscard]] std::optional<T> Take() && { return std::move(value_); }

 private:
  std::optional<T> value_;
  Failure failure_;
};

}  // namespace tarvik
