// The journals on the host's disk, in a folder that nobody but the user can read.
#pragma once

#include <filesystem>

#include "platform/Journals.h"

namespace tarvik {

/// A journal is a file, locked by the process that writes it; the system takes the lock back however that one
/// ends.
class HostJournals : public Journals {
 public:
  /// The folders for journals, the best first. One that is missing is made where its parent is there.
  explicit HostJournals(std::vector<std::filesystem::path> places) : places_(std::move(places)) {}

  Outcome<std::unique_ptr<JournalFile>> Begin(std::string_view bytes) override;
  [[nodiscard]] std::vector<std::string> Left() const override;
  [[nodiscard]] Outcome<std::string> Read(const std::string& name) const override;
  void Remove(const std::string& name) override;

  /// `journal` in the program's folder, then `tarvik-journal` in `$XDG_RUNTIME_DIR`, then one of the user's
  /// own in the folder for temporary files.
  [[nodiscard]] static std::vector<std::filesystem::path> PlacesOf(
      const std::filesystem::path& programFolder);

 private:
  std::vector<std::filesystem::path> places_;
};

}  // namespace tarvik
