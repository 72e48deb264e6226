// Every window of the program, as somebody meets it who works by keyboard or has the screen read out.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QTextBlock>
#include <QWindow>
#include <map>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/QtPrinters.h"
#include "screen/services/HelpWindow.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/PathLabel.h"
#include "session/WidgetReader.h"
#include "tools/blocks/TextBlocks.h"
#include "tools/composer/InsertOptions.h"
#include "tools/find/FindAndReplace.h"
#include "tools/pimlet/RAWform.h"
#include "tools/preferences/Preferences.h"
#include "tools/programs/Games.h"
#include "tools/programs/ProgramWait.h"
#include "tools/testing/JoyPlot.h"
#include "tools/viewers/LogForm.h"
#include "tools/viewers/Tips.h"
#include "tools/viewers/ViewImage.h"

namespace tarvik::screen {
namespace {

class Windows : public testing::Test, public ProgramOnScreen {
 protected:
  Windows() {
    for (const ToolRow& tool : Tools()) {
      if (tool.id != ToolId::ColourSelector) tool.load(application).Visible = true;
    }
    help.Open(HelpFile("# One\n"));
    help.ShowContext(0);
    QApplication::processEvents();
    application.mum().Picture1.Click();  // last: it closes when another window opens
  }

  static std::vector<QWidget*> Shown() {
    std::vector<QWidget*> windows;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->isVisible()) windows.push_back(window);
    }
    return windows;
  }

  HelpWindow help;
};

std::string Described(const QAccessibleInterface& shown) {
  const QObject* const object = shown.object();
  return object ? std::string(object->metaObject()->className()) + " " + object->objectName().toStdString()
                : "a part";
}

/// What takes the focus or can be pressed has to say what it is.
void ExpectNames(QAccessibleInterface& shown) {
  const QAccessible::State state = shown.state();
  const bool window = shown.role() == QAccessible::Window || shown.role() == QAccessible::Dialog;
  const bool pressed = shown.role() == QAccessible::Button || shown.role() == QAccessible::MenuItem ||
                       shown.role() == QAccessible::PageTab;
  if (!state.invisible && (state.focusable || pressed || window) && shown.role() != QAccessible::Separator) {
    EXPECT_NE(shown.role(), QAccessible::NoRole) << Described(shown);
    EXPECT_FALSE(shown.text(QAccessible::Name).isEmpty()) << Described(shown) << " role " << shown.role();
  }
  for (int i = 0; i < shown.childCount(); ++i) {
    if (QAccessibleInterface* const child = shown.child(i)) ExpectNames(*child);
  }
}

TEST_F(Windows, SayWhatEveryControlIs) {
  constexpr std::size_t kFrameAndHelp = 2;
  ASSERT_EQ(Shown().size(), Tools().size() + kFrameAndHelp) << "every tool has a window";
  for (QWidget* const window : Shown()) {
    ASSERT_TRUE(QAccessible::queryAccessibleInterface(window));
    ExpectNames(*QAccessible::queryAccessibleInterface(window));
  }
}

TEST_F(Windows, HaveMnemonicsThatLeadToOneControl) {
  for (QWidget* const window : Shown()) {
    std::map<QString, QString> taken;
    const auto take = [&](const QString& caption) {
      const QString key = QKeySequence::mnemonic(caption).toString();
      if (key.isEmpty()) return;
      EXPECT_FALSE(taken.contains(key)) << caption.toStdString() << " and " << taken[key].toStdString();
      taken[key] = caption;
    };
    for (const auto* const button : window->findChildren<QAbstractButton*>()) {
      if (button->isVisible() && button->window() == window) take(button->text());
    }
    for (const auto* const label : window->findChildren<QLabel*>()) {
      if (label->isVisible() && label->window() == window && label->buddy()) take(label->text());
    }
    for (const auto* const tabs : window->findChildren<QTabBar*>()) {
      if (!tabs->isVisible() || tabs->window() != window || window->inherits("QMainWindow")) continue;
      for (int i = 0; i < tabs->count(); ++i) take(tabs->tabText(i));
    }
  }
}

