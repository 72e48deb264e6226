// What the view of a form has, whatever the form: its bindings, for those who look for a widget.
#pragma once

#include "controls/Form.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class FormView {
 public:
  explicit FormView(Form& form) : form_(form) {}
  virtual ~FormView() = default;
  FormView(const FormView&) = delete;
  FormView& operator=(const FormView&) = delete;

  [[nodiscard]] Form& form() const { return form_; }
  [[nodiscard]] const Bindings& bindings() const { return bindings_; }
  /// The window's close box.
  virtual void CloseByUser() = 0;
  /// The form is about to go: ends the view, as soon as it is out of its own events.
  virtual void Retire() { delete this; }

 protected:
  Bindings bindings_;

 private:
  Form& form_;
};

}  // namespace tarvik::screen
