#include "tools/printing/KneeboardForm.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "text/CodePage.h"
#include "text/Contrast.h"
#include "text/LineEnds.h"

namespace tarvik {
namespace {

struct ChoiceRow {
  ComboBox KneeboardForm::*box;
  Property<int> Settings::*setting;
  std::initializer_list<const char*> items;
  const char* tip;
};

const ChoiceRow kChoices[] = {
    {&KneeboardForm::Paper, &Settings::KneeboardPaper, {"A4", "Letter", "A5"}, "The size of the paper"},
    {&KneeboardForm::Turned, &Settings::KneeboardTurned, {"Upright", "Sideways"}, "How the paper is turned"},
    {&KneeboardForm::Layers,
     &Settings::KneeboardLayers,
     {"All on one page", "A page for each"},
     "Where the layers of S3 and of the dogfight switch stand"},
    {&KneeboardForm::Order,
     &Settings::KneeboardOrder,
     {"By controls", "By headings"},
     "The order of the list"},
    {&KneeboardForm::Resolution,
     &Settings::KneeboardResolution,
     {"100 dpi", "150 dpi", "200 dpi", "300 dpi", "600 dpi"},
     "How fine a page is as a PNG picture"},
    {&KneeboardForm::Zoom,
     &Settings::KneeboardZoom,
     {"Whole page", "Page width", "100%", "150%", "200%"},
     "How large the page is shown here"},
};

constexpr int kDots[] = {100, 150, 200, 300, 600};

struct SwitchRow {
  CheckBox KneeboardForm::*box;
  Property<int> Settings::*setting;
  const char* tip;
};

constexpr SwitchRow kSwitches[] = {
    {&KneeboardForm::Devices, &Settings::KneeboardDevices,
     "A page for each device, with what its controls do"},
    {&KneeboardForm::Keyboard, &Settings::KneeboardKeyboard,
     "The keyboard, and which of its keys are on the stick"},
    {&KneeboardForm::List, &Settings::KneeboardList, "All that is assigned, as a list"},
    {&KneeboardForm::Keys, &Settings::KneeboardKeys, "Tells the keys beside what they do"},
    {&KneeboardForm::TwoOnASheet, &Settings::KneeboardTwoOnASheet, "Two pages side by side, half as large"},
    {&KneeboardForm::BlackAndWhite, &Settings::KneeboardBlackAndWhite, "For a printer that has no colours"},
};

/// What the ending of a path asks for, in small letters and with its point.
std::string EndingOf(const std::string& path) {
  const std::size_t point = path.find_last_of(".\\");
  return point == std::string::npos || path[point] != '.' ? std::string() : LowerCase(path.substr(point));
}

/// A setting may be any number.
template <class Value>
Value Chosen(const Property<int>& setting, Value last) {
  return static_cast<Value>(std::clamp(setting.Get(), 0, static_cast<int>(last)));
}

/// The colours of the text, as they can be read on paper.
kneeboard::UserInks InksOf(const Settings& settings) {
  const auto onPaper = [](Colour colour) { return WithContrast(colour, kWhite, kReadable); };
  return {onPaper(settings.BTNColour), onPaper(settings.SlashColour), onPaper(settings.RemStatements)};
}

bool Contains(const kneeboard::Area& area, kneeboard::Spot spot) {
  return spot.x >= area.x && spot.x < area.Right() && spot.y >= area.y && spot.y < area.Bottom();
}

}  // namespace

KneeboardForm::KneeboardForm(Workbench& bench, Shell& shell) : ToolForm("Kneeboard", bench, shell) {
  Caption = "Kneeboard";
  Page.BackColor = ToggleLabel::kOff;
  PageNumber.BackColor = ToggleLabel::kOff;
  Previous.ToolTipText = "The page before this one (Page Up)";
  Next.ToolTipText = "The next page (Page Down)";
  Copy.ToolTipText = "Puts this page on the clipboard as a picture";
  SaveAs.ToolTipText = "Saves all pages as PDF, SVG or PNG, or what they say as text";
  Print.ToolTipText = "Prints all pages";
  Done.Cancel = true;
  FillChoices();
  FollowChoices();
  for (Property<Colour>* const ink :
       {&bench.settings.BTNColour, &bench.settings.SlashColour, &bench.settings.RemStatements}) {
    connections_.push_back(ink->Changed.Connect([this] { pause.Begin(); }));
  }
  connections_.push_back(bench.follow.Changed.Connect([this] { TurnToPressed(); }));
  connections_.push_back(bench.models.Changed.Connect([this] { pause.Begin(); }));
  Renew();
}

void KneeboardForm::FillChoices() {
  const Settings& settings = bench_.settings;
  for (const ChoiceRow& row : kChoices) {
    ComboBox& box = this->*row.box;
    box.FillInOrder({row.items.begin(), row.items.end()});
    box.ListIndex = std::clamp((settings.*row.setting).Get(), 0, box.ListCount() - 1);
    box.ToolTipText = row.tip;
  }
  for (const SwitchRow& row : kSwitches) {
    (this->*row.box).Value = settings.*row.setting != 0 ? 1 : 0;
    (this->*row.box).ToolTipText = row.tip;
  }
}

void KneeboardForm::FollowChoices() {
  Settings& settings = bench_.settings;
  for (const ChoiceRow& row : kChoices) {
    ComboBox& box = this->*row.box;
    box.Click = [this, &box, &setting = settings.*row.setting] {
      bench_.settings.Change(setting, box.ListIndex);
      LayOut();
    };
  }
  for (const SwitchRow& row : kSwitches) {
    CheckBox& box = this->*row.box;
    box.Click = [this, &box, &setting = settings.*row.setting] {
      bench_.settings.Change(setting, box.Value);
      LayOut();
    };
  }
}

kneeboard::Options KneeboardForm::Wanted() const {
  const Settings& settings = bench_.settings;
  return {.paper = Chosen(settings.KneeboardPaper, kneeboard::Paper::A5),
          .turned = Chosen(settings.KneeboardTurned, kneeboard::Turned::Landscape),
          .twoOnASheet = settings.KneeboardTwoOnASheet != 0,
          .layers = Chosen(settings.KneeboardLayers, kneeboard::Layers::PageEach),
          .hasKeys = settings.KneeboardKeys != 0,
          .order = Chosen(settings.KneeboardOrder, kneeboard::ListOrder::ByHeading),
          .hasDevices = settings.KneeboardDevices != 0,
          .hasKeyboard = settings.KneeboardKeyboard != 0,
          .hasList = settings.KneeboardList != 0};
}

void KneeboardForm::Renew() {
  pause.Cancel();
  contents_ = kneeboard::ContentsOf(bench_.models.Pair(), bench_.models.Names());
  LayOut();
}

void KneeboardForm::LayOut() {
  const Settings& settings = bench_.settings;
  const kneeboard::Press& press = shell_.Press();
  job_.sheets = kneeboard::SheetsOf(contents_, Wanted(), press.Measure(), press.Plans());
  job_.colouring = settings.KneeboardBlackAndWhite != 0 ? kneeboard::Colouring::BlackAndWhite
                                                        : kneeboard::Colouring::Colours;
  job_.inks = InksOf(settings);
  job_.title = contents_.title.title;
  job_.dotsPerInch = kDots[Chosen(settings.KneeboardResolution, std::size(kDots) - 1)];
  ShowPage();
}

void KneeboardForm::ShowPage() {
  page_ = std::min(page_, job_.sheets.size() - 1);
  std::string words;
  for (const kneeboard::Words& each : Sheet().words) words.append(FromUtf8(each.text)).append("\r\n");
  Page.Caption = words;
  PageNumber.Caption = TextOf(page_ + 1) + " of " + TextOf(job_.sheets.size());
  Previous.Enabled = page_ > 0;
  Next.Enabled = page_ + 1 < job_.sheets.size();
  Changed();
}

void KneeboardForm::Turn(int pages) {
  const int last = static_cast<int>(job_.sheets.size()) - 1;
  page_ = static_cast<std::size_t>(std::clamp(static_cast<int>(page_) + pages, 0, last));
  chosen_.reset();
  ShowPage();
}

const kneeboard::Target* KneeboardForm::TargetAt(kneeboard::Spot spot) const {
  const auto leads = [spot](const kneeboard::Target& target) {
    return target.source && Contains(target.area, spot);
  };
  const auto found = std::ranges::find_if(Sheet().targets, leads);
  return found == Sheet().targets.end() ? nullptr : &*found;
}

template <class Has>
bool KneeboardForm::StandsFor(const kneeboard::Target& target, Has has) const {
  const auto stands = [&target](const auto& each, const auto& sources) {
    if (target.source) return std::ranges::find(sources, *target.source) != sources.end();
    return sources.empty() && !each.label.empty() && target.label == each.label;
  };
  for (const kneeboard::DevicePage& device : contents_.devices) {
    for (const kneeboard::Control& control : device.controls) {
      if (!has(control.name)) continue;
      std::vector<model::Mention> sources;
      for (const kneeboard::Action& action : control.actions) sources.push_back(action.source);
      if (stands(control, sources)) return true;
    }
    for (const kneeboard::Scale& scale : device.scales) {
      if (has(scale.name) && stands(scale, std::vector{scale.source})) return true;
    }
  }
  return false;
}

bool KneeboardForm::Glows(const kneeboard::Target& target) const {
  if (!bench_.follow.IsOn()) return false;
  return StandsFor(target, [this](const std::string& name) { return bench_.follow.IsHeld(name); });
}

void KneeboardForm::TurnToPressed() {
  std::set<std::string> held;
  const auto take = [&](const auto& each) {
    if (bench_.follow.IsHeld(each.name)) held.insert(each.name);
  };
  for (const kneeboard::DevicePage& device : contents_.devices) {
    std::ranges::for_each(device.controls, take);
    std::ranges::for_each(device.scales, take);
  }
  std::vector<std::string> pressed;
  std::ranges::set_difference(held, held_, std::back_inserter(pressed));
  held_ = std::move(held);
  if (!pressed.empty()) TurnTo(pressed.front());
}

void KneeboardForm::TurnTo(const std::string& control) {
  const auto shows = [&](const kneeboard::Sheet& sheet) {
    return std::ranges::any_of(sheet.targets, [&](const kneeboard::Target& target) {
      return StandsFor(target, [&](const std::string& name) { return name == control; });
    });
  };
  if (shows(Sheet())) return;
  const auto found = std::ranges::find_if(job_.sheets, shows);
  if (found == job_.sheets.end()) return;
  page_ = static_cast<std::size_t>(found - job_.sheets.begin());
  chosen_.reset();
  ShowPage();
}

void KneeboardForm::GoTo(kneeboard::Spot spot) {
  const kneeboard::Target* const target = TargetAt(spot);
  if (!target) return;
  bench_.documents.GoTo(DocumentOf(bench_.documents, target->source->file), target->source->range);
}

void KneeboardForm::ChooseLine(int by) {
  const auto& targets = Sheet().targets;
  const std::ptrdiff_t step = by < 0 ? -1 : 1;
  const auto count = static_cast<std::ptrdiff_t>(targets.size());
  std::ptrdiff_t at = chosen_ ? static_cast<std::ptrdiff_t>(*chosen_) + step : (by < 0 ? count - 1 : 0);
  while (at >= 0 && at < count && !targets[static_cast<std::size_t>(at)].source) at += step;
  if (at < 0 || at >= count) return;
  chosen_ = static_cast<std::size_t>(at);
  const kneeboard::Area& area = targets[*chosen_].area;
  std::string words;
  for (const kneeboard::Words& each : Sheet().words) {
    if (Contains(area, each.area.Middle()))
      words.append(words.empty() ? "" : " ").append(FromUtf8(each.text));
  }
  Say(words);
  Changed();
}

const kneeboard::Target* KneeboardForm::ChosenLine() const {
  const auto& targets = Sheet().targets;
  const bool isThere = chosen_ && *chosen_ < targets.size() && targets[*chosen_].source;
  return isThere ? &targets[*chosen_] : nullptr;
}

void KneeboardForm::GoToChosenLine() {
  if (const kneeboard::Target* const target = ChosenLine()) GoTo(target->area.Middle());
}

void KneeboardForm::Copy_Click() {
  shell_.Press().Copy(job_, page_);
  Say("The page is on the clipboard");
}

/// Beside the joystick file and with its name, where it has one.
FileRequest KneeboardForm::Question() const {
  const std::string& path = bench_.documents.joystick.Path.Get();
  const std::size_t name = path.rfind('\\') + 1;
  FileRequest request = {FileDialogKind::Save,
                         "Save the kneeboard",
                         "PDF (*.pdf)|*.pdf|SVG (*.svg)|*.svg|PNG (*.png)|*.png|Text (*.txt)|*.txt",
                         bench_.settings.ProgramFilesPath,
                         "kneeboard.pdf",
                         "pdf"};
  if (name == 0) return request;
  request.folder = path.substr(0, name);
  request.fileName = path.substr(name, path.find('.', name) - name) + ".pdf";
  return request;
}

std::vector<std::string> KneeboardForm::FilesAt(const std::string& path) const {
  return EndingOf(path) == ".txt" ? std::vector{path} : kneeboard::FilesOf(path, job_.sheets.size());
}

/// The dialog has asked about the path itself, but not about the pages that have numbers.
bool KneeboardForm::MayReplace(const std::vector<std::string>& files) {
  if (files.size() < 2) return true;
  std::string there;
  for (const std::string& file : files) {
    if (bench_.platform.files.FileExists(file)) there.append("\r\n").append(file);
  }
  if (there.empty()) return true;
  const MessageBox box = {"Save the kneeboard",
                          "These files are there already:" + there + "\r\n\r\nDo you want to replace them?",
                          BoxIcon::Question, BoxButtons::YesNo, Answer::No};
  return bench_.platform.dialogs.Show(box) == Answer::Yes;
}

void KneeboardForm::SaveAs_Click() {
  const Trap trap{bench_.errors, "Kneeboard SaveAs_Click"};
  const auto path = Ignore(bench_.platform.dialogs.AskForFile(Question()));
  if (!path) return;
  const std::vector<std::string> files = FilesAt(*path);
  if (!MayReplace(files)) return;
  const std::string names = files.size() < 2 ? files.front() : files.front() + " to " + files.back();
  const bool saved = trap(SaveTo(*path)).has_value();
  Say(saved ? "The kneeboard is saved as " + names : *path + " can't be written");
}

Outcome<> KneeboardForm::SaveTo(const std::string& path) {
  if (EndingOf(path) == ".txt") {
    const auto order = Chosen(bench_.settings.KneeboardOrder, kneeboard::ListOrder::ByHeading);
    return bench_.platform.files.Write(path, WithDosEnds(kneeboard::ListAsText(contents_, order)));
  }
  const std::string host = bench_.platform.drives.ToHost(path);
  if (host.empty()) return Failure{error::kPathNotFound, "Path not found", 0};
  return shell_.Press().Write(job_, host);
}

void KneeboardForm::Print_Click() {
  const Trap trap{bench_.errors, "Kneeboard Print_Click"};
  const Outcome<> printed = shell_.Press().Print(job_);
  if (printed.failure().number == error::kDialogCancelled) return;
  Say(trap(printed) ? "The kneeboard is printed" : "The kneeboard can't be printed");
}

}  // namespace tarvik