TEST_F(Windows, ShowAHelpTopicAsItIsMeant) {
  help.Open(HelpFile(
      "# First\r\n\r\nSome *words*\r\nof text.\r\n\r\n# Second\r\n<!-- 7: go on -->\r\n[Back](#1)\r\n"));
  help.ShowKeyword("go");
  const auto* const text = help.findChild<QTextBrowser*>();
  EXPECT_EQ(text->toPlainText(), QStringLiteral("Second\nBack"));
  help.findChild<QLineEdit*>()->setText(QStringLiteral("fir"));
  EXPECT_EQ(help.findChild<QListWidget*>()->count(), 1);
  help.findChild<QListWidget*>()->setCurrentRow(0);
  EXPECT_EQ(text->toPlainText(), QStringLiteral("First\nSome words of text."));
  help.ShowContext(12);
  EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("12")));
}

class HelpWindowTest : public testing::Test {
 protected:
  HelpWindowTest() {
    FileLook look;
    look.colours = {kBlack, Colour{0x0000FF}, kBlack, kBlack, kBlack, Colour{0x00FF00}};
    look.joystick = Colour{0xAABBCC};
    help.Open(
        HelpFile("<!-- group: Early -->\n# One\n<!-- 1: one -->\n[on](#3)\n"
                 "# Two\n<!-- 2: two -->\nsilver\n"
                 "<!-- group: Late -->\n# Three\n<!-- 3: three -->\n```joystick\nBTN S1 Gun Rem x\n```\n"),
        look);
    help.ShowContext(1);
  }

  QString Title() const { return text->toPlainText().section(u'\n', 0, 0); }
  QAction* Action(const char* text) const {
    for (QAction* const action : help.actions()) {
      if (action->text() == QLatin1String(text)) return action;
    }
    return nullptr;
  }

  HelpWindow help;
  QTextBrowser* text = help.findChild<QTextBrowser*>();
  QListWidget* topics = help.findChild<QListWidget*>();
  QLineEdit* words = help.findChild<QLineEdit*>();
};

TEST_F(HelpWindowTest, ListsTopicsUnderTheirHeadings) {
  QStringList rows;
  for (int i = 0; i < topics->count(); ++i) rows += topics->item(i)->text();
  EXPECT_EQ(rows, QStringList({QStringLiteral("Early"), QStringLiteral("One"), QStringLiteral("Two"),
                               QStringLiteral("Late"), QStringLiteral("Three")}));
  EXPECT_FALSE(topics->item(0)->flags() & Qt::ItemIsSelectable);
  EXPECT_EQ(topics->currentRow(), 1);
}

TEST_F(HelpWindowTest, GoesBackAndForwardOnTheWayThatWasRead) {
  EXPECT_FALSE(Action("Back")->isEnabled());
  topics->setCurrentRow(2);
  help.ShowContext(3);
  EXPECT_EQ(Title(), QStringLiteral("Three"));
  Action("Back")->trigger();
  EXPECT_EQ(Title(), QStringLiteral("Two"));
  EXPECT_EQ(topics->currentRow(), 2);
  Action("Back")->trigger();
  EXPECT_EQ(Title(), QStringLiteral("One"));
  EXPECT_FALSE(Action("Back")->isEnabled());
  Action("Forward")->trigger();
  EXPECT_EQ(Title(), QStringLiteral("Two"));
  help.ShowContext(1);
  EXPECT_FALSE(Action("Forward")->isEnabled()) << "a new way";
  Action("Back")->trigger();
  EXPECT_EQ(Title(), QStringLiteral("Two"));
}

TEST_F(HelpWindowTest, SearchesTheTextsToo) {
  words->setText(QStringLiteral("SILV"));
  EXPECT_EQ(topics->count(), 1);
  EXPECT_EQ(Title(), QStringLiteral("One")) << "it changes when a topic is chosen";
  words->setFocus();
  QApplication::processEvents();
  QTest::keyClick(words, Qt::Key_Down);
  EXPECT_EQ(help.focusWidget(), topics);
  EXPECT_EQ(Title(), QStringLiteral("Two"));
  words->setText(QStringLiteral("silvery"));
  EXPECT_EQ(topics->count(), 0);
  EXPECT_EQ(Title(), QStringLiteral("Two"));
  words->clear();
  EXPECT_EQ(topics->count(), 5);
  EXPECT_EQ(topics->currentRow(), 2);
  help.ShowContext(3);
  Action("Back")->trigger();
  EXPECT_EQ(Title(), QStringLiteral("Two")) << "what was chosen from the search was on the way";
}

