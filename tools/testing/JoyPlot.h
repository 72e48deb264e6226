// The joystick analyser: plots where the stick goes, to show dead zones, drift of the centre and spikes.
#pragma once

#include "controls/Menu.h"
#include "controls/PlotBox.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class JoyPlot : public ToolForm {
 public:
  explicit JoyPlot(Workbench& bench, Shell& shell);

  Menus menus;
  PlotBox PicJoy{*this, "PicJoy"};
  Timer JoyTimer{*this, "JoyTimer"};

  // The position that the marker shows.
  Property<int> PlotX{*this, "PlotX", 0};
  Property<int> PlotY{*this, "PlotY", 0};
  // The part of the joystick's range that is on show.
  Property<float> ScaleHigh{*this, "ScaleHigh"};
  Property<float> ScaleLow{*this, "ScaleLow"};
  // What the menu's entries of these names say: -1 where they are ticked, and 0.
  Property<int> GridOn{*this, "GridOn", 0};
  Property<int> MaintainOn{*this, "MaintainOn", 0};
  Property<int> PlotOn{*this, "PlotOn", 0};
  /// The error of the last try to find the joystick; 0 where there was none.
  Property<int> LastError{*this, "LastError", 0};

  void Form_Load();
  void Form_Activate();
  /// Fits the picture to the form and begins it anew.
  void Form_Resize();
  void JoyTimer_Timer();
  void mnuexit_Click() { Close(); }
  void mnuClear_Click() { PicJoy.Cls(); }
  void mnuPlot_Click();
  void mnuMaintain_Click();
  void mnuGrid_Click();
  void mnuZoom_Click();
  void mnuHelpOverview_Click();
  void mnuhelpSpiking_Click();
  void mnuReadMe_Click();
  /// Looks for the joystick, prepares the picture and starts reading.
  void JoyPlotSetup();

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }

 private:
  /// Turns an entry's check mark over, and gives -1 when the entry now has one and 0 when it has none.
  int Flip(std::string_view entry);
  void StopWith(const char* text);
  void DrawCentreLines(float low, Colour vertical, Colour horizontal);
  void DrawMarker(Colour outline, Colour diagonals);
  void DrawDiagonals(Colour colour);
  void DrawGrid();
};

}  // namespace tarvik
