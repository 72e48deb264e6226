// Where texts that are not saved yet are kept while they are written, so that they outlive the program
// however it ends.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Outcome.h"

namespace tarvik {

/// The journal of one text while this process writes it. When this goes the journal stays, unless it was
/// removed.
class JournalFile {
 public:
  virtual ~JournalFile() = default;
  /// Afterwards the bytes outlive the process; the disk gets them a moment later, and nobody waits for that.
  virtual Outcome<> Append(std::string_view bytes) = 0;
  /// True once the disk has all that was appended.
  [[nodiscard]] virtual bool IsDurable() const = 0;
  /// Returns when the disk has all that was appended: for those who throw away what it stands for.
  virtual Outcome<> Flush() = 0;
  /// Nobody needs it any more; nothing is appended afterwards.
  virtual void Remove() = 0;
};

class Journals {
 public:
  virtual ~Journals() = default;
  /// A new journal that begins with `bytes`, in the first place that takes it.
  virtual Outcome<std::unique_ptr<JournalFile>> Begin(std::string_view bytes) = 0;
  /// The names of those that no living process writes, the oldest first.
  [[nodiscard]] virtual std::vector<std::string> Left() const = 0;
  [[nodiscard]] virtual Outcome<std::string> Read(const std::string& name) const = 0;
  virtual void Remove(const std::string& name) = 0;
};

}  // namespace tarvik