TEST_F(HelpWindowTest, GoesFromTheSearchToWhatFitsBest) {
  help.ShowContext(3);
  words->setText(QStringLiteral("t"));
  ASSERT_EQ(topics->count(), 2);
  EXPECT_EQ(Title(), QStringLiteral("Three"));
  words->setFocus();
  QApplication::processEvents();
  QTest::keyClick(words, Qt::Key_Down);
  EXPECT_EQ(topics->currentRow(), 0);
  EXPECT_EQ(Title(), QStringLiteral("Two"));
}

TEST_F(HelpWindowTest, SaysThatNothingWasFoundAndKeepsThePage) {
  auto* const none = help.findChild<QLabel*>(QStringLiteral("NothingFound"));
  ASSERT_NE(none, nullptr);
  EXPECT_FALSE(none->isVisible());
  words->setText(QStringLiteral("nowhere"));
  EXPECT_TRUE(none->isVisible());
  EXPECT_EQ(Title(), QStringLiteral("One"));
  words->setFocus();
  QApplication::processEvents();
  QTest::keyClick(words, Qt::Key_Down);
  EXPECT_EQ(help.focusWidget(), words) << "there is nothing to go to";
  words->clear();
  EXPECT_FALSE(none->isVisible());
  EXPECT_EQ(Title(), QStringLiteral("One"));
}

TEST_F(HelpWindowTest, MarksWhatWasSearchedFor) {
  words->setText(QStringLiteral("gun btn"));
  QTest::keyClick(words, Qt::Key_Return);
  ASSERT_EQ(Title(), QStringLiteral("Three"));
  QStringList marked;
  for (const auto& mark : text->extraSelections()) marked += mark.cursor.selectedText();
  EXPECT_EQ(marked, QStringList({QStringLiteral("Gun"), QStringLiteral("BTN")}));
  words->clear();
  EXPECT_TRUE(text->extraSelections().isEmpty());
}

TEST_F(HelpWindowTest, HasNoWayBackBeforeAnythingWasRead) {
  HelpWindow fresh;
  fresh.Open(HelpFile("# One\n"));
  fresh.ShowKeyword("unknown");
  for (QAction* const action : fresh.actions()) {
    if (action->isEnabled() && action->text() != QLatin1String("Print")) action->trigger();
  }
  EXPECT_FALSE(fresh.actions().constFirst()->isEnabled());
}

TEST_F(HelpWindowTest, ShowsExamplesInTheColoursOfTheFiles) {
  help.ShowContext(3);
  const QTextBlock example = text->document()->lastBlock();
  ASSERT_EQ(example.text(), QStringLiteral("BTN S1 Gun Rem x"));
  EXPECT_EQ(example.blockFormat().background().color(), ToScreenColour(Colour{0xAABBCC}));
  const auto colourAt = [&example](int position) {
    QTextCursor cursor(example);
    cursor.setPosition(example.position() + position + 1);
    return cursor.charFormat().foreground().color();
  };
  EXPECT_EQ(colourAt(0), ToScreenColour(Colour{0x0000FF}));
  EXPECT_EQ(colourAt(5), ToScreenColour(Colour{0x0000FF}));
  EXPECT_EQ(colourAt(7), ToScreenColour(Colour{0x000000}));
  EXPECT_EQ(colourAt(15), ToScreenColour(Colour{0x00FF00}));
}

TEST_F(Windows, ShowHelpInFrontOfTheModalOneThatAsks) {
  auto& preferences = application.Tool<Preferences>();
  const auto* const window = dynamic_cast<QWidget*>(screen.ViewOf(preferences));
  preferences.Visible = false;
  preferences.Modal = true;
  preferences.Visible = true;
  help.ShowContext(0);
  EXPECT_EQ(help.windowHandle()->transientParent(), window->windowHandle());
  EXPECT_TRUE(help.isVisible());
  preferences.Visible = false;
  help.ShowContext(0);
  EXPECT_EQ(help.windowHandle()->transientParent(), nullptr);
}

