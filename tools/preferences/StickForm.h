// The sticks of today: which control of the hardware each of their buttons, hats and axes stands for. Press a
// button or move an axis, then click the control in the drawing, or choose it from the list.
#pragma once

#include "controls/ControlArrays.h"
#include "controls/Controls.h"
#include "language/ComposerTables.h"
#include "play/ReadySticks.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class StickForm : public ToolForm {
 public:
  StickForm(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};       ///< what to do
  ListBox Sticks{*this, "Sticks"};     ///< those that are there, then others that are mapped
  ListBox Inputs{*this, "Inputs"};     ///< what the stick has, each with what it stands for
  ComboBox Way{*this, "Way"};          ///< which part of a hat or an axis
  ComboBox Control{*this, "Control"};  ///< what it can stand for
  CommandButton Assign{*this, "Assign", "&Assign", &StickForm::Assign_Click};
  CommandButton Remove{*this, "Remove", "&Remove", &StickForm::Remove_Click};
  CommandButton ClearAll{*this, "ClearAll", "C&lear all", &StickForm::ClearAll_Click};
  CommandButton Ready{*this, "Ready", "Ready-&made", &StickForm::Ready_Click};
  CommandButton Done{*this, "Done", "OK", &StickForm::Close};
  CommandButton HelpButton{*this, "HelpButton", "Help"};
  TabPages SSTabHardware{*this, "SSTabHardware", {"F-22 and F-16", "PFCS and FCS", "TQS", "WCS"}};
  NamedControls<Label> hardware{*this};  ///< the labels of the drawings, as in the Composer

  void Form_Load();
  void Sticks_Click();
  void Inputs_Click();
  void Way_Click();
  void Assign_Click();
  void Remove_Click();
  void ClearAll_Click();
  void Ready_Click();
  /// A control of the drawing was clicked.
  void Hardware_Click(const tables::HardwareRow& row);

  [[nodiscard]] Label& LabelOf(const tables::HardwareRow& row) const;
  /// What stands for the control on the stick in hand, in words.
  [[nodiscard]] std::vector<std::string> InputsFor(const tables::HardwareRow& row) const;
  /// A control stands for something else.
  Signal<> MapChanged;

 private:
  struct Stick {
    play::StickId id;
    play::StickShape shape;
    std::optional<int> number = {};  ///< none where it is not plugged in
  };
  struct InputRow {
    play::StickInput input;
    std::string control;
  };

  void MakeHardware();
  void ShowSticks();
  void ShowInputs();
  void ShowTargets();
  void Hear(const StickChange& change);
  /// The input that the user means by it.
  [[nodiscard]] std::optional<play::StickInput> InputOf(const StickChange& change);
  void Pick(const play::StickInput& input);
  void Give(const play::StickInput& input, const std::string& control);
  void Keep(const play::StickMap& map, const std::string& say);
  [[nodiscard]] const Stick* InHand() const;
  /// With the way that is chosen.
  [[nodiscard]] std::optional<play::StickInput> InputInHand() const;
  [[nodiscard]] std::vector<std::string> TargetsOf(const tables::HardwareRow& row,
                                                   const play::StickInput& input) const;

  std::vector<Stick> sticks_;
  std::vector<InputRow> rows_;
  std::vector<play::StickWay> ways_;
  std::map<std::pair<int, int>, int> rests_;      // of axes, by stick and number: where they were
  play::StickWay heard_ = play::StickWay::Whole;  // the direction of a hat that was pressed last
  bool filling_ = false;
  std::vector<Connection> connections_;
  std::unique_ptr<StickFeed::Listening> listening_;
};

}  // namespace tarvik
