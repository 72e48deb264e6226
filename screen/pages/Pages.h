// The pages of the tools' windows: how each form is laid out.
#pragma once

#include <functional>

#include "screen/pages/FormLayout.h"
#include "tools/composer/InsertOptions.h"
#include "tools/preferences/Preferences.h"
#include "tools/preferences/StickForm.h"
#include "tools/printing/KneeboardForm.h"
#include "tools/testing/Fly.h"
#include "tools/testing/TryOut.h"
#include "tools/wizards/Speedy.h"
#include "tools/wizards/Wizard.h"

namespace tarvik::screen {

using MakePage = std::function<QLayout*(const FormLayout&)>;

/// The page of the form's window, or nothing for a form that is shown in another way.
[[nodiscard]] MakePage PageOf(Form& form);

/// The pages that are large enough for a file of their own.
[[nodiscard]] QLayout* Page(InsertOptions& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(Preferences& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(Wizard& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(Speedy& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(KneeboardForm& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(Fly& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(TryOut& form, const FormLayout& in);
[[nodiscard]] QLayout* Page(StickForm& form, const FormLayout& in);

}  // namespace tarvik::screen
