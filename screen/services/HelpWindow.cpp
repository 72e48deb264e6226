#include "screen/services/HelpWindow.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QResizeEvent>
#include <QShortcut>
#include <QTextBlock>
#include <QWindow>

#include "screen/widgets/Arrangement.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"
#include "screen/widgets/ListStack.h"
#include "screen/windows/WindowRoom.h"
#include "workbench/HelpTopics.h"

namespace tarvik::screen {
namespace {

constexpr QSize kSize(860, 600);
constexpr int kListWidth = 240;
constexpr int kTextWidth = 280;
constexpr int kLeastWithTopics = kListWidth + kTextWidth + 40;
constexpr int kExampleMargin = 12;
constexpr int kTextMargin = 14;
constexpr int kIcon = 16;
constexpr QColor kMarked(0xFF, 0xE0, 0x66);

/// A stretch of lines of one file, as the help file marks it: ```joystick or ```macro.
struct Example {
  std::vector<QTextBlock> lines;
  QString text;
};

Example TakeExample(QTextBlock& block) {
  Example example;
  const QString language = block.blockFormat().stringProperty(QTextFormat::BlockCodeLanguage);
  for (; block.isValid(); block = block.next()) {
    if (block.blockFormat().stringProperty(QTextFormat::BlockCodeLanguage) != language) break;
    if (!example.lines.empty()) example.text += QLatin1String("\r\n");
    example.text += block.text();
    example.lines.push_back(block);
  }
  return example;
}

void Paint(const Example& example, const ColourRuns& colours, const QColor& paper) {
  std::size_t start = 0;
  for (const QTextBlock& line : example.lines) {
    QTextCursor cursor(line);
    QTextBlockFormat format = line.blockFormat();
    format.setBackground(paper);
    format.setLeftMargin(kExampleMargin);
    cursor.setBlockFormat(format);
    for (int i = 0; i < line.text().size(); ++i) {
      QTextCharFormat letter;
      letter.setForeground(ToScreenColour(colours.At(start + static_cast<std::size_t>(i))));
      letter.setFontFixedPitch(true);
      cursor.setPosition(line.position() + i);
      cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
      cursor.mergeCharFormat(letter);
    }
    start += static_cast<std::size_t>(line.text().size()) + 2;
  }
}

void ColourExamples(QTextDocument& document, const FileLook& look) {
  for (QTextBlock block = document.begin(); block.isValid();) {
    const QString language = block.blockFormat().stringProperty(QTextFormat::BlockCodeLanguage);
    const bool macro = language == QLatin1String("macro");
    if (!macro && language != QLatin1String("joystick")) {
      block = block.next();
      continue;
    }
    const Example example = TakeExample(block);
    const std::string text = FromText(example.text);
    SyntaxColouring colouring(text, macro ? MacroPasses() : JoystickPasses());
    colouring.Run();
    Paint(example, colouring.Colours(look.colours), ToScreenColour(macro ? look.macro : look.joystick));
  }
}

/// The topic that is read. Topics have no pictures: what a help file from elsewhere names as one may be
/// anything on the disk, and have no end.
class TopicText : public QTextBrowser {
 public:
  QVariant loadResource(int type, const QUrl& /*name*/) override {
    if (type != QTextDocument::ImageResource) return {};
    QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    return nothing;
  }
};

std::size_t TopicOf(const QListWidgetItem& item) { return item.data(Qt::UserRole).toUInt(); }

}  // namespace

HelpWindow::HelpWindow()
    : tools_(new QToolBar),
      words_(new QLineEdit),
      none_(new QLabel(tr("No topic has these words."))),
      topics_(new QListWidget),
      side_(new QWidget),
      text_(new TopicText) {
  setWindowTitle(tr("Tarvik help"));
  resize(kSize.boundedTo(RoomOnScreen(*this)));
  topics_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  words_->setClearButtonEnabled(true);
  topics_->setAccessibleName(tr("Topics"));
  text_->setAccessibleName(tr("Topic"));
  text_->setOpenLinks(false);
  none_->setObjectName(QStringLiteral("NothingFound"));
  none_->hide();
  topics_->setFixedWidth(kListWidth);
  ShowFocusInSelection(*topics_);
  QSizePolicy room = text_->sizePolicy();
  room.setHorizontalStretch(1);
  text_->setSizePolicy(room);
  text_->setMinimumWidth(kTextWidth);
  Arrange();
  EnableWays();
  ListenToUser();
}

void HelpWindow::MakeTools() {
  back_ = AddAction("back", tr("Back"), QKeySequence::Back, &HelpWindow::GoBack);
  forward_ = AddAction("forward", tr("Forward"), QKeySequence::Forward, &HelpWindow::GoForward);
  QAction* const contents =
      AddAction("contents", tr("Contents"), Qt::ALT | Qt::Key_Home, &HelpWindow::GoToContents);
  QAction* const print = AddAction("print", tr("Print"), QKeySequence::Print, &HelpWindow::Print);
  tools_->addActions({back_, forward_, contents, print});
  tools_->setIconSize({kIcon, kIcon});
}

void HelpWindow::Arrange() {
  side_->setLayout(Framed({}, Column({Fields({{"&Search:", words_}}), none_, topics_})));
  QLayout* const rows = Row({side_, text_});
  MakeTools();
  rows->setMenuBar(tools_);
  setLayout(rows);
}

void HelpWindow::ListenToUser() {
  connect(words_, &QLineEdit::textChanged, this, [this] { Search(); });
  connect(words_, &QLineEdit::returnPressed, this, [this] { GoToTopics(); });
  connect(new QShortcut(Qt::Key_Down, words_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          this, [this] { GoToTopics(); });
  connect(topics_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item && (item->flags() & Qt::ItemIsSelectable)) Visit(TopicOf(*item));
  });
  connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { FollowLink(link); });
}

