// The tests of what a kneeboard looks like on paper, with no display and no program.
#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  const QGuiApplication application(count, arguments);
  return RUN_ALL_TESTS();
}
