// The frame window: toolbar, status bar, progress bar and colour swatch around the editor. It is the
// program's first window and its last.
#pragma once

#include "app/Application.h"

namespace tarvik {

inline constexpr int kToolbarButtons = 42;
/// The toolbar button that the colour swatch covers.
inline constexpr int kSwatchButton = 29;

class Mum : public Form {
 public:
  explicit Mum(Application& application);

  Toolbar Toolbar1{*this, "Toolbar1", kToolbarButtons};
  // These controls are the workbench's; they have their places here.
  tarvik::StatusBar& StatusBar;
  ProgressBar& ProgressBar1;
  PictureBox& Picture1;
  // What stands in the editor's place while there is none.
  Label EmptyText{*this, "EmptyText"};
  CommandButton EmptyEditor{*this, "EmptyEditor", "Open the editor", &Mum::mnuMumAppsEditor_Click};
  /// How many problems there are in the two files; it opens their list.
  CommandButton ProblemCount{*this, "ProblemCount", "", &Mum::ProblemCount_Click};
  Menus menus;

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }

  /// The state that is stored: 0 is normal, all others are maximised.
  Property<int> MumWindowstate{*this, "MumWindowstate", 0};

  /// What the status bar says while there is no editor.
  void BeginStatus();
  void MDIForm_Load();
  void MDIForm_Resize();
  void MDIForm_Unload() { SaveMumPosition(); }
  void GetMumPosition();
  void SaveMumPosition();
  void AutoDetect();
  void ColoursSortOut() { bench_.settings.ColoursSortOut(); }
  void Picture1_Click();
  void ProblemCount_Click();
  /// Turns the toolbar's flat style over.
  void MakeFlat() { Toolbar1.Flat = !Toolbar1.Flat; }
  // Ready for an active error report; nothing calls them yet.
  void LastAttemptToSaveToolbar() {}
  void ReleaseGradientInEmergency() { application_.UnloadTools(EndsWith::Frame); }
  void mnuMumAppsEditor_Click() { application_.ShowEditor(); }
  void mnuMumFileExit_Click() { application_.CloseMum(); }

 private:
  void SetPaths();
  void ShowProblemCount();
  void ShowFlight();

  Application& application_;
  Workbench& bench_;
  Connection busy_;
  Connection problems_;
  Connection flight_;
};

}  // namespace tarvik
