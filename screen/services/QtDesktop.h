// What the program shares with the rest of the desktop: the clipboard, the date as the user writes it, and
// the help window.
#pragma once

#include <QObject>
#include <QPointer>

#include "platform/Drives.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "screen/services/HelpWindow.h"

namespace tarvik::screen {

class QtClipboard : public QObject, public Clipboard {
 public:
  QtClipboard();

  void Put(const std::string& text, const std::string& rtf) override;
  bool HasText() override { return hasText_; }
  Converted Text() override;
  std::string Rtf() override;

 private:
  void Look();

  bool hasText_ = false;
};

class QtDesktop : public Desktop {
 public:
  explicit QtDesktop(const Drives& drives) : drives_(drives) {}
  Outcome<> Open(const std::string& path) override;
  /// Starts the first that is installed of the programs that desktops have for it.
  Outcome<> ShowSystemInformation() override;
  [[nodiscard]] bool IsDark() const override;

 private:
  const Drives& drives_;
};

class QtCalendar : public Calendar {
 public:
  [[nodiscard]] std::string ShortDate() const override;
  [[nodiscard]] std::string LongDate() const override;
  [[nodiscard]] std::string TimeOfDay() const override;
  [[nodiscard]] std::string Stamp() const override;
};

class QtHelp : public Help {
 public:
  explicit QtHelp(const Files& files) : files_(files) {}
  ~QtHelp() override;

  void ShowKeyword(const std::string& file, const std::string& keyword) override;
  void ShowContext(const std::string& file, int context) override;
  /// Tells how the examples in the help look. Without it they are black on white.
  std::function<FileLook()> look;

 private:
  HelpWindow& Window(const std::string& file);

  const Files& files_;
  QPointer<HelpWindow> window_;
};

}  // namespace tarvik::screen
