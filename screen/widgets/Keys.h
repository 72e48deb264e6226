// Keys as the program knows them: Windows virtual-key codes, and the modifiers that are down once the event
// has happened.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <set>

#include "controls/Controls.h"

namespace tarvik::screen {

/// The code of the event's key: of a letter the letter that it types; of other characters that of the place
/// where the key is on a United States keyboard, whatever it types. The Enter key of the keypad has its own,
/// 108, and Print Screen has 42. Keys without a code get that of a character which comes from no key, 231.
[[nodiscard]] int VirtualKey(const QKeyEvent& event);

/// Where an arrow key of the toolkit leads: one step right or left, down or up; nowhere with any other key.
[[nodiscard]] QPoint WayOf(int key);

/// With Alt, or the desktop's own modifier, a key that would type is a command, or nothing.
[[nodiscard]] bool TypesNothing(const QKeyEvent& event);

/// Keeps commands by letter from a dialog of the toolkit's own, whose boxes would write the letter.
void LeaveCommandsUntyped(QWidget& dialog);

/// The keys of one window. It remembers which modifiers are down, of which there are two.
class KeyReader {
 public:
  [[nodiscard]] Key Read(const QKeyEvent& event);
  /// Lets go of all modifiers: of a key that goes up in another window nothing is heard here.
  void Forget() { held_.clear(); }

 private:
  std::set<std::pair<int, quint32>> held_;  // codes, and the keys themselves
};

/// The keys that went down in another window of the program and have not come up: what is still heard of them
/// is no key of this window.
class KeysFromElsewhere : public QObject {
 public:
  /// `own` is this window.
  explicit KeysFromElsewhere(const QWidget& own);
  /// Whether the event is the rest of such a key.
  [[nodiscard]] bool Take(const QKeyEvent& event);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const QWidget& own_;
  std::set<quint32> down_;
};

}  // namespace tarvik::screen
