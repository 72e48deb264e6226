// The kneeboard: the two files on show as pages to print and tape beside the screen. It shows them as they
// will be printed, and follows the files.
#pragma once

#include <set>

#include "kneeboard/Press.h"
#include "workbench/ToolForm.h"

namespace tarvik {

/// How large a page is shown.
enum class PageZoom { WholePage, PageWidth, Actual, OneAndAHalf, Double };

class KneeboardForm : public ToolForm {
 public:
  KneeboardForm(Workbench& bench, Shell& shell);

  // How the pages are wanted. Each is a setting, which is stored as it changes.
  ComboBox Paper{*this, "Paper"};
  ComboBox Turned{*this, "Turned"};
  ComboBox Layers{*this, "Layers"};
  ComboBox Order{*this, "Order"};
  ComboBox Resolution{*this, "Resolution"};  ///< of pictures
  CheckBox Devices{*this, "Devices", "Stick, throttle and pedals"};
  CheckBox Keyboard{*this, "Keyboard", "Keyboard"};
  CheckBox List{*this, "List", "List"};
  CheckBox Keys{*this, "Keys", "Keys beside the words"};
  CheckBox TwoOnASheet{*this, "TwoOnASheet", "Two pages on a sheet"};
  CheckBox BlackAndWhite{*this, "BlackAndWhite", "Black and white"};

  ComboBox Zoom{*this, "Zoom"};
  Label Page{*this, "Page"};  ///< its Caption is the words on the page, for whoever cannot see it
  CommandButton Previous{*this, "Previous", "Previous", &KneeboardForm::Previous_Click};
  Label PageNumber{*this, "PageNumber"};
  CommandButton Next{*this, "Next", "Next", &KneeboardForm::Next_Click};
  CommandButton Copy{*this, "Copy", "Copy page", &KneeboardForm::Copy_Click};
  CommandButton SaveAs{*this, "SaveAs", "Save as ...", &KneeboardForm::SaveAs_Click};
  CommandButton Print{*this, "Print", "&Print ...", &KneeboardForm::Print_Click};
  CommandButton Done{*this, "Done", "Close", &KneeboardForm::Close};
  Pause pause{*this, "TimerKneeboard", 10, [this] { Renew(); }};

  void Form_Activate() { shell_.HideToolbar(); }
  void Previous_Click() { Turn(-1); }
  void Next_Click() { Turn(1); }
  void Copy_Click();
  void SaveAs_Click();
  void Print_Click();
  /// Whether a statement stands at that place of the page.
  [[nodiscard]] bool LeadsSomewhere(kneeboard::Spot spot) const { return TargetAt(spot) != nullptr; }
  /// Goes in the editor to the statement that stands at that place of the page, if there is one.
  void GoTo(kneeboard::Spot spot);
  /// Chooses the next line of the page that leads to a statement, or the one before; says what stands there.
  void ChooseLine(int by);
  /// Null where none is chosen.
  [[nodiscard]] const kneeboard::Target* ChosenLine() const;
  void GoToChosenLine();

  /// Whether it stands for a control that is pressed on the stick, and what tells when another one is. Of a
  /// control that does nothing it is the box, and of others the rows.
  [[nodiscard]] bool Glows(const kneeboard::Target& target) const;
  [[nodiscard]] FollowStick& Following() const { return bench_.follow; }

  /// There is always one.
  [[nodiscard]] const kneeboard::Sheet& Sheet() const { return job_.sheets[page_]; }
  [[nodiscard]] const kneeboard::Job& Job() const { return job_; }
  /// Another page is on show, or it has changed.
  Signal<> Changed;

 private:
  void FillChoices();
  void FollowChoices();
  /// The files have changed.
  void Renew();
  /// The pages anew, of what the files say already.
  void LayOut();
  [[nodiscard]] const kneeboard::Target* TargetAt(kneeboard::Spot spot) const;
  /// Whether it stands for a control of which `has` is true, by its name.
  template <class Has>
  [[nodiscard]] bool StandsFor(const kneeboard::Target& target, Has has) const;
  /// The page turns to where a control stands that is pressed only now.
  void TurnToPressed();
  void TurnTo(const std::string& control);
  void Turn(int pages);
  void ShowPage();
  [[nodiscard]] kneeboard::Options Wanted() const;
  [[nodiscard]] FileRequest Question() const;
  /// That are written for that path.
  [[nodiscard]] std::vector<std::string> FilesAt(const std::string& path) const;
  bool MayReplace(const std::vector<std::string>& files);
  Outcome<> SaveTo(const std::string& path);

  kneeboard::Contents contents_;
  kneeboard::Job job_;
  std::size_t page_ = 0;
  std::optional<std::size_t> chosen_;  ///< of the targets of the page
  std::set<std::string> held_;         ///< controls, as far as they stand on pages
  std::vector<Connection> connections_;
};

}  // namespace tarvik
