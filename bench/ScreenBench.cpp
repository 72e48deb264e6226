// tarvik_screen_bench: a key from its press to the painted text, in a 1 MB file, beside a bare text edit; the
// same with a journal on the disk, beside one without; a click in the Composer beside the search it needs,
// and its second showing beside the first; a key until its mistakes are marked.
#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "Compare.h"
#include "Samples.h"
#include "app/Editor.h"
#include "platform/HostJournals.h"
#include "screen/Screen.h"
#include "support/ScriptedPlatform.h"
#include "support/ScriptedPress.h"
#include "support/TemporaryFolder.h"
#include "tools/composer/InsertOptions.h"

namespace {

using namespace tarvik;
using namespace tarvik::bench;

void Press(QPlainTextEdit& edit) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&edit, &down);
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&edit, &up);
  edit.viewport()->repaint();
}

/// Until what the key changed is painted, and no more than that.
void PressAndSee(QPlainTextEdit& edit) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&edit, &down);
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&edit, &up);
  QApplication::processEvents();
}

void PutCaretInTheMiddle(QPlainTextEdit& edit) {
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(edit.document()->characterCount() / 2);
  edit.setTextCursor(cursor);
  edit.setFocus();
  QApplication::processEvents();
}

Seconds TimeToShow(Editor& editor) {
  return TimeOf(
      [&editor] {
        editor.mnuShowInsertWindow_Click();
        QApplication::processEvents();
      },
      1);
}

/// The statement is the file's last.
void CompareTheComposer(Application& application, QPlainTextEdit& edit) {
  constexpr int kLastButton = 31;
  constexpr const char* kLastStatement = "BTN T14 ";
  Editor& editor = application.editor();
  editor.JoystickText.SelStart = editor.JoystickText.Characters().size();
  editor.JoystickText.SelText = std::string(kLastStatement);
  const Seconds first = TimeToShow(editor);
  auto& composer = application.Tool<InsertOptions>();
  std::vector<Seconds> later;
  for (int i = 0; i < 9; ++i) {
    composer.Command6.Click();
    QApplication::processEvents();
    later.push_back(TimeToShow(editor));
  }
  Report("second showing of the Composer, beside the first", {Median(later), first}, Goal::AtMost, 0.1);
  const Medians click = Measure(
      [&] {
        composer.BTN_Click(kLastButton);
        edit.viewport()->repaint();
      },
      [&] {
        editor.JoystickText.Find(kLastStatement, 0, editor.JoystickText.Characters().size());
        edit.viewport()->repaint();
      });
  Report("click in the Composer in 1 MB, beside its search", click, Goal::AtMost, 2);
}

/// A program that shows a file of so many bytes, with its journals in a folder of the disk.
class Typist {
 public:
  [[nodiscard]] QPlainTextEdit& edit() const { return *edit_; }
  explicit Typist(std::size_t bytes) {
    files_.PutFolder("c:\\tarvik");
    files_.Put("c:\\my\\large.b50", JoystickFile(bytes));
    files_.Put("c:\\tarvik\\Tarvik.ini",
               "[FileLocations]\r\nShowTips=0\r\nFirstTimeUsed=0\r\n[View]\r\nColourAsYouType=1\r\n");
    application_.Start();
    edit_ = dynamic_cast<QPlainTextEdit*>(screen_.Find(application_.editor().JoystickText));
    PutCaretInTheMiddle(*edit_);
    Press(*edit_);
  }

  /// As by somebody who types ten keys a second.
  void Type() {
    constexpr int kKeysToWrite = 5;
    Press(*edit_);
    if (++keys_ % kKeysToWrite == 0) application_.workbench.journals.Write();
  }
  /// From a key to the wave below what is wrong: the pause that the key begins, and what is done at its end.
  Seconds TypeAndWait() {
    Press(*edit_);
    Pause& pause = application_.workbench.problems.pause;
    const auto look = [&pause] {
      pause.timer.Elapsed();
      QApplication::processEvents();
    };
    return pause.timer.Interval / 1000.0 + TimeOf(look, 1);
  }
  void PutMacros(const std::string& text) {
    application_.workbench.documents.macroText.SetContent(RichText(text));
  }
  /// The text counts as given up; only a save would begin the journal anew.
  void StopTheJournal() { application_.workbench.files.Leaves(application_.workbench.documents.joystick); }

