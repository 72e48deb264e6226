#include "tools/testing/JoyPlot.h"

#include <algorithm>

#include "tools/testing/JoystickReading.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

// Sizes in the joystick's units.
constexpr float kCentre = 32768;
constexpr int kCentredFrom = 32269;
constexpr int kCentredTo = 33267;
constexpr float kMarker = 750;  // from the marker's middle to its corners
constexpr float kGridLines[] = {8192, 16384, 24576, 40960, 49152, 57344};
constexpr float kZoomLow = 22768;
constexpr float kZoomHigh = 42768;

constexpr Colour kRed{255};
constexpr Colour kGreen{65280};
constexpr Colour kBlue{0xFF0000};
constexpr Colour kGridColour = Rgb(85, 128, 151);

constexpr float kInside = 6000;  // twips, until the window says otherwise

constexpr MenuRow<JoyPlot> kPlotMenus[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuexit", "E&xit joystick analyser", "", &JoyPlot::mnuexit_Click},
    {0, "mnuDisplay", "&Display options"},
    {1, "mnuClear", "&Clear", "", &JoyPlot::mnuClear_Click},
    {1, "mnuDivider1", "-"},
    {1, "mnuPlot", "&Plot", "", &JoyPlot::mnuPlot_Click},
    {1, "mnuMaintain", "&Maintain 1:1 ratio", "", &JoyPlot::mnuMaintain_Click},
    {1, "mnuGrid", "Show &grid", "", &JoyPlot::mnuGrid_Click},
    {1, "mnuDivider2", "-"},
    {1, "mnuZoom", "&Zoom", "", &JoyPlot::mnuZoom_Click},
    {0, "mnuWindow", "&Window"},
    MenuArray<JoyPlot>(1, "mnuArrange", kArrangements),
    {0, "mnuHelp", "&Help"},
    {1, "mnuHelpOverview", "&Overview", "", &JoyPlot::mnuHelpOverview_Click},
    {1, "mnuHelpDivider1", "-"},
    {1, "mnuhelpSpiking", "&Spiking problems", "", &JoyPlot::mnuhelpSpiking_Click},
    {1, "mnuReadMe", "&Read me", "", &JoyPlot::mnuReadMe_Click},
};

Colour CentreColour(int position) {
  return position >= kCentredFrom && position <= kCentredTo ? kGreen : kRed;
}

}  // namespace

JoyPlot::JoyPlot(Workbench& bench, Shell& shell)
    : ToolForm("JoyPlot", bench, shell), menus(*this, kPlotMenus) {
  Caption = "Joystick motion analayser";
  ScaleWidth = kInside;
  ScaleHeight = kInside;
  PicJoy.BackColor = kWhite;
  JoyTimer.Interval = 1;
  JoyTimer.Elapsed = [this] { JoyTimer_Timer(); };
  Form::Load = [this] { Form_Load(); };
  Form::Activate = [this] { Form_Activate(); };
  Form::Resize = [this] { Form_Resize(); };
}

void JoyPlot::Form_Load() {
  for (const char* const entry : {"mnuPlot", "mnuGrid"}) menus(entry).Checked = true;
  PlotOn = -1;
  GridOn = -1;
  ScaleHigh = static_cast<float>(kJoystickRange);
  ScaleLow = 0;
  JoyPlotSetup();
  Visible = true;
}

/// The editor's toolbar is of no use here and goes.
void JoyPlot::Form_Activate() { shell_.HideToolbar(); }

void JoyPlot::JoyPlotSetup() {
  JoyTimer.Enabled = false;
  const Outcome<JoyCaps> caps = bench_.platform.joystick.GetDevCaps();
  LastError = caps.failure().number;
  if (!caps) bench_.platform.dialogs.Show(NoJoystickBox());
  PicJoy.Scale(0, static_cast<float>(kJoystickRange));
  PicJoy.Cls();
  DrawCentreLines(ScaleLow, kBlack, kBlack);
  JoyTimer.Enabled = static_cast<bool>(caps);
}

void JoyPlot::Form_Resize() {
  const float side = std::min(ScaleWidth.Get(), ScaleHeight.Get());
  const bool square = MaintainOn != 0;
  PicJoy.Move(0, 0, square ? side : ScaleWidth.Get(), square ? side : ScaleHeight.Get());
  PicJoy.Cls();
  PicJoy.Scale(ScaleLow, ScaleHigh);
  DrawCentreLines(ScaleLow, kRed, kRed);
}

// Plotting.

