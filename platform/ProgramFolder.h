// Finds the folder in which the program keeps its files: beside the executable where one may write there, and
// otherwise a folder of the user's own, filled from what is installed. The program asks once, at its start.
#pragma once

#include <filesystem>

namespace tarvik {

class ProgramFolder {
 public:
  /// What is installed lies beside the executable or in `../share/tarvik` from there. The user's folder is
  /// made and filled where it is needed: with files that it never got, and with newer versions of what the
  /// user has left as it was. What was changed or deleted there stays so.
  ProgramFolder(const std::filesystem::path& executable, const std::filesystem::path& usersOwn);

  /// `$XDG_DATA_HOME/tarvik`, or `.local/share/tarvik` in the user's home; empty for a user without a home.
  [[nodiscard]] static std::filesystem::path UsersOwn();

  /// The folder: without any that can be written, the one of what is installed.
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// False where nothing that the program writes beside itself will be kept.
  [[nodiscard]] bool Writable() const { return writable_; }

 private:
  std::filesystem::path path_;
  bool writable_ = true;
};

}  // namespace tarvik
