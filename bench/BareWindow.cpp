// A window with a text edit and nothing else: the peer of the program's start.
#include <QApplication>
#include <QPlainTextEdit>

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  QPlainTextEdit edit;
  edit.setWindowTitle("Bare");
  edit.show();
  return QApplication::exec();
}
