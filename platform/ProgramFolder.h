// Finds the folder in which the program keeps its files: beside the executable where one may write there, and
// otherwise a folder of the user's own, filled from what is installed. The program asks once, at its start.
#pragma once

#include <filesystem>

namespace tarvik {

class ProgramFolder {
 public:
  /// What is installed lies beside the executable or in `../share/tarvik` from there. The user's folder is
  /// made where it is needed.
  ProgramFolder(const std::filesystem::path& executable, const std::filesystem::path& usersOwn);

  /// Fills the user's folder with files that it never got, and with newer versions of what the user has left
  /// as it was. What was changed or deleted there stays so. Only for the one program that uses the folder.
  void Fill() const;

  /// `$XDG_DATA_HOME/tarvik`, or `.local/share/tarvik` in the user's home; empty for a user without a home.
  [[nodiscard]] static std::filesystem::path UsersOwn();

  /// The folder; a new temporary one where the user's own cannot be written.
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// Whether the folder lasts: the next start will not know of a temporary one.
  [[nodiscard]] bool Lasts() const { return lasts_; }

 private:
  std::filesystem::path path_;
  std::filesystem::path executable_;
  std::filesystem::path installed_;  // what fills the user's folder; empty where the program has its own
  bool lasts_ = true;
};

}  // namespace tarvik
