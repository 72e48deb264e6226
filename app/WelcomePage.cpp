#include "app/WelcomePage.h"

#include "language/Controllers.h"

namespace tarvik {
namespace {

constexpr const char* kOwnSamples = "c:\\samples";

std::string NameIn(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

std::string OwnSample(const std::string& name) { return std::string(kOwnSamples).append("\\").append(name); }

bool HasNothing(const Document& document) {
  return document.text.Characters().empty() && document.IsUntitled();
}

/// Shows what is in a list, or that nothing is.
void ShowList(const RecentList& list, ControlArray<CommandButton>& buttons, Label& nothing) {
  for (int i = 0; i < WelcomePage::kMost; ++i) {
    const bool any = i < list.Count();
    buttons(i).Visible = any;
    if (!any) continue;
    const std::string& name = list.Part(i + 1, 0);
    buttons(i).Caption = NameIn(name);
    buttons(i).ToolTipText = name;
  }
  nothing.Visible = list.Count() == 0;
}

}  // namespace

WelcomePage::WelcomePage(Form& form, Workbench& bench, WelcomeCommands commands)
    : frame(form, "WelcomeFrame"),
      open(form, "WelcomeOpen", "Open a pair of files ..."),
      macroWizard(form, "WelcomeMacroWizard", "Write a macro file, step by step"),
      joystickWizard(form, "WelcomeJoystickWizard", "Write a joystick file, step by step"),
      guide(form, "WelcomeGuide", "Read the user guide"),
      recent(form, "WelcomeRecent", kMost),
      noRecent(form, "WelcomeNoRecent"),
      favourites(form, "WelcomeFavourite", kMost),
      noFavourites(form, "WelcomeNoFavourites"),
      samples(form, "WelcomeSample", kMost),
      bench_(bench),
      commands_(std::move(commands)) {
  for (Label* const nothing : {&noRecent, &noFavourites}) {
    nothing->Caption = kNothingYet;
    nothing->BackColor = ToggleLabel::kOff;
  }
  open.Click = commands_.open;
  macroWizard.Click = commands_.macroWizard;
  joystickWizard.Click = commands_.joystickWizard;
  guide.Click = commands_.guide;
  for (int i = 0; i < kMost; ++i) {
    recent(i).Click = [this, i] { commands_.openRecent(i + 1); };
    favourites(i).Click = [this, i] { commands_.openFavourite(i + 1); };
    samples(i).Click = [this, i] { OpenSample(i); };
  }
  FindSamples();
  Follow();
  ShowLists();
  Show();
}

void WelcomePage::Follow() {
  const auto show = [this] { Show(); };
  for (Document* const document : {&bench_.documents.joystick, &bench_.documents.macro}) {
    connections_.push_back(document->text.Edited.Connect([show](const PaneEdit&) { show(); }));
    connections_.push_back(document->Name.Changed.Connect(show));
  }
  connections_.push_back(bench_.settings.WelcomePage.Changed.Connect(show));
  for (RecentList* const list : {&bench_.lists.JoystickFiles, &bench_.lists.Favourites}) {
    connections_.push_back(list->Changed.Connect([this] { ShowLists(); }));
  }
}

void WelcomePage::Show() {
  const Documents& documents = bench_.documents;
  frame.Visible =
      bench_.settings.WelcomePage != 0 && HasNothing(documents.joystick) && HasNothing(documents.macro);
}

void WelcomePage::ShowLists() {
  ShowList(bench_.lists.JoystickFiles, recent, noRecent);
  ShowList(bench_.lists.Favourites, favourites, noFavourites);
}

/// A joystick file that stands among them is one of a pair.
void WelcomePage::FindSamples() {
  for (const std::string& name : bench_.platform.files.FilesIn(bench_.platform.folder + "\\samples", "")) {
    if (IsJoystickFile(name) && sampleNames_.size() < kMost) sampleNames_.push_back(name);
  }
  for (int i = 0; i < kMost; ++i) {
    const bool any = static_cast<std::size_t>(i) < sampleNames_.size();
    samples(i).Visible = any;
    if (any) samples(i).Caption = sampleNames_[static_cast<std::size_t>(i)];
    samples(i).ToolTipText = std::string("Opens a copy of it in ") + kOwnSamples;
  }
}

std::string WelcomePage::CopyOfSample(const std::string& name) const {
  const Trap trap{bench_.errors, "WelcomePage"};
  Files& files = bench_.platform.files;
  const std::string from = bench_.platform.folder + "\\samples\\";
  if (!files.FolderExists(kOwnSamples)) trap(files.MakeFolder(kOwnSamples));
  for (const std::string& each : files.FilesIn(from, "")) {
    if (each.substr(0, each.rfind('.')) != name.substr(0, name.rfind('.'))) continue;
    if (files.FileExists(OwnSample(each))) continue;
    const auto content = files.Read(from + each);
    if (!trap(content) || !trap(files.Write(OwnSample(each), *content))) return {};
  }
  return OwnSample(name);
}

void WelcomePage::OpenSample(int index) {
  const std::string& name = sampleNames_[static_cast<std::size_t>(index)];
  const std::string copy = CopyOfSample(name);
  if (bench_.platform.files.FileExists(copy)) return commands_.openPair({copy});
  bench_.documents.Say("The sample could not be copied to " + OwnSample(name));
}

}  // namespace tarvik
