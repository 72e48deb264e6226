// What only the toolkit can show of the window with the two files: keys, drops, the title, the toolbar's
// lights.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <QWindow>

#include "app/Editor.h"
#include "screen/MumWindow.h"
#include "screen/ProgramOnScreen.h"
#include "screen/QtPrinters.h"
#include "screen/widgets/PaneView.h"
#include "tools/composer/InsertOptions.h"
#include "tools/pimlet/RAWform.h"
#include "tools/preferences/Preferences.h"
#include "tools/templates/TemplateForm.h"
#include "tools/viewers/Tips.h"

namespace tarvik::screen {
namespace {

class FileWindow : public testing::Test, public ProgramOnScreen {
 protected:
  FileWindow() {
    files().Put("c:\\my\\one.b50", "USE MDEF one\r\nBTN S1 Fire\r\n");
    files().Put("c:\\my\\one.m50", "Fire = a\r\n");
  }

  MumWindow& Frame() { return WindowOf<MumWindow>(application.mum()); }
  PaneView& JoystickPane() { return Find<PaneView>(editor().JoystickText); }

  void Press(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&JoystickPane(), &down);
  }

  /// Whether somebody takes it, as the drag goes on to where it is dropped.
  static bool Drop(QWidget& widget, const QMimeData& data) {
    const QPoint place = widget.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    if (enter.isAccepted()) QApplication::sendEvent(&widget, &drop);
    QApplication::processEvents();
    return enter.isAccepted() && drop.isAccepted();
  }

  /// What a file manager drags.
  static std::unique_ptr<QMimeData> DraggedFiles(const QStringList& names) {
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString& name : names)
      urls += QUrl::fromLocalFile(QStringLiteral("/opt/tarvik/drive_c/my/") + name);
    data->setUrls(urls);
    data->setText(urls.constFirst().toString());
    return data;
  }
};

TEST_F(FileWindow, AltWithALetterThatLeadsNowhereTypesNothing) {
  Press(Qt::Key_J, Qt::AltModifier, QStringLiteral("j"));
  Press(Qt::Key_Return, Qt::AltModifier, QStringLiteral("\r"));
  Press(Qt::Key_J, Qt::MetaModifier, QStringLiteral("j"));
  EXPECT_EQ(editor().JoystickText.Text.Get(), "");
  Press(Qt::Key_J, Qt::NoModifier, QStringLiteral("j"));
  EXPECT_EQ(editor().JoystickText.Text.Get(), "j");
}

TEST_F(FileWindow, TheKeyboardReachesTheToolbarBeforeTheLists) {
  auto& categories = Find<QWidget>(editor().Combo1);
  categories.setFocus();
  QTest::keyClick(&categories, Qt::Key_Backtab);
  const QWidget* const reached = Frame().focusWidget();
  ASSERT_TRUE(reached);
  EXPECT_TRUE(reached == screen.Find(application.mum().Picture1) ||
              reached->objectName() == QLatin1String("MoreButtons"))
      << reached->metaObject()->className();
}

TEST_F(FileWindow, AFileThatIsDroppedOpensItsPair) {
  EXPECT_TRUE(Drop(*JoystickPane().viewport(),
                   *DraggedFiles({QStringLiteral("readme.txt"), QStringLiteral("one.m50")})));
  EXPECT_EQ(editor().Joystick.Path.Get(), "c:\\my\\one.b50");
  EXPECT_EQ(editor().Macro.Path.Get(), "c:\\my\\one.m50");
  EXPECT_EQ(editor().JoystickText.Text.Get(), "USE MDEF one\r\nBTN S1 Fire\r\n");
  EXPECT_EQ(editor().Joystick.Dirty, 0);
}

