#include "screen/WindowTitle.h"

#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

/// Stands where the desktop puts its mark for unsaved work. In a file's name the same characters are doubled
/// to stand for themselves.
const QLatin1String kMark("[*]");

QString CaptionOf(const Form& form) { return ToScreen(form.Caption.Get()).trimmed(); }

QString TitleOf(const Form& form) {
  QString file = ToScreen(form.FileOnShow.Get());
  if (file.isEmpty()) return CaptionOf(form) + kMark;
  return file.replace(kMark, QLatin1String("[*][*]")) + kMark + QLatin1String(" - ") + CaptionOf(form);
}

}  // namespace

void BindTitle(Form& form, QWidget& window, Bindings& bindings) {
  const auto show = [&form, &window] { window.setWindowTitle(TitleOf(form)); };
  bindings.Bind(form.Caption, show);
  bindings.Bind(form.FileOnShow, show);
  bindings.Bind(form.Unsaved, [&form, &window] { window.setWindowModified(form.Unsaved); });
}

}  // namespace tarvik::screen
