// The title of a form's window, as desktops have it: the file on show with the desktop's own mark for unsaved
// work, and then what the form is called.
#pragma once

#include "controls/Form.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

void BindTitle(Form& form, QWidget& window, Bindings& bindings);

}  // namespace tarvik::screen
