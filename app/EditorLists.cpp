// The editor's macro lists and the row of buttons below them.
#include "app/Editor.h"

namespace tarvik {
namespace {

constexpr int kDelayButton = 11;

}  // namespace

void Editor::HelpOnWhatsThis(int topic) {
  if (mum_.MousePointer != pointer::kWhatsThis) return;
  ShowHelp(bench_.platform, topic);
  mum_.MousePointer = pointer::kDefault;
}

void Editor::Command1_Click(int index) {
  SharedValues& values = bench_.values;
  const Settings& settings = bench_.settings;
  const std::string value = TextOf(settings.DefaultDLYvalue.Get());
  const bool delay = index == kDelayButton;
  values.InsertionText = delay ? "DLY(" : Command1(index).Caption.Get() + " ";
  values.InsertionColour = delay ? settings.RAWColour.Get() : settings.SlashColour.Get();
  bench_.insertion.BeginColInsert();
  if (settings.InsertWithColour == 0) {
    if (delay) values.InsertionText = "DLY(" + value + ") ";
    values.InsertionColour = kBlack;
    bench_.insertion.InsertBlackText();
  } else {
    bench_.insertion.AddSpaceToColouredText();
    bench_.insertion.InsertColouredString(values.InsertionText, values.InsertionColour);
    if (delay) {
      bench_.insertion.InsertColouredStringNoSpace(value, kBlack);
      bench_.insertion.InsertColouredString(") ", values.InsertionColour);
    }
  }
  bench_.insertion.EndColInsert();
}

}  // namespace tarvik