 private:
  MemoryFiles files_;
  TemporaryFolder folder_;
  HostJournals journals_{{folder_.path() / "journal"}};
  session::ScriptedPlatform outside_;
  Platform platform_ = outside_.Process(files_, "c:\\my\\large.b50", {.journals = &journals_});
  session::ScriptedPress press_;
  Application application_{platform_, press_};
  screen::Screen screen_{application_, screen::Clock::Scripted};
  QPlainTextEdit* edit_ = nullptr;
  int keys_ = 0;
};

/// Of two windows one has the focus and paints a caret, so that each takes its turn at being the one with a
/// journal.
void CompareTheJournal(std::size_t bytes, const std::string& size) {
  Medians sum{0, 0};
  for (const std::size_t kept : {0U, 1U}) {
    Typist typists[] = {Typist(bytes), Typist(bytes)};
    typists[1 - kept].StopTheJournal();
    const Medians once = Measure([&] { typists[kept].Type(); }, [&] { typists[1 - kept].Type(); }, 25);
    sum = {sum.own + once.own, sum.peer + once.peer};
  }
  Report("key to paint with a journal, beside one without, " + size, sum, Goal::AtMost, 1.05);
}

/// With everything on that the editor shows beside the text; each window has the focus while it is typed in.
void CompareTheKey(std::size_t bytes, const std::string& size) {
  constexpr int kRounds = 25;
  constexpr int kKeys = 20;
  const Typist typist(bytes);
  QPlainTextEdit bare;
  bare.resize(typist.edit().size());
  bare.setPlainText(typist.edit().toPlainText());
  bare.show();
  PutCaretInTheMiddle(bare);
  const auto timeOf = [](QPlainTextEdit& edit) {
    edit.activateWindow();
    edit.setFocus();
    QApplication::processEvents();
    return TimeOf([&edit] { PressAndSee(edit); }, kKeys);
  };
  std::vector<Seconds> own;
  std::vector<Seconds> peer;
  for (int i = 0; i < kRounds; ++i) {
    own.push_back(timeOf(typist.edit()));
    peer.push_back(timeOf(bare));
  }
  Report("key as it is painted, beside a bare text edit, " + size, {Median(own), Median(peer)}, Goal::AtMost,
         1.1);
  const auto page = [](QPlainTextEdit& edit) {
    return [&edit] {
      for (const auto step : {QScrollBar::SliderPageStepAdd, QScrollBar::SliderPageStepSub}) {
        edit.verticalScrollBar()->triggerAction(step);
        QApplication::processEvents();
      }
    };
  };
  Report("scrolling a page, beside a bare text edit, " + size, Measure(page(typist.edit()), page(bare)),
         Goal::AtMost, 1.2);
}

void CompareTheWave() {
  constexpr Seconds kAllowed = 0.15;
  Typist typist(1'000'000);
  typist.PutMacros(MacroFile(5'000, 500));
  std::vector<Seconds> times;
  for (int i = 0; i < 9; ++i) times.push_back(typist.TypeAndWait());
  Report("key to wave in 1 MB with 5,000 macros, beside what is allowed", {Median(times), kAllowed},
         Goal::AtMost, 1);
}

}  // namespace

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication toolkit(count, arguments);

  MemoryFiles files;
  files.PutFolder("c:\\tarvik");
  files.Put("c:\\my\\large.b50", JoystickFile(1'000'000));
  files.Put("c:\\tarvik\\Tarvik.ini", "[FileLocations]\r\nShowTips=0\r\nFirstTimeUsed=0\r\n");
  session::ScriptedPlatform outside;
  Platform platform = outside.Process(files, "c:\\my\\large.b50");
  session::ScriptedPress press;
  Application application(platform, press);
  screen::Screen screen(application, screen::Clock::Scripted);
  application.Start();
  auto* const own = dynamic_cast<QPlainTextEdit*>(screen.Find(application.editor().JoystickText));
  PutCaretInTheMiddle(*own);

  QPlainTextEdit bare;
  bare.setUndoRedoEnabled(true);
  bare.resize(own->size());
  bare.setPlainText(own->toPlainText());
  bare.show();
  PutCaretInTheMiddle(bare);

  const Medians times = Measure([&] { Press(*own); }, [&] { Press(bare); }, 15);
  Report("key to paint in 1 MB, beside a bare text edit", times, Goal::AtMost, 2);
  CompareTheKey(30'000, "30 KB");
  CompareTheKey(1'000'000, "1 MB");
  CompareTheJournal(30'000, "30 KB");
  CompareTheJournal(1'000'000, "1 MB");
  CompareTheWave();
  CompareTheComposer(application, *own);
}