/// Where the focus goes by the Tab key, from the first control of a window around to it again.
std::vector<QWidget*> FocusChain(QWidget& window) {
  std::vector<QWidget*> chain;
  for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
    const bool stop = next->isVisible() && next->isEnabled() && next->window() == &window &&
                      (next->focusPolicy() & Qt::TabFocus) && !next->focusProxy();
    if (stop) chain.push_back(next);
  }
  return chain;
}

/// As the eye goes: down, or on to the right. Around the corner it begins anew, which it may do once.
TEST_F(Windows, TakeTheFocusFromTopToBottom) {
  int manyStops = 0;
  for (QWidget* const window : Shown()) {
    if (!qobject_cast<QDialog*>(window)) continue;
    const std::vector<QWidget*> chain = FocusChain(*window);
    QRect before;
    for (const QWidget* const stop : chain) {
      const QRect here(stop->mapTo(window, QPoint(0, 0)), stop->size());
      EXPECT_TRUE(here.bottom() > before.top() || here.left() >= before.right())
          << window->windowTitle().toStdString() << ": " << stop->objectName().toStdString();
      before = here;
    }
    EXPECT_FALSE(chain.empty()) << window->objectName().toStdString();
    if (chain.size() > 2) ++manyStops;
  }
  EXPECT_GE(manyStops, 14) << "only what is for looking at, or has little to say, has fewer stops than three";
}

TEST_F(Windows, ShowEveryPageOfTheComposerWithNames) {
  auto& composer = application.Tool<InsertOptions>();
  auto* const window = dynamic_cast<QWidget*>(screen.ViewOf(composer));
  for (int page = 0; page < composer.SSTab1.Count(); ++page) {
    composer.SSTab1.Tab = page;
    QApplication::processEvents();
    ExpectNames(*QAccessible::queryAccessibleInterface(window));
    for (const auto* const button : window->findChildren<QAbstractButton*>()) {
      if (!button->isVisible()) continue;
      const QString shown = QString(button->text()).remove(u'&');
      EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(shown)) << shown.toStdString();
    }
  }
}

TEST_F(Windows, ShowEveryPageOfThePreferencesWhole) {
  auto& preferences = application.Tool<Preferences>();
  auto* const window = dynamic_cast<QWidget*>(screen.ViewOf(preferences));
  for (int page = 0; page < preferences.SSTab1.Count(); ++page) {
    preferences.SSTab1.Tab = page;
    QApplication::processEvents();
    ExpectNames(*QAccessible::queryAccessibleInterface(window));
    for (const QWidget* const part : window->findChildren<QWidget*>()) {
      const auto* const label = qobject_cast<const QLabel*>(part);
      const bool named = label || qobject_cast<const QAbstractButton*>(part);
      if (!named || !part->isVisible()) continue;
      EXPECT_GE(part->width(), part->sizeHint().width())
          << part->objectName().toStdString() << " " << (label ? label->text().toStdString() : "");
    }
  }
}

/// Such a window can't be made as large as the screen either.
/// What is larger is scrolled.
TEST_F(Windows, AreNoLargerThanTheScreen) {
  for (const QWidget* const window : Shown()) {
    const QSize room = window->screen()->availableGeometry().size();
    EXPECT_EQ(window->size().boundedTo(room), window->size()) << window->objectName().toStdString();
  }
}

