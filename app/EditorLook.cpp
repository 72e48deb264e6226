// What the editor shows of itself: toolbar and entries, tabs, the switches of the view, and colours.
#include <algorithm>

#include "app/Editor.h"
#include "app/EditorTables.h"

namespace tarvik {
namespace {

constexpr int kFirstFileButton = 2;
constexpr int kPrintButton = 5;

}  // namespace

void Editor::SetUpToolbar() {
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    ToolbarButton& button = mum_.Toolbar1.Buttons(row.button);
    button.ToolTipText = row.tip;
    button.Image = row.icon;
    button.Enabled = menus(row.entry).Enabled;
    button.Click = [this, number = row.button] { Toolbar1_ButtonClick(number); };
    MenuItem& entry = menus(row.entry);
    const auto follow = [&button, &entry] { button.Checked = entry.Checked.Get(); };
    follow();
    connections_.push_back(entry.Checked.Changed.Connect(follow));
    entry.Image = row.icon;
    if (row.macroEntry) menus(row.macroEntry).Image = row.icon;
  }
  ShowPicturesInPopUps();
  LetPrintingTellOfPrinter();
}

void Editor::LetPrintingTellOfPrinter() {
  Printer& printer = bench_.platform.printer;
  for (const char* const entry : {"mnuFilePrintJoystick", "mnuFilePrintMacro"}) {
    TellOfPrinter(menus(entry), printer);
  }
  TellOfPrinter(popUps("mnuRHMPrint"), printer);
  TellOfPrinter(mum_.Toolbar1.Buttons(kPrintButton), printer);
}

/// An entry there has the picture of the entry of the menus that does the same, or does it to one file.
void Editor::ShowPicturesInPopUps() {
  for (const MenuRow<Editor>& popUp : tables::kPopUps) {
    if (!popUp.handler) continue;
    const auto* const same = std::find_if(
        std::begin(tables::kMenus), std::end(tables::kMenus),
        [&popUp](const MenuRow<Editor>& row) { return row.handler == popUp.handler && row.index < 0; });
    if (same != std::end(tables::kMenus)) popUps(popUp.name).Image = menus(same->name).Image.Get();
  }
  popUps("mnuRHMColour").Image = menus("mnuViewColourJoystick").Image.Get();
  popUps("mnuRHMPrint").Image = menus("mnuFilePrintJoystick").Image.Get();
}

void Editor::ShowViewSwitches() {
  menus("mnuViewShow").Enabled = true;  // its entries get what they do here
  for (const tables::ViewSwitchRow& row : tables::kViewSwitches) {
    Property<int>& setting = bench_.settings.*row.setting;
    MenuItem& entry = menus(row.entry);
    entry.Click = [this, &setting] { Switch(setting); };
    entry.Enabled = true;
    const auto show = [&setting, &entry] { entry.Checked = setting != 0; };
    connections_.push_back(setting.Changed.Connect(show));
    show();
  }
  connections_.push_back(bench_.settings.ColourAsYouType.Changed.Connect(
      [this] { bench_.notices.Remove(Matter::OffersColours, nullptr); }));
  connections_.push_back(bench_.settings.BackgroundColour.Changed.Connect(
      [this] { bench_.notices.Remove(Matter::OffersDark, nullptr); }));
}

void Editor::ShowJumps() {
  menus("mnuEditBack").Enabled = bench_.jumps.CanGoBack();
  menus("mnuEditForward").Enabled = bench_.jumps.CanGoForward();
}

// View.

void Editor::ShowPopUp(std::string_view name) {
  FitInsertMenu(name);
  PopUp(name);
}

void Editor::FitInsertMenu(std::string_view popUp) {
  for (const char* const entry : {"mnuInsertDivider8", "mnuInsertQuickTip"}) {
    menus(entry).Visible = popUp != "mnuInsert";
  }
}

void Editor::mnuEditDefinition_Click() {
  constexpr std::size_t kMostPlaces = 30;
  places_ = bench_.definitions.FromCaret();
  if (places_.empty()) return bench_.documents.Say("There is no name at the caret that leads anywhere.");
  if (places_.size() == 1) return mnuPlaceArray_Click(1);
  std::vector<std::string> captions;
  for (const Definitions::Place& place : places_) {
    if (captions.size() < kMostPlaces) captions.push_back(place.words);
  }
  popUps.Fill("mnuPlaceArray", captions);
  ShowPopUp("mnuPlaces");
}

void Editor::mnuPlaceArray_Click(int index) {
  const auto place = static_cast<std::size_t>(index) - 1;
  if (place < places_.size()) bench_.definitions.GoTo(places_[place]);
}

