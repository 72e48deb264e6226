// A form with pages of words and controls from a document: the two wizards and Speedy are such forms.
#pragma once

#include "tools/wizards/GuidePages.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class GuidedForm : public ToolForm {
 public:
  GuidedForm(std::string_view name, std::string_view guide, Workbench& bench, Shell& shell);

  const std::vector<GuidePage> pages;
  /// The words of all pages in reading order, those that name a control included.
  ControlArray<Label> Texts{*this, "Texts", 0};
};

}  // namespace tarvik