QAction* HelpWindow::AddAction(const char* icon, const QString& text, const QKeySequence& key,
                               void (HelpWindow::*run)()) {
  auto* const action = new QAction(Icon(icon), text, this);
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, run);
  addAction(action);
  return action;
}

void HelpWindow::Open(HelpFile file, const FileLook& look) {
  file_ = std::move(file);
  look_ = look;
  read_.clear();
  at_ = 0;
  shown_.reset();
  EnableWays();
  const QSignalBlocker quiet(words_);
  words_->clear();
  ListTopics();
}

/// The page stays until a topic is chosen.
void HelpWindow::Search() {
  none_->setVisible(!ListTopics());
  MarkHits();
}

/// Goes from the search field to the topic that is read, or to the first that was found.
void HelpWindow::GoToTopics() {
  if (topics_->count() == 0) return;
  topics_->setFocus();
  for (int row = 0; row < topics_->count() && !topics_->currentItem(); ++row) {
    QListWidgetItem& item = *topics_->item(row);
    if (item.flags() & Qt::ItemIsSelectable) topics_->setCurrentItem(&item);
  }
}

/// Without a search the topics stand under their headings, with the one that is read among them; what was
/// found stands best first.
bool HelpWindow::ListTopics() {
  const std::string words = FromText(words_->text());
  const QSignalBlocker quiet(topics_);
  topics_->clear();
  std::string group;
  for (const HelpTopic* const topic : file_.Search(words)) {
    if (words.empty() && topic->group != group) AddHeading(group = topic->group);
    auto* const item = new QListWidgetItem(ToScreen(topic->title), topics_);
    item->setData(Qt::UserRole, static_cast<unsigned>(topic - file_.Topics().data()));
  }
  if (words.empty()) SelectShown();
  return topics_->count() > 0;
}

/// Marks in the text what was searched for.
void HelpWindow::MarkHits() {
  const std::string words = FromText(words_->text());
  QTextCharFormat marked;
  marked.setBackground(kMarked);
  marked.setForeground(Qt::black);
  QList<QTextEdit::ExtraSelection> marks;
  for (QTextBlock line = text_->document()->begin(); line.isValid(); line = line.next()) {
    for (const SearchHit& hit : HitsIn(FromText(line.text()), words)) {
      QTextCursor cursor(line);
      cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, static_cast<int>(hit.start));
      cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(hit.length));
      marks.push_back({cursor, marked});
    }
  }
  text_->setExtraSelections(marks);
}

