// Keys as the program knows them: Windows virtual-key codes.
#pragma once

namespace tarvik::screen {

/// The code of a Qt::Key. Keys without one get that of a character which comes from no key, 231.
[[nodiscard]] int VirtualKey(int key);

}  // namespace tarvik::screen
