#include "screen/HelpWindow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QWindow>

#include "screen/Text.h"

namespace tarvik::screen {
namespace {

constexpr QSize kSize(760, 520);
constexpr int kListWidth = 220;

bool Matches(const HelpTopic& topic, const QString& words) {
  const auto has = [&words](const std::string& text) {
    return ToScreen(text).contains(words, Qt::CaseInsensitive);
  };
  return has(topic.title) || std::any_of(topic.keywords.begin(), topic.keywords.end(), has);
}

}  // namespace

HelpWindow::HelpWindow() : keyword_(new QLineEdit), topics_(new QListWidget), text_(new QTextBrowser) {
  setWindowTitle(tr("Tarvik help"));
  resize(kSize);
  keyword_->setClearButtonEnabled(true);
  keyword_->setAccessibleName(tr("Find a topic"));
  topics_->setAccessibleName(tr("Topics"));
  text_->setAccessibleName(tr("Topic"));
  text_->setOpenLinks(false);
  auto* const label = new QLabel(tr("&Find a topic:"));
  label->setBuddy(keyword_);
  auto* const left = new QVBoxLayout;
  left->addWidget(label);
  left->addWidget(keyword_);
  left->addWidget(topics_);
  topics_->setFixedWidth(kListWidth);
  keyword_->setFixedWidth(kListWidth);
  auto* const columns = new QHBoxLayout(this);
  columns->addLayout(left);
  columns->addWidget(text_, 1);
  connect(keyword_, &QLineEdit::textChanged, this, [this] { ListTopics(); });
  connect(topics_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) text_->setMarkdown(AsText(file_.Topics()[item->data(Qt::UserRole).toUInt()].text));
  });
  connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { FollowLink(link); });
}

void HelpWindow::Open(HelpFile file) {
  file_ = std::move(file);
  keyword_->clear();
  ListTopics();
}

void HelpWindow::ListTopics() {
  topics_->clear();
  for (std::size_t i = 0; i < file_.Topics().size(); ++i) {
    const HelpTopic& topic = file_.Topics()[i];
    if (!Matches(topic, keyword_->text())) continue;
    auto* const item = new QListWidgetItem(ToScreen(topic.title), topics_);
    item->setData(Qt::UserRole, static_cast<unsigned>(i));
  }
  topics_->setCurrentRow(0);
}

void HelpWindow::ShowTopic(const HelpTopic* topic, const QString& asked) {
  if (topic) {
    topics_->setCurrentRow(static_cast<int>(topic - file_.Topics().data()));
  } else if (file_.Topics().empty()) {
    text_->setMarkdown(tr("The help file *tarvik.hlp* is not beside the program."));
  } else {
    text_->setMarkdown(tr("There is no topic for *%1*. Pick one from the list.").arg(asked));
  }
  ChooseOwner();
  show();
  raise();
  activateWindow();
}

/// A modal window lets only those through that belong to it.
void HelpWindow::ChooseOwner() {
  create();
  const QWidget* const modal = QApplication::activeModalWidget();
  QWindow* const owner = modal ? modal->windowHandle() : nullptr;
  if (windowHandle()->transientParent() == owner) return;
  hide();
  windowHandle()->setTransientParent(owner);
}

void HelpWindow::ShowContext(int context) { ShowTopic(file_.WithContext(context), QString::number(context)); }

void HelpWindow::ShowKeyword(const std::string& keyword) {
  ShowTopic(file_.WithKeyword(keyword), ToScreen(keyword));
}

/// A link to a topic is its number behind a "#".
void HelpWindow::FollowLink(const QUrl& link) {
  keyword_->clear();
  ShowContext(link.fragment().toInt());
}

}  // namespace tarvik::screen