TEST_F(Windows, HaveOneSizeWhereNothingMakesUseOfMoreRoom) {
  const auto isFixed = [this](const Form& form) {
    const QWidget& window = WindowOf(form);
    return window.minimumSize() == window.maximumSize();
  };
  EXPECT_TRUE(isFixed(application.Tool<frmAbout>()));
  EXPECT_TRUE(isFixed(application.Tool<ProgramWait>()));
  EXPECT_TRUE(isFixed(application.Tool<Heading>()));
  EXPECT_TRUE(isFixed(application.Tool<EnterGameName>()));
  EXPECT_TRUE(isFixed(application.Tool<FindAndReplace>()));
  EXPECT_FALSE(isFixed(application.Tool<LogForm>()));
  EXPECT_FALSE(isFixed(application.Tool<Title>()));
  EXPECT_FALSE(isFixed(application.Tool<RAWform>()));
  EXPECT_FALSE(isFixed(application.Tool<InsertOptions>()));
  EXPECT_FALSE(isFixed(application.Tool<ViewImage>()));
  EXPECT_FALSE(isFixed(application.Tool<JoyPlot>()));
}

TEST_F(Windows, KeepTheirSizeHoweverLongAPathIs) {
  auto& pictures = application.Tool<SelectPictureForm>();
  auto& wait = application.Tool<ProgramWait>();
  const std::string path = "z:\\" + std::string(1000, 'x') + "\\last.bmp";
  for (Label* const label : {&pictures.Label1, &wait.Label1}) {
    const QWidget& window = WindowOf(*label->OwnForm());
    const QSize before = window.size();
    label->Caption = path;
    QApplication::processEvents();
    EXPECT_EQ(window.size(), before);
    EXPECT_EQ(ReadOff(screen, *label, "Caption"), path);
    const QString shown = dynamic_cast<PathLabel*>(screen.Find(*label))->Shown();
    EXPECT_TRUE(shown.startsWith(QStringLiteral("z:")) && shown.endsWith(QStringLiteral("last.bmp")));
  }
}

/// As when a menu of the tool bar is open while the editor closes, and gives the focus back.
TEST_F(Windows, HearNothingMoreOfAWidgetWhoseFormHasGone) {
  const QPointer<QWidget> button = qobject_cast<QWidget*>(screen.Find(application.editor().Command1(0)));
  application.CloseEditor();
  ASSERT_TRUE(button);
  for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
    QFocusEvent event(type, Qt::PopupFocusReason);
    QApplication::sendEvent(button, &event);
  }
  QMouseEvent moved(QEvent::MouseMove, {1, 1}, button->mapToGlobal(QPointF(1, 1)), Qt::NoButton, {}, {});
  QApplication::sendEvent(button, &moved);
  EXPECT_NE(application.FindForm("Mum"), nullptr);
}

TEST_F(Windows, HaveButtonsWithAirAroundTheirWords) {
  constexpr int kAir = 8;
  for (QWidget* const window : Shown()) {
    for (const auto* const button : window->findChildren<QPushButton*>()) {
      if (!button->isVisible() || !button->icon().isNull() || button->text().size() < 6) continue;
      const int words = button->fontMetrics().horizontalAdvance(QString(button->text()).remove(u'&'));
      EXPECT_GE(button->width(), words + 2 * kAir)
          << window->windowTitle().toStdString() << ": " << button->text().toStdString();
    }
  }
}

TEST_F(Windows, MoveAmongTheLabelsOfADeviceByTheArrowKeys) {
  auto& composer = application.Tool<InsertOptions>();
  const auto widget = [&](const char* name) {
    return qobject_cast<QWidget*>(screen.Find(composer.hardware(name)));
  };
  const auto press = [](QWidget* at, Qt::Key key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(at, &down);
  };
  application.FindForm("ColourSelector")->Visible = false;
  composer.Show();
  QApplication::processEvents();
  widget("HAT(0)")->setFocus();
  press(widget("HAT(0)"), Qt::Key_Down);
  EXPECT_TRUE(widget("HAT(1)")->hasFocus());
  press(widget("HAT(1)"), Qt::Key_Left);
  EXPECT_TRUE(widget("BTN(0)")->hasFocus());
  EXPECT_EQ(widget("BTN(0)")->focusPolicy(), Qt::StrongFocus) << "the Tab key comes back to it";
  EXPECT_EQ(widget("HAT(0)")->focusPolicy(), Qt::ClickFocus);
  press(widget("BTN(0)"), Qt::Key_Return);
  EXPECT_EQ(application.editor().JoystickText.Text.Get(), "BTN S1 ");
}

}  // namespace
}  // namespace tarvik::screen
