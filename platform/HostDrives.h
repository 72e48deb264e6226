// The drives of the running program as its user sets them: those that the settings file names at the start,
// and from then on what the preferences make of them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Drives.h"
#include "platform/Platform.h"

namespace tarvik {

class HostDrives : public DriveFolders {
 public:
  /// Section [Drives] of the settings file beside the executable, which lies in the folder `own`. Where it
  /// says nothing of drive c, that is a folder there too.
  explicit HostDrives(const std::filesystem::path& own);

  [[nodiscard]] std::vector<Drive> All() const override;
  Outcome<> Set(char letter, const std::string& folder) override;
  void Remove(char letter) override;
  /// Makes drive c's folder beside the executable, where it is that one.
  void MakeOwnDrive() const;
  std::string FromHost(const std::string& path) override { return drives_.FromHost(path); }
  [[nodiscard]] std::string ToHost(const std::string& path) const override;
  std::string Hold(const std::string& path) override;

  /// The drives as those have them that look files up.
  [[nodiscard]] Drives& Paths() { return drives_; }

 private:
  Drives drives_{{}};
  std::filesystem::path ownDrive_;
};

}  // namespace tarvik