void JoyPlot::JoyTimer_Timer() {
  const Outcome<JoyInfo> info = bench_.platform.joystick.GetPosEx();
  LastError = info.failure().number;
  if (LastError == joystick::kUnplugged) {
    StopWith(
        "I think your joystick is unplugged, or incorrectly set up under Windows. Please investigate "
        "further!");
    return;
  }
  if (!info) {
    StopWith(
        "Ooohhh....something's happened to the signal from the joystick. Please check your settings, close "
        "down the joystick analyser, and restart it to see if I can pick it up again.");
    return;
  }
  DrawMarker(PicJoy.BackColor, PicJoy.BackColor);
  if (PlotOn) DrawDiagonals(kBlue);  // these lines stay, as the trace
  PlotX = info->x;
  PlotY = info->y;
  DrawMarker(kBlack, PlotOn ? kBlue : kBlack);
  Say("Joystick position: x = " + PlotX.ToText() + ", y = " + PlotY.ToText());
  // The marker and the trace have painted over the lines.
  DrawCentreLines(0, CentreColour(PlotX), CentreColour(PlotY));
  if (GridOn) DrawGrid();
}

/// The timer stops first: while the box is open it would bring up the next one.
void JoyPlot::StopWith(const char* text) {
  JoyTimer.Enabled = false;
  bench_.platform.dialogs.Show({"Tarvik", text, BoxIcon::None, BoxButtons::Ok});
}

void JoyPlot::DrawCentreLines(float low, Colour vertical, Colour horizontal) {
  PicJoy.Line(kCentre, low, kCentre, ScaleHigh, vertical);
  PicJoy.Line(low, kCentre, ScaleHigh, kCentre, horizontal);
}

/// The marker is a diamond around the position, with its two diagonals.
void JoyPlot::DrawMarker(Colour outline, Colour diagonals) {
  const auto x = static_cast<float>(PlotX);
  const auto y = static_cast<float>(PlotY);
  PicJoy.Line(x - kMarker, y, x, y - kMarker, outline);
  PicJoy.Line(x, y - kMarker, x + kMarker, y, outline);
  PicJoy.Line(x + kMarker, y, x, y + kMarker, outline);
  PicJoy.Line(x, y + kMarker, x - kMarker, y, outline);
  DrawDiagonals(diagonals);
}

void JoyPlot::DrawDiagonals(Colour colour) {
  const auto x = static_cast<float>(PlotX);
  const auto y = static_cast<float>(PlotY);
  PicJoy.Line(x - kMarker, y, x + kMarker, y, colour);
  PicJoy.Line(x, y - kMarker, x, y + kMarker, colour);
}

void JoyPlot::DrawGrid() {
  PicJoy.DrawStyle = drawstyle::kDots;
  for (const float at : kGridLines) {
    PicJoy.Line(at, ScaleLow, at, ScaleHigh, kGridColour);
    PicJoy.Line(ScaleLow, at, ScaleHigh, at, kGridColour);
  }
  PicJoy.DrawStyle = drawstyle::kSolid;
}

// Menus.

int JoyPlot::Flip(std::string_view entry) {
  MenuItem& item = menus(entry);
  item.Checked = !item.Checked;
  return item.Checked ? -1 : 0;
}

void JoyPlot::mnuPlot_Click() {
  PlotOn = Flip("mnuPlot");
  mnuClear_Click();
}

void JoyPlot::mnuGrid_Click() {
  GridOn = Flip("mnuGrid");
  mnuClear_Click();
}

void JoyPlot::mnuMaintain_Click() {
  MaintainOn = Flip("mnuMaintain");
  Form_Resize();
}

void JoyPlot::mnuZoom_Click() {
  const bool zoomed = Flip("mnuZoom") != 0;
  ScaleLow = zoomed ? kZoomLow : 0;
  ScaleHigh = zoomed ? kZoomHigh : static_cast<float>(kJoystickRange);
  Form_Resize();
}

void JoyPlot::mnuHelpOverview_Click() { ShowHelp(bench_.platform, topic::kJoystickAnalyser); }
void JoyPlot::mnuhelpSpiking_Click() { ShowHelp(bench_.platform, topic::kSpiking); }

void JoyPlot::mnuReadMe_Click() {
  bench_.platform.dialogs.Show(
      {"Be kind on your CPU",
       "Don't leave this running when you're using other parts of Tarvik, as it may slow down Tarvik becuase "
       "the program is constantly reading data from the joystick. The centre lines will change to green if "
       "the joystick is centred on that axis.",
       BoxIcon::Information, BoxButtons::Ok});
}

}  // namespace tarvik
