// A form with pages of words and controls from a document: the two wizards and Speedy are such forms.
#pragma once

#include "controls/Controls.h"
#include "tools/wizards/GuidePages.h"

namespace tarvik {

class GuidedForm : public Form {
 public:
  GuidedForm(std::string_view name, std::string_view guide);

  const std::vector<GuidePage> pages;
  /// The words of all pages in reading order, those that name a control included.
  ControlArray<Label> Texts{*this, "Texts", 0};
};

}  // namespace tarvik
