// Journals in memory, which outlive the process that wrote them; they fail on demand.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/Journals.h"

namespace tarvik {

class MemoryJournals : public Journals {
 public:
  Outcome<std::unique_ptr<JournalFile>> Begin(std::string_view bytes) override {
    if (fails) return Failure{error::kDiskFull, "No space left on device", 0};
    const std::string name = "journal " + std::to_string(1000 + ++made_);
    auto file = std::make_unique<File>(*this, name);
    content[name] = bytes;
    return std::unique_ptr<JournalFile>(std::move(file));
  }
  [[nodiscard]] std::vector<std::string> Left() const override {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : content) {
      if (!written_.contains(name)) names.push_back(name);
    }
    return names;
  }
  [[nodiscard]] Outcome<std::string> Read(const std::string& name) const override { return content.at(name); }
  void Remove(const std::string& name) override { content.erase(name); }

  /// By name; those that a process writes are among them.
  std::map<std::string, std::string> content;
  bool fails = false;
  bool cannotFlush = false;

 private:
  class File : public JournalFile {
   public:
    File(MemoryJournals& journals, std::string name) : journals_(journals), name_(std::move(name)) {
      journals_.written_.insert(name_);
    }
    ~File() override { journals_.written_.erase(name_); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    Outcome<> Append(std::string_view bytes) override {
      if (journals_.fails) return Failure{error::kDiskFull, "No space left on device", 0};
      journals_.content[name_] += bytes;
      return Done{};
    }
    [[nodiscard]] bool IsDurable() const override { return true; }
    Outcome<> Flush() override {
      if (journals_.cannotFlush) return Failure{error::kUnexpected, "Input/output error", 0};
      return Done{};
    }
    void Remove() override { journals_.content.erase(name_); }

   private:
    MemoryJournals& journals_;
    std::string name_;
  };

  std::set<std::string> written_;
  int made_ = 0;
};

}  // namespace tarvik
