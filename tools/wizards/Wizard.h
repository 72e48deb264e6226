// A guided form whose pages are turned one by one: what the macro wizard and the joystick wizard have in
// common.
#pragma once

#include "tools/wizards/GuidedForm.h"

namespace tarvik {

class Wizard : public GuidedForm {
 public:
  struct Traits {
    const char* name;
    const char* caption;
    const char* frames;
    const char* buttons;
    const char* finish;
    int finishFrom;          ///< the first page on which the wizard can be finished
    std::string_view guide;  ///< the document of its pages
  };

  enum Button { kFinish, kNext, kBack, kCancel };

  Wizard(const Traits& traits, Workbench& bench, Shell& shell);

  /// The number of the page on show, from 0.
  Property<int> Page{*this, "Page", 0};
  ControlArray<Frame> frames;
  ControlArray<CommandButton> buttons;

  /// Next and Back turn the page. Finish goes to the last page, and from there ends the wizard as Cancel
  /// does.
  void Button_Click(int index);

 protected:
  /// Called after every turn of a page.
  virtual void Turned() { buttons(kNext).MakeDefault(); }

 private:
  void TurnTo(int page);

  const Traits traits_;
};

}  // namespace tarvik
