#include "tools/wizards/GuidedForm.h"

namespace tarvik {

GuidedForm::GuidedForm(std::string_view name, std::string_view guide, Workbench& bench, Shell& shell)
    : ToolForm(name, bench, shell), pages(ReadGuide(guide)) {
  Topmost = true;
  for (const GuidePage& page : pages) {
    for (const GuideRow& row : page.rows) {
      if (!row.text.empty()) Texts.Load(Texts.Count()).Caption = std::string(row.text);
    }
  }
}

}  // namespace tarvik
