// tarvik_screen_bench: a key from its press to the painted text, in a 1 MB file, beside a bare text edit.
#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

#include "Compare.h"
#include "Samples.h"
#include "app/Editor.h"
#include "screen/Screen.h"
#include "session/ScriptedPlatform.h"

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

void PutCaretInTheMiddle(QPlainTextEdit& edit) {
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(edit.document()->characterCount() / 2);
  edit.setTextCursor(cursor);
  edit.setFocus();
  QApplication::processEvents();
}

}  // namespace

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication toolkit(count, arguments);

  MemoryFiles files;
  files.PutFolder("c:\\tarvik");
  files.Put("c:\\my\\large.b50", JoystickFile(1'000'000));
  session::ScriptedDialogs dialogs;
  session::ScriptedInstance instance;
  ScriptedPrinter printer;
  FixedCalendar calendar;
  Platform platform{files,   dialogs,  instance,     {28800, 21600},
                    printer, calendar, "c:\\tarvik", "c:\\my\\large.b50"};
  Application application(platform);
  screen::Screen screen(application, screen::Clock::Scripted);
  application.Start();
  auto* const own = dynamic_cast<QPlainTextEdit*>(screen.Find(application.editor()->JoystickText));
  PutCaretInTheMiddle(*own);

  QPlainTextEdit bare;
  bare.setUndoRedoEnabled(true);
  bare.resize(own->size());
  bare.setPlainText(own->toPlainText());
  bare.show();
  PutCaretInTheMiddle(bare);

  const Medians times = Measure([&] { Press(*own); }, [&] { Press(bare); }, 15);
  Report("key to paint in 1 MB, beside a bare text edit", times, Goal::AtMost, 2);
}