void HelpWindow::AddHeading(const std::string& group) {
  auto* const heading = new QListWidgetItem(ToScreen(group), topics_);
  heading->setFlags(Qt::ItemIsEnabled);
  QFont font = topics_->font();
  font.setBold(true);
  heading->setFont(font);
}

void HelpWindow::SelectShown() {
  const QSignalBlocker quiet(topics_);
  topics_->setCurrentItem(nullptr);
  for (int row = 0; row < topics_->count() && shown_; ++row) {
    QListWidgetItem& item = *topics_->item(row);
    if ((item.flags() & Qt::ItemIsSelectable) && TopicOf(item) == *shown_) topics_->setCurrentItem(&item);
  }
}

void HelpWindow::Show(std::size_t topic) {
  shown_ = topic;
  EnableWays();
  text_->setMarkdown(AsText(file_.Topics()[topic].text));
  ColourExamples(*text_->document(), look_);
  text_->document()->setDocumentMargin(kTextMargin);
  text_->moveCursor(QTextCursor::Start);
  MarkHits();
  SelectShown();
}

void HelpWindow::EnableWays() {
  back_->setEnabled(at_ > 0);
  forward_->setEnabled(at_ + 1 < read_.size());
}

/// What was ahead is forgotten, as in every browser.
void HelpWindow::Visit(std::size_t topic) {
  if (shown_ == topic && !read_.empty() && read_[at_] == topic) return;
  read_.resize(std::min(read_.size(), at_ + 1));
  if (shown_ && (read_.empty() || read_.back() != *shown_)) read_.push_back(*shown_);
  if (read_.empty() || read_.back() != topic) read_.push_back(topic);
  at_ = read_.size() - 1;
  Show(topic);
}

void HelpWindow::Step(int by) {
  at_ += static_cast<std::size_t>(by);
  Show(read_[at_]);
}

void HelpWindow::GoBack() { Step(-1); }
void HelpWindow::GoForward() { Step(+1); }
void HelpWindow::GoToContents() { ShowContext(topic::kContents); }

void HelpWindow::Print() {
  QPrinter printer;
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) text_->document()->print(&printer);
}

void HelpWindow::ShowTopic(const HelpTopic* topic, const QString& asked) {
  if (topic) {
    Visit(static_cast<std::size_t>(topic - file_.Topics().data()));
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
  if (modal) StandBeside(*modal->window());
}

/// What the help tells of stays in sight: the window goes to the left of the screen where the help has too
/// little room beside it. On a small screen the two overlap.
void HelpWindow::StandBeside(QWidget& window) {
  const QRect screen = window.screen()->availableGeometry();
  QRect place = window.frameGeometry();
  if (screen.right() - place.right() < kSize.width()) {
    window.move(screen.left(), place.top());
    place.moveLeft(screen.left());
  }
  const int edges = place.width() - window.width();  // which the window manager draws
  const int room = screen.right() - place.right() - edges;
  FoldTopics(room);
  const int width = std::clamp(room, minimumSizeHint().width(), kSize.width());
  resize(width, height());
  move(std::min(place.right(), screen.right() - width - edges) + 1, place.top());
}

void HelpWindow::FoldTopics(int width) {
  const bool isRoom = width >= kLeastWithTopics;
  side_->setVisible(isRoom);
  tools_->setToolButtonStyle(isRoom ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  layout()->activate();
}

void HelpWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  FoldTopics(width());
}

void HelpWindow::ShowContext(int context) { ShowTopic(file_.WithContext(context), QString::number(context)); }

void HelpWindow::ShowKeyword(const std::string& keyword) {
  ShowTopic(file_.WithKeyword(keyword), ToScreen(keyword));
}

/// A link to a topic is its number behind a "#".
void HelpWindow::FollowLink(const QUrl& link) { ShowContext(link.fragment().toInt()); }

}  // namespace tarvik::screen
