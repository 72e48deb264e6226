// The runner: what the user does.
#include <algorithm>

#include "app/Editor.h"
#include "session/RunnerParts.h"
#include "tools/testing/KeyTestForm.h"

namespace tarvik::session {

// The user.

void Runner::Click(const Line& line) {
  Component* const control =
      IsByCaption(line) ? FindByCaption(Word(line, kFormOfCaption), Word(line, 1)) : Find(Word(line, 1));
  if (!driver_->Click(*control)) throw Stop{"it is disabled or hidden"};
}
void Runner::DoubleClick(const Line& line) {
  Component* control = Find(Word(line, 1));
  if (line.words.size() > 2) driver_->Pick(*control, ItemIndex(*control, line.words[2]));
  if (!driver_->DoubleClick(*control)) throw Stop{"it can't be double clicked"};
}
void Runner::RightClick(const Line& line) {
  Component* control = Find(Word(line, 1));
  if (line.words.size() > 2) driver_->Pick(*control, ItemIndex(*control, line.words[2]));
  if (!driver_->RightClick(*control)) throw Stop{"it can't be clicked"};
}
void Runner::Point(const Line& line) {
  if (!driver_->Point(*Find(Word(line, 1)))) throw Stop{"it has nothing to tell"};
}
void Runner::Focus(const Line& line) { FindAs<Control>(Word(line, 1))->SetFocus(); }

int Runner::ItemIndex(Component& control, const std::string& item) {
  std::vector<std::string> items;
  if (auto* list = dynamic_cast<ListBox*>(&control)) items = list->List();
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) items = combo->List();
  if (auto* entry = dynamic_cast<EntryBox*>(&control)) items = entry->List();
  if (auto* pages = dynamic_cast<TabPages*>(&control)) {
    for (int i = 0; i < pages->Count(); ++i) items.push_back(pages->Pages(i).Caption);
  }
  if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
    for (int i = 1; i <= strip->Count(); ++i) items.push_back(strip->Tabs(i).Caption);
  }
  int index = 0;
  const bool isIndex = item.starts_with('#') && ParseText(std::string_view(item).substr(1), index);
  if (isIndex && index >= 0 && index < static_cast<int>(items.size())) return index;
  const auto found = std::find(items.begin(), items.end(), item);
  if (isIndex || found == items.end()) throw Stop{"there is no item " + item};
  return static_cast<int>(found - items.begin());
}

void Runner::Pick(const Line& line) {
  Component* control = Find(Word(line, 1));
  if (!driver_->Pick(*control, ItemIndex(*control, Word(line, 2)))) throw Stop{"it can't be picked"};
}

void Runner::Type(const Line& line) {
  if (!driver_->Type(*FindAs<Control>(Word(line, 1)), Word(line, 2))) throw Stop{"it isn't on show"};
}
/// key CONTROL CHORD [COUNT]
void Runner::PressKey(const Line& line) {
  const int count = line.words.size() > 3 ? Number(line, 3) : 1;
  for (int i = 0; i < count; ++i) {
    if (!driver_->PressKey(*Find(Word(line, 1)), Word(line, 2))) throw Stop{"nothing takes the key"};
  }
}

void Runner::KeyDown(const Line& line) {
  if (!driver_->KeyDown(*Find(Word(line, 1)), Word(line, 2))) throw Stop{"nothing takes the key"};
}
void Runner::KeyUp(const Line& line) {
  if (!driver_->KeyUp(*Find(Word(line, 1)), Word(line, 2))) throw Stop{"nothing takes the key"};
}

/// resize FORM WIDTH HEIGHT: inside, in twips
void Runner::Resize(const Line& line) {
  driver_->Resize(*FindAs<Form>(Word(line, 1)), std::stof(Word(line, 2)), std::stof(Word(line, 3)));
}

void Runner::Drag(const Line& line) {
  auto* list = FindAs<ListBox>(Word(line, 1));
  driver_->Pick(*list, ItemIndex(*list, Word(line, 2)));
  driver_->Drop(*list, *FindAs<Pane>(Word(line, 3)), std::stoul(Word(line, 4)));
}