TEST_F(FileWindow, NoBoxTakesAFileForText) {
  application.Tool<RAWform>().Visible = true;
  application.Tool<InsertOptions>().Visible = true;
  application.Tool<Preferences>().Visible = true;
  const auto dragged = DraggedFiles({QStringLiteral("one.b50")});
  QMimeData text;
  text.setText(QStringLiteral("a"));
  int boxes = 0;
  for (QWidget* const widget : QApplication::allWidgets()) {
    auto* const box = qobject_cast<QLineEdit*>(widget);
    if (!box || box->isReadOnly() || !box->isEnabled()) continue;
    const QString before = box->text();
    // The frame opens what is dropped on any part of it.
    EXPECT_EQ(Drop(*box, *dragged), box->window() == &Frame()) << box->accessibleName().toStdString();
    EXPECT_EQ(box->text(), before);
    boxes += Drop(*box, text) ? 1 : 0;
  }
  EXPECT_GT(boxes, 10) << "text is taken";
}

TEST_F(FileWindow, DroppedFilesLeaveUnsavedWorkToTheUser) {
  Press(Qt::Key_J, Qt::NoModifier, QStringLiteral("j"));
  outside.dialogs.answers = {Answer::Cancel};
  EXPECT_TRUE(Drop(Frame(), *DraggedFiles({QStringLiteral("one.b50")})));
  EXPECT_EQ(editor().JoystickText.Text.Get(), "j");
  EXPECT_EQ(outside.dialogs.boxes.size(), 1U);
}

TEST_F(FileWindow, AFileOpensInTheEmptyFrame) {
  application.CloseEditor();
  EXPECT_TRUE(Drop(Frame(), *DraggedFiles({QStringLiteral("one.b50")})));
  ASSERT_TRUE(application.editor().Visible);
  EXPECT_EQ(editor().Joystick.Name.Get().Text(), "one.b50");
}

TEST_F(FileWindow, TextThatIsDroppedIsText) {
  QMimeData text;
  text.setText(QStringLiteral("BTN"));
  EXPECT_TRUE(Drop(*JoystickPane().viewport(), text));
  EXPECT_EQ(editor().JoystickText.Text.Get(), "BTN");
  QMimeData link;
  link.setText(QStringLiteral(" https://a.b/"));
  link.setUrls({QUrl(QStringLiteral("https://a.b/"))});
  EXPECT_TRUE(Drop(*JoystickPane().viewport(), link));
  EXPECT_FALSE(Drop(Frame(), text));
}

TEST_F(FileWindow, NothingIsDroppedBehindAModalWindow) {
  auto& about = application.Tool<frmAbout>();
  about.Modal = true;
  about.Visible = true;
  QApplication::processEvents();
  QMimeData text;
  text.setText(QStringLiteral("BTN"));
  EXPECT_FALSE(Drop(*JoystickPane().viewport(), text));
  EXPECT_FALSE(Drop(Frame(), *DraggedFiles({QStringLiteral("one.b50")})));
  EXPECT_EQ(editor().JoystickText.Text.Get(), "");
}

TEST_F(FileWindow, TheTitleNamesTheFileOnShowAndMarksUnsavedWork) {
  const auto title = [this] { return Frame().windowTitle().toStdString(); };
  const auto* const tabs = dynamic_cast<QTabBar*>(screen.Find(editor().TabStrip1));
  EXPECT_EQ(title(), "untitled.b50[*] - Tarvik");
  EXPECT_FALSE(Frame().isWindowModified());
  EXPECT_EQ(application.mum().Caption.Get(), "Tarvik");
  Press(Qt::Key_J, Qt::NoModifier, QStringLiteral("j"));
  EXPECT_TRUE(Frame().isWindowModified());
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("untitled.b50*"));
  EXPECT_EQ(editor().TabStrip1.Tabs(1).Caption.Get(), "untitled.b50");
  editor().TabStrip1.Select(2);
  EXPECT_EQ(title(), "untitled.m50[*] - Tarvik");
  EXPECT_FALSE(Frame().isWindowModified());
  editor().Macro.Name = *FileName::From("a[*].m50");
  EXPECT_EQ(title(), "a[*][*].m50[*] - Tarvik");
  outside.dialogs.answers = {Answer::No};
  application.CloseEditor();
  EXPECT_EQ(title(), "Tarvik[*]");
  EXPECT_FALSE(Frame().isWindowModified());
}

