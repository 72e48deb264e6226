// tarvik-kneeboard: draws what every control does from a joystick file and its macro file, without a window.
#include <QGuiApplication>
#include <iostream>

#include "screen/kneeboard/MakeKneeboard.h"

int main(int count, char** words) {
  // There need not be a display. What Qt takes of the command line are not its words.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int one = 1;
  const QGuiApplication application(one, words);
  return tarvik::screen::MakeKneeboard(count, words, {std::cout, std::cerr});
}
