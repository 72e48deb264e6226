#include "screen/services/QtDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSplitter>
#include <QUrl>

#include "screen/services/FontDialog.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/Keys.h"

namespace tarvik::screen {
namespace {

constexpr int kSidebarWidth = 130;
constexpr int kFoundWidth = 500;

struct ButtonsRow {
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton entered;  ///< what the Enter key gives
  QMessageBox::StandardButton closed;
};

/// In the order of BoxButtons.
constexpr ButtonsRow kButtons[] = {
    {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No},
    {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Cancel},
};

/// In the order of BoxIcon.
constexpr QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                                        QMessageBox::Warning};

Answer ToAnswer(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

Failure Cancelled() { return {error::kDialogCancelled, "Cancel was selected.", 0}; }

/// Shows the ordinary pointer over a dialog while the program that waits behind it shows the hourglass.
class OrdinaryPointer {
 public:
  OrdinaryPointer() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
  ~OrdinaryPointer() { QApplication::restoreOverrideCursor(); }
  OrdinaryPointer(const OrdinaryPointer&) = delete;
  OrdinaryPointer& operator=(const OrdinaryPointer&) = delete;
};

/// The ending of a type that has one, and nothing for a type with none or several.
QString EndingOf(const QString& filter) {
  static const QRegularExpression kOneEnding(QStringLiteral("\\(\\*\\.([^ *?()]+)\\)$"));
  return kOneEnding.match(filter).captured(1);
}

/// A name without an ending gets that of the type that is chosen, or `otherwise` where the type has none. To
/// a name that has an ending the toolkit itself gives that of the type.
void KeepSuffix(QFileDialog& dialog, const QString& otherwise) {
  const auto take = [&dialog, otherwise](const QString& filter) {
    const QString ending = EndingOf(filter);
    dialog.setDefaultSuffix(ending.isEmpty() ? otherwise : ending);
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, take);
  take(dialog.selectedNameFilter());
}

}  // namespace

Answer QtDialogs::Show(const MessageBox& box) {
  const OrdinaryPointer pointer;
  const ButtonsRow& row = kButtons[static_cast<int>(box.buttons)];
  QMessageBox window(kIcons[static_cast<int>(box.icon)], ToScreen(box.title), ToScreen(box.text), row.buttons,
                     QApplication::activeWindow());
  window.setTextFormat(Qt::PlainText);
  window.setDefaultButton(box.preset == Answer::No ? QMessageBox::No : row.entered);
  window.setEscapeButton(row.closed);
  return ToAnswer(window.exec());
}

QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToScreen(filter).split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // The description names its patterns too, which the toolkit would take for the patterns themselves.
    const QString description = parts[i].left(parts[i].indexOf(QLatin1String(" ("))).trimmed();
    QString patterns = parts[i + 1];
    filters += description + QLatin1String(" (") + patterns.replace(u';', u' ') + u')';
  }
  return filters.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
}

QString QtDialogs::StartFolder(const std::string& folder) const {
  const auto host = drives_.ToHost(folder);
  std::error_code missing;
  if (host && std::filesystem::is_directory(*host, missing)) return QFile::decodeName(host->c_str());
  return lastFolder_.isEmpty() ? QDir::homePath() : lastFolder_;
}

Outcome<std::string> QtDialogs::AskForFile(const FileRequest& request) {
  const OrdinaryPointer pointer;
  const bool save = request.kind == FileDialogKind::Save;
  QFileDialog dialog(QApplication::activeWindow(), ToScreen(request.title), StartFolder(request.folder));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(request.filter));
  if (save) KeepSuffix(dialog, ToScreen(request.defaultExtension));
  // What is offered has a path on the drives, which on the host would be a strange name.
  const auto offered = drives_.ToHostNew(request.fileName);
  if (offered) dialog.selectFile(QFile::decodeName(offered->c_str()));
  return OnDrives(Run(dialog));
}

Outcome<std::string> QtDialogs::AskForFolder(const std::string& title, const std::string& folder) {
  return OnDrives(RunForFolder(title, StartFolder(folder)));
}

Outcome<std::string> QtDialogs::AskForHostFolder(const std::string& title, const std::string& folder) {
  const QString host = QFile::decodeName(folder.c_str());
  return RunForFolder(title, QFileInfo(host).isDir() ? host : QDir::homePath());
}

Outcome<std::string> QtDialogs::OnDrives(const Outcome<std::string>& chosen) {
  return chosen ? drives_.FromHost(*chosen) : chosen;
}

Outcome<std::string> QtDialogs::RunForFolder(const std::string& title, const QString& folder) {
  const OrdinaryPointer pointer;
  QFileDialog dialog(QApplication::activeWindow(), ToScreen(title), folder);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return Run(dialog);
}

QList<QUrl> QtDialogs::Places() const {
  QList<QUrl> places{QUrl::fromLocalFile(QDir::homePath())};
  std::vector<std::string> folders = foldersOffered();
  for (char letter = 'a'; letter <= 'z'; ++letter) folders.push_back(letter + std::string(":\\"));
  for (const std::string& folder : folders) {
    const auto host = drives_.ToHost(folder);
    std::error_code missing;
    if (!host || !std::filesystem::is_directory(*host, missing)) continue;
    const QUrl place = QUrl::fromLocalFile(QDir(QFile::decodeName(host->c_str())).absolutePath());
    if (!places.contains(place)) places += place;
  }
  return places;
}

Outcome<std::string> QtDialogs::Run(QFileDialog& dialog) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setSidebarUrls(Places());
  if (auto* const parts = dialog.findChild<QSplitter*>()) parts->setSizes({kSidebarWidth, kFoundWidth});
  LeaveCommandsUntyped(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return Cancelled();
  const QString chosen = dialog.selectedFiles().constFirst();
  lastFolder_ = QFileInfo(chosen).absolutePath();
  return QFile::encodeName(chosen).toStdString();
}

Outcome<Colour> QtDialogs::AskForColour(Colour before) {
  const OrdinaryPointer pointer;
  QColorDialog dialog(ToScreenColour(before), QApplication::activeWindow());
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  LeaveCommandsUntyped(dialog);
  if (dialog.exec() != QDialog::Accepted) return Cancelled();
  return FromScreenColour(dialog.selectedColor());
}

/// A font that is taken as it was offered stays what it was, also where it is not installed.
Outcome<FontChoice> QtDialogs::AskForFont(const FontChoice& before, bool fixedPitch) {
  const OrdinaryPointer pointer;
  const FontChoice shown = AsShown(before);
  FontDialog dialog(shown, fixedPitch, QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) return Cancelled();
  const FontChoice chosen = dialog.Choice();
  return chosen == shown ? before : chosen;
}

void QtDialogs::WaitWhile(const std::function<bool()>& open) {
  const OrdinaryPointer pointer;
  while (open()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace tarvik::screen
