#include "tools/wizards/GuidedForm.h"

namespace tarvik {

GuidedForm::GuidedForm(std::string_view name, std::span<const tables::GuidePage> guide)
    : Form(name), pages(guide) {
  Topmost = true;
  for (const tables::GuidePage& page : pages) {
    for (const tables::GuideRow& row : page.rows) {
      if (!row.text.empty()) Texts.Load(Texts.Count()).Caption = std::string(row.text);
    }
  }
}

}  // namespace tarvik
