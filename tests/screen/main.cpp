// The tests of what the toolkit shows, with no display.
#include <gtest/gtest.h>

#include "screen/Toolkit.h"
#include "screen/widgets/Picture.h"

int main(int count, char** arguments) {
  if (const auto decoded = tarvik::screen::RunAsDecoder(count, arguments)) return *decoded;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  const tarvik::screen::Toolkit toolkit(count, arguments);
  return RUN_ALL_TESTS();
}