void Editor::TabStrip1_Click() {
  Document& document = bench_.documents.Active();
  const std::string caption = bench_.documents.TabOf(document).Caption;
  bench_.documents.status.Panels(panel::kLine).Enabled = true;
  if (document.text.Locked) {
    bench_.documents.SayIsProtected(document);
  } else {
    bench_.documents.Say("Editing " + caption);
  }
  bench_.documents.UpdateSavedIcon();
  document.text.SelStart = document.Caret;
  bench_.documents.ShowCaretLine();
  layout_.ShowPanes();
  document.text.SetFocus();
  UpdateUndoRedoMenus();
  UpdateCCPButtons();
}

void Editor::mnuViewWordWrap_Click() {
  const bool wrap = !mnuViewWordWrap.Checked;
  for (Pane* pane : {&JoystickText, &MacroText}) pane->RightMargin = wrap ? margin::kWindow : margin::kNone;
  mnuViewWordWrap.Checked = wrap;
}

void Editor::ZoomTo(int percent) {
  const int zoom = std::clamp(percent, zoom::kLeast, zoom::kMost);
  bench_.settings.Change(bench_.settings.Zoom, zoom);
  bench_.documents.Say("Zoom: " + TextOf(zoom) + " %");
}

void Editor::UpdateToolBarOpenSaveTooltips() {
  const Settings& settings = bench_.settings;
  Toolbar& toolbar = mum_.Toolbar1;
  toolbar.Buttons(kFirstFileButton).ToolTipText =
      settings.OpenBothOnToolbar == 1 ? "Open joystick file and its macro file (F8)" : "Open file";
  toolbar.Buttons(kFirstFileButton + 1).ToolTipText =
      settings.SaveBothOnToolbar == 1 ? "Save both files" : "Save currently selected file (Ctrl+S)";
}

void Editor::Toolbar1_ButtonClick(int button) {
  const Settings& settings = bench_.settings;
  const bool joystick = bench_.documents.Active().IsJoystick();
  if (button == kFirstFileButton && settings.OpenBothOnToolbar != 1) {
    bench_.files.Load(bench_.documents.Active());
    return;
  }
  if (button == kFirstFileButton + 1 && settings.SaveBothOnToolbar == 1) {
    mnuFileSaveBoth_Click();
    return;
  }
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    if (row.button == button) menus(joystick || !row.macroEntry ? row.entry : row.macroEntry).Click();
  }
}

// Colours.

void Editor::ColourAndOffer(Document& document) {
  bench_.highlighter.Apply(document);
  OfferColourAsYouType();
}

/// Once, to somebody who likes colours.
void Editor::OfferColourAsYouType() {
  Settings& settings = bench_.settings;
  if (settings.OfferColourAsYouType == 0) return;
  settings.Change(settings.OfferColourAsYouType, 0);
  if (settings.ColourAsYouType != 0) return;
  const auto leave = [this] {
    bench_.notices.Remove(Matter::OffersColours, nullptr);
    bench_.documents.FocusActiveText();
  };
  const auto take = [this, leave] {
    leave();
    Switch(bench_.settings.ColourAsYouType);
  };
  bench_.notices.Show(Matter::OffersColours, nullptr,
                      {"Tarvik can show these colours while you type, too (View > Colour as you type).",
                       {{"Colour as I type", take}, {"Leave it", leave}}});
}

void Editor::mnuViewApplyColourBothFiles_Click() {
  Document& before = bench_.documents.Active();
  mnuViewColourJoystick_Click();
  mnuViewColourMacro_Click();
  bench_.documents.Select(before);
}

void Editor::mnuRemoveColourSelectedText_Click() {
  bench_.highlighter.ColourSelection(kBlack);
  bench_.documents.Say("Done");
}

void Editor::mnuInsertWithColour_Click() {
  const bool colour = !mnuInsertWithColour.Checked;
  mnuInsertWithColour.Checked = colour;
  bench_.settings.InsertWithColour = colour ? 1 : 0;
  const Trap trap{bench_.errors, "mnuInsertWithColour_Click"};
  trap(bench_.profile.Write(section::kColours, "InsertWithColour", colour ? "1" : "0"));
}

/// To whoever has left them light until now.
void Editor::OfferDarkColours() {
  Settings& settings = bench_.settings;
  if (settings.BackgroundColour != Settings::ColourIn(ColourScheme::Light, &Settings::BackgroundColour))
    return;
  const auto done = [this] {
    bench_.notices.Remove(Matter::OffersDark, nullptr);
    bench_.documents.FocusActiveText();
  };
  const auto darken = [this, done] {
    bench_.settings.UseScheme(ColourScheme::Dark);
    for (const Document* const document : {&Joystick, &Macro}) bench_.documents.ApplyBackground(*document);
    done();
  };
  bench_.notices.Show(Matter::OffersDark, nullptr,
                      {"Your desktop is dark. The two files can be dark, too (Edit > Preferences > Colours).",
                       {{"Dark files", darken}, {"Leave them light", done}}});
}

}  // namespace tarvik