/// The button's number, the place in twips, and the shift state.
void Runner::Mouse(const Line& line) {
  const std::map<std::string_view, Pointer> acts = {
      {"down", Pointer::Down}, {"move", Pointer::Move}, {"up", Pointer::Up}};
  const int shift = line.words.size() > 6 ? Number(line, 6) : 0;
  driver_->Mouse(acts.at(Word(line, 1)), *FindAs<Control>(Word(line, 2)),
                 {Number(line, 3), shift, {std::stof(Word(line, 4))}, {std::stof(Word(line, 5))}});
}

void Runner::Set(const Line& line) {
  if (!FindProperty(Word(line, 1)).property.FromText(Wanted(line, 2))) throw Stop{"it can't be set to that"};
}

void Runner::SetValue(const Line& line) {
  PropertyBase* const property = application_->FindValue(Word(line, 2));
  if (!property) throw Stop{"there is no such value"};
  if (!property->FromText(Wanted(line, 3))) throw Stop{"it can't be set to that"};
}

/// The named operations that no control reaches.
void Runner::Call(const Line& line) {
  const auto editor = [this] { return FindAs<Editor>("Editor"); };
  const std::map<std::string, std::function<void()>> operations = {
      {"Editor.ExtractButtonDefinition", [&] { editor()->ExtractButtonDefinition(Word(line, 2)); }},
      {"KeyTestForm.TurnOffCapsLOCK", [&] { FindAs<KeyTestForm>("KeyTestForm")->TurnOffCapsLOCK(); }},
      {"Editor.HardwareHasChanged", [&] { editor()->HardwareHasChanged(); }},
      {"Editor.DamnFontWasChanged", [&] { editor()->DamnFontWasChanged(); }},
      {"Editor.DeleteUndosFromMemory", [&] { editor()->DeleteUndosFromMemory(); }},
      {"Editor.Form_Activate", [&] { editor()->Form_Activate(); }},
      {"Editor.EmergencySaveFiles", [&] { editor()->EmergencySaveFiles(); }},
      {"Editor.CheckAtLineBeginning", [&] { editor()->CheckAtLineBeginning(); }},
      {"Mum.ReleaseGradientInEmergency", [&] { application_->mum().ReleaseGradientInEmergency(); }},
      {"Mum.Activated", [&] { application_->Activated(application_->mum()); }},
      {"Mum.MakeFlat", [&] { application_->mum().MakeFlat(); }},
      {"Mum.ColoursSortOut", [&] { application_->mum().ColoursSortOut(); }},
      {"Settings.SaveOptions", [&] { application_->workbench.settings.SaveOptions(); }},
  };
  operations.at(Word(line, 1))();
}

/// choose PATH | cancel | later: the next file dialog stays open until a choice comes.
void Runner::Choose(const Line& line) {
  if (Word(line, 1) == "later") return Hold(outside_.dialogs.holdDialog, heldDialogs_, line);
  chosen_.push_back(&line);
  outside_.dialogs.choices.push_back(line.words[1]);
}

void Runner::Hold(bool& hold, Prepared& held, const Line& line) {
  if (hold) throw Stop{"what was held before has not come yet"};
  hold = true;
  held.push_back(&line);
}

/// answer OK | Yes | No | Cancel | later: the next box stays open until an answer comes.
void Runner::AnswerBox(const Line& line) {
  if (Word(line, 1) == "later") return Hold(outside_.dialogs.holdBox, heldBoxes_, line);
  answered_.push_back(&line);
  const std::map<std::string, Answer> answers = {
      {"OK", Answer::Ok}, {"Yes", Answer::Yes}, {"No", Answer::No}, {"Cancel", Answer::Cancel}};
  outside_.dialogs.answers.push_back(answers.at(Word(line, 1)));
}

/// clipboard text|rtf "TEXT": what another program puts there; clipboard empty.
void Runner::FillClipboard(const Line& line) {
  const std::string& kind = Word(line, 1);
  const std::string content = kind == "empty" ? "" : Wanted(line, 2);
  outside_.clipboard.PutFromOutside(kind == "text" ? content : "", kind == "rtf" ? content : "");
}

}  // namespace tarvik::session
