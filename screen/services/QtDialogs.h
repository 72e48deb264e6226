// The message boxes and file dialogs that the user sees.
#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "platform/Drives.h"
#include "platform/Platform.h"

namespace tarvik::screen {

class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(Drives& drives) : drives_(drives) {}

  /// Folders on the drives that stand at the side of each file dialog, as far as they are there.
  std::function<std::vector<std::string>()> foldersOffered = [] { return std::vector<std::string>(); };

  Answer Show(const MessageBox& box) override;
  Outcome<std::string> AskForFile(const FileRequest& request) override;
  Outcome<Colour> AskForColour(Colour before) override;
  Outcome<FontChoice> AskForFont(const FontChoice& before, bool fixedPitch) override;
  Outcome<std::string> AskForFolder(const std::string& title, const std::string& folder) override;
  Outcome<std::string> AskForHostFolder(const std::string& title, const std::string& folder) override;
  void WaitWhile(const std::function<bool()>& open) override;

 private:
  /// The folder asked for, else the one of the last choice, else the user's own.
  [[nodiscard]] QString StartFolder(const std::string& folder) const;

  /// The user's own folder, those that are offered, and the drives; each once.
  [[nodiscard]] QList<QUrl> Places() const;
  /// Runs the dialog with the places at its side, and gives the host's file that was chosen.
  Outcome<std::string> Run(QFileDialog& dialog);
  Outcome<std::string> RunForFolder(const std::string& title, const QString& folder);
  /// What was chosen, by its path on the drives.
  Outcome<std::string> OnDrives(const Outcome<std::string>& chosen);

  Drives& drives_;
  QString lastFolder_;
};

/// "description|pattern;pattern|..." as the toolkit has it, the patterns in brackets behind the description.
[[nodiscard]] QStringList NameFilters(const std::string& filter);

}  // namespace tarvik::screen