TEST_F(FileWindow, TheTitleOfAFrameThatWasHiddenMarksUnsavedWork) {
  const auto title = [this] { return Frame().windowHandle()->title().toStdString(); };
  for (const bool unsaved : {true, false}) {
    const char* const told = unsaved ? "untitled.b50* - Tarvik" : "untitled.b50 - Tarvik";
    application.mum().Visible = false;
    application.mum().Unsaved = unsaved;
    EXPECT_EQ(title(), told) << "the task bar shows it";
    application.mum().Visible = true;
    EXPECT_EQ(title(), told);
    application.mum().Visible = false;
    EXPECT_EQ(title(), told);
  }
}

TEST_F(FileWindow, TheTemplateEditorNamesItsFileAndMarksUnsavedWork) {
  auto& form = application.Tool<TemplateForm>();
  form.ShowText();
  const auto* const window = dynamic_cast<QWidget*>(screen.ViewOf(form));
  const std::string name = form.TemplateName.Get();
  EXPECT_EQ(window->windowTitle().toStdString(), name + "[*] - Template Editor");
  EXPECT_FALSE(window->isWindowModified());
  form.TemplateText.SelText = "x";
  EXPECT_TRUE(window->isWindowModified());
}

/// With the edges that the window system gives it.
TEST_F(FileWindow, TheFrameHasTheStoredPlaceOnceItFillsTheScreenNoMore) {
  ASSERT_TRUE(Frame().isMaximized());
  const QSize stored(ToPixels(application.mum().Width), ToPixels(application.mum().Height));
  const QSize screen = Frame().screen()->availableGeometry().size();
  Frame().showNormal();
  QApplication::processEvents();
  QApplication::processEvents();
  EXPECT_EQ(Frame().frameGeometry().size(), stored.boundedTo(screen));
  Frame().showMaximized();
  Frame().showMinimized();
  application.mum().WindowState = 2;
  QApplication::processEvents();
  EXPECT_TRUE(Frame().isMaximized());
  EXPECT_EQ(ToPixels(application.mum().Width), stored.boundedTo(screen).width());
}

/// The window manager makes the first change when the second one has been asked for already.
TEST_F(FileWindow, AFrameThatIsMinimisedForAMomentComesBack) {
  for (const int state : {0, 2}) {
    application.mum().WindowState = state;
    for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
    application.mum().WindowState = 1;
    application.mum().WindowState = state;
    Frame().setWindowState(Frame().windowState() | Qt::WindowMinimized);
    QApplication::processEvents();
    EXPECT_FALSE(Frame().isMinimized());
    EXPECT_EQ(Frame().isMaximized(), state == 2);
    EXPECT_EQ(application.mum().WindowState, state);
  }
}

TEST_F(FileWindow, AFrameThatTheUserMinimisesStaysSo) {
  Frame().showMinimized();
  QApplication::processEvents();
  EXPECT_TRUE(Frame().isMinimized());
  EXPECT_EQ(application.mum().WindowState, 1);
}

TEST_F(FileWindow, AButtonDoesNotStayLitBehindAWindow) {
  auto& button = *dynamic_cast<QToolButton*>(screen.Find(application.mum().Toolbar1.Buttons(1)));
  const auto hover = [&button] {
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), button.mapToGlobal(QPointF(5, 5)));
    QApplication::sendEvent(&button, &enter);
    return button.underMouse();
  };
  ASSERT_TRUE(hover());
  application.Tool<RAWform>().Show();
  QApplication::processEvents();
  EXPECT_FALSE(button.underMouse());
  Frame().activateWindow();
  ASSERT_TRUE(hover());
  auto& about = application.Tool<frmAbout>();
  about.Modal = true;
  about.Visible = true;
  QApplication::processEvents();
  EXPECT_FALSE(button.underMouse());
  about.Visible = false;
  ASSERT_TRUE(hover());
  application.mum().Toolbar1.Visible = false;
  EXPECT_FALSE(button.underMouse());
}

}  // namespace
}  // namespace tarvik::screen
