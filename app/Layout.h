// Where the editor's controls stand: the macro frame with its draggable edge, the tab strip, and the panes in
// the single or the tiled view. The frame and the strip are placed in pixels, what stands in the frame in
// twips.
#pragma once

#include "app/ExplainPanel.h"
#include "app/FindBar.h"
#include "app/NoticeBar.h"
#include "app/OutlinePanel.h"
#include "app/ProblemPanel.h"

namespace tarvik {

/// The width of the strip at the macro frame's right edge by which the user drags it, in pixels.
inline constexpr int kFrameGrip = 8;

/// The modifier buttons stand in two rows in the order of their indices. Only the last one of all stands at
/// the end of the upper row.
namespace modifier {
inline constexpr int kFirstLower = 6;
inline constexpr int kLastLower = 11;
inline constexpr int kLastUpper = 12;
}  // namespace modifier

/// The controls that the layout places.
struct LayoutControls {
  Form& form;
  Frame& frame;
  ComboBox& categories;
  ControlArray<ListBox>& lists;
  ControlArray<CommandButton>& buttons;
  MenuItem& viewMacros;
  MenuItem& tile;
  NoticeBar& notice;
  FindBar& find;
  ProblemPanel& problems;
  ExplainPanel& explain;
  OutlinePanel& outline;
};

class Layout {
 public:
  /// Places everything anew whenever a bar or a panel comes or goes.
  Layout(Documents& documents, LayoutControls controls);

  /// Places everything for the form's present size.
  void Place();
  void ToggleMacroFrame();
  void ShowMacroFrame();
  void ToggleTiled();
  /// Puts the edge between the two files there in the tiled view.
  void TileTo(Pixels x);
  void TileEvenly();
  /// The edge stays where it is now, at the next start too.
  void KeepTiles();
  /// In the single view only the pane of the selected tab is on show.
  void ShowPanes();

  /// The pointer at the frame's edge, and the dragging of it.
  void FrameMouseMove(const Mouse& mouse);
  void ResetFramePointer() { controls_.frame.MousePointer = pointer::kDefault; }

 private:
  void PositionControls();
  void ShowBothFiles();
  [[nodiscard]] float TileShare() const;
  void PlaceTabStrip();
  /// Where the panes begin, below the bar of the notices where there is one.
  float PlaceNotice();
  /// Where the panes end, above the bar of the search, the explanation and the list of problems where there
  /// are such.
  float PlaceBars();
  /// At the bottom of the strip where it is on show; tells where it begins.
  float PlaceBar(Frame& bar, Pixels height, float bottom);
  void PlaceFrame();
  [[nodiscard]] float FrameWidth() const;

  Documents& documents_;
  LayoutControls controls_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
