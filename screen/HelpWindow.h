// The help window: the topics of the help file beside the one that is read, with a field to find a keyword.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>

#include "output/HelpFile.h"

namespace tarvik::screen {

class HelpWindow : public QDialog {
 public:
  HelpWindow();

  void Open(HelpFile file);
  /// Shows the topic; for a number or keyword that no topic has, the list with a word about that.
  void ShowContext(int context);
  void ShowKeyword(const std::string& keyword);

 private:
  void ListTopics();
  void ShowTopic(const HelpTopic* topic, const QString& asked);
  void ChooseOwner();
  void FollowLink(const QUrl& link);

  HelpFile file_;
  QLineEdit* keyword_;
  QListWidget* topics_;
  QTextBrowser* text_;
};

}  // namespace tarvik::screen
