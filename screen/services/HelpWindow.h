// The help window: the topics of the help file under their headings, a field to search them, the topic that
// is read with its examples in the colours of the files, the way back and forward, and printing.
#pragma once

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <array>
#include <optional>

#include "language/SyntaxColouring.h"
#include "tools/help/HelpFile.h"

namespace tarvik::screen {

/// What the files look like: the colours of the statements, and the paper of either file.
struct FileLook {
  std::array<Colour, kColourClasses> colours{};
  Colour joystick = kWhite;
  Colour macro = kWhite;
};

class HelpWindow : public QDialog {
 public:
  HelpWindow();

  void Open(HelpFile file, const FileLook& look = {});
  /// Shows the topic; for a number or keyword that no topic has, the list with a word about that.
  void ShowContext(int context);
  void ShowKeyword(const std::string& keyword);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QAction* AddAction(const char* icon, const QString& text, const QKeySequence& key,
                     void (HelpWindow::*run)());
  void MakeTools();
  void Arrange();
  void ListenToUser();
  void Search();
  void GoToTopics();
  /// True when a topic has the words.
  bool ListTopics();
  void MarkHits();
  void EnableWays();
  void AddHeading(const std::string& group);
  void SelectShown();
  void ShowTopic(const HelpTopic* topic, const QString& asked);
  void Show(std::size_t topic);
  void Visit(std::size_t topic);
  void Step(int by);
  void GoBack();
  void GoForward();
  void GoToContents();
  void Print();
  void ChooseOwner();
  void StandBeside(QWidget& window);
  /// Shows the search and the list of topics where there is room for them beside the text, and the words
  /// beside the pictures of the commands.
  void FoldTopics(int width);
  void FollowLink(const QUrl& link);

  HelpFile file_;
  FileLook look_;
  std::vector<std::size_t> read_;  // the topics in the order of reading, for the ways back and forward
  std::size_t at_ = 0;             // the one of read_ that is shown
  std::optional<std::size_t> shown_;
  QToolBar* tools_;
  QAction* back_;
  QAction* forward_;
  QLineEdit* words_;
  QLabel* none_;  // says that no topic has the words
  QListWidget* topics_;
  QWidget* side_;  // the search and the list of topics
  QTextBrowser* text_;
};

}  // namespace tarvik::screen
