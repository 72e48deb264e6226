#include "session/ScreenSession.h"

#include <QApplication>

#include "screen/Screen.h"
#include "session/Driver.h"
#include "session/ScreenAccess.h"

namespace tarvik::session {
namespace {

class ScreenDriver : public Driver {
 public:
  explicit ScreenDriver(Application& application)
      : screen_(application, screen::Clock::Scripted), access_(screen_) {}

  bool Click(Component& control) override { return Usable(control) && (access_.Click(control), true); }
  bool DoubleClick(Component& control) override {
    return Usable(control) && (access_.DoubleClick(control), true);
  }
  bool RightClick(Component& control) override {
    return Usable(control) && (access_.RightClick(control), true);
  }
  bool Point(Component& control) override { return access_.Point(control); }
  bool Pick(Component& control, int index) override { return access_.Pick(control, index); }
  bool Type(Control& control, std::string_view text) override {
    return Usable(control) && (access_.Type(control, text), true);
  }
  void Close(Form& form) override { access_.Close(form); }
  bool PressKey(Component& control, std::string_view chord) override {
    return Usable(control) && (access_.PressKey(control, chord), true);
  }
  bool KeyDown(Component& control, std::string_view chord) override {
    return Usable(control) && (access_.KeyDown(control, chord), true);
  }
  bool KeyUp(Component& control, std::string_view chord) override {
    return Usable(control) && (access_.KeyUp(control, chord), true);
  }
  void Resize(Form& form, float width, float height) override { access_.Resize(form, width, height); }
  Colour ColourAt(PlotBox& picture, float x, float y) override { return access_.ColourAt(picture, x, y); }
  void Mouse(Pointer act, Control& control, const tarvik::Mouse& mouse) override {
    constexpr QEvent::Type kActs[] = {QEvent::MouseButtonPress, QEvent::MouseMove,
                                      QEvent::MouseButtonRelease};
    access_.Mouse(kActs[static_cast<int>(act)], control, mouse);
  }
  void Drop(ListBox& from, Pane& pane, std::size_t position) override { access_.Drop(from, pane, position); }
  bool HasFocus(const Control& control) override {
    access_.Settle();
    return access_.HasFocus(control);
  }
  std::string Read(const Component& component, const PropertyBase& property) override {
    return access_.Read(component, property);
  }
  void Settle() override { access_.Settle(); }

 private:
  /// Whether a user can get at the control: it is shown, on a page that is, and not greyed out.
  [[nodiscard]] bool Usable(const Component& control) {
    for (const char* name : {"Visible", "Enabled"}) {
      const PropertyBase* property = control.FindProperty(name);
      if (property && Read(control, *property) == "False") return false;
    }
    return access_.IsOnShow(control);
  }

  screen::Screen screen_;
  screen::ScreenAccess access_;
};

}  // namespace

struct ScreenSession::Toolkit {
  Toolkit(int& count, char** arguments) : application(count, arguments) {}
  QApplication application;
};

ScreenSession::ScreenSession(bool wanted, int& count, char** arguments)
    : toolkit_(wanted ? std::make_unique<Toolkit>(count, arguments) : nullptr) {}
ScreenSession::~ScreenSession() = default;

std::unique_ptr<Driver> MakeScreenDriver(Application& application) {
  return std::make_unique<ScreenDriver>(application);
}

}  // namespace tarvik::session
