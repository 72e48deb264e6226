#include "app/Layout.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr int kNarrowestFrame = 185;
constexpr float kNarrowestText = 100;  // pixels of the form that the frame leaves to the files

// Distances in the tab strip, in pixels.
constexpr float kPaneLeft = 3;
constexpr float kPaneTop = 23;
constexpr float kPaneRight = 3;
constexpr float kPaneBottom = 22;
constexpr float kTileGap = 4;
constexpr float kMostOfProblems = 0.4F;  // of the strip's height

// Shares of the tiled view.
constexpr float kWhole = 1000;
constexpr float kLeastTile = 0.15F;

// Distances in the frame, in twips.
constexpr float kMargin = 120;
constexpr float kComboTop = 300;
constexpr float kComboHeight = 360;
constexpr float kListTop = kComboTop + kComboHeight + 60;
constexpr float kButtonWidth = 352;
constexpr float kWideButtonWidth = 410;
constexpr float kButtonHeight = 405;
constexpr float kGap = 30;

bool IsInUpperRow(int button) { return button < modifier::kFirstLower || button > modifier::kLastLower; }

}  // namespace

Layout::Layout(Documents& documents, LayoutControls controls) : documents_(documents), controls_(controls) {
  controls_.categories.Move(kMargin, kComboTop, 0, kComboHeight);
  for (int i = 0; i <= modifier::kLastUpper; ++i) {
    const bool upper = IsInUpperRow(i);
    const auto column =
        static_cast<float>(i == modifier::kLastUpper ? modifier::kFirstLower : i % modifier::kFirstLower);
    const float width = upper ? kButtonWidth : kWideButtonWidth;
    controls_.buttons(i).Move(kMargin + column * (width + kGap / 2), 0, width, kButtonHeight);
  }
  for (Frame* const bar : {&controls_.find.frame, &controls_.problems.frame, &controls_.explain.frame}) {
    connections_.push_back(bar->Visible.Changed.Connect([this] { Place(); }));
  }
  connections_.push_back(controls_.notice.Resized.Connect([this] { Place(); }));
}

void Layout::Place() {
  PlaceFrame();
  if (controls_.tile.Checked) {
    ShowBothFiles();
  } else {
    PositionControls();
  }
}

/// The stored width may be any number, and was chosen for a form of another size.
float Layout::FrameWidth() const {
  const auto narrowest = static_cast<float>(kNarrowestFrame);
  const float widest = std::max(narrowest, controls_.form.ScaleWidth - kNarrowestText);
  return std::clamp(static_cast<float>(documents_.settings.MacroFrameWidth.Get()), narrowest, widest);
}

void Layout::PlaceFrame() {
  const float width = FrameWidth();
  const float height = controls_.form.ScaleHeight;
  controls_.frame.Move(0, 0, width, height);
  controls_.categories.Width = InTwips(Pixels{width}).count - 240;
  const float listHeight =
      std::max(0.0F, InTwips(Pixels{height}).count - 840 - controls_.categories.Height - 680);
  for (int i = 0; i < controls_.lists.Count(); ++i) {
    controls_.lists(i).Move(kMargin, kListTop, controls_.categories.Width, listHeight);
  }
  controls_.outline.tabs.Move(kMargin, 0, controls_.categories.Width, kComboTop);
  controls_.outline.list.Move(kMargin, kComboTop, controls_.categories.Width,
                              kListTop + listHeight - kComboTop);
  const float upperRow = kListTop + listHeight + kGap;
  const float lowerRow = upperRow + controls_.buttons(0).Height + kGap;
  for (int i = 0; i <= modifier::kLastUpper; ++i) {
    controls_.buttons(i).Top = IsInUpperRow(i) ? upperRow : lowerRow;
  }
}

void Layout::PlaceTabStrip() {
  const float left = controls_.viewMacros.Checked ? FrameWidth() : 0;
  documents_.tabs.Move(left, 0, controls_.form.ScaleWidth - left, controls_.form.ScaleHeight);
}

float Layout::PlaceNotice() {
  const TabStrip& strip = documents_.tabs;
  const float top = strip.Top + kPaneTop;
  NoticeBar& notice = controls_.notice;
  if (!notice.frame.Visible) return top;
  notice.frame.Move(strip.Left + kPaneLeft, top, strip.Width - kPaneLeft - kPaneRight, notice.Height().count);
  // With another width it may need another height, and has said so while it was moved.
  notice.frame.Height = notice.Height().count;
  return top + notice.Height().count;
}

float Layout::PlaceBars() {
  const TabStrip& strip = documents_.tabs;
  const float bottom = strip.Top + strip.Height - kPaneBottom + kPaneTop;
  const Pixels mostOfProblems{(strip.Height - kPaneTop) * kMostOfProblems};
  const Pixels problems = std::min(ProblemPanel::Height(), mostOfProblems);
  float above = PlaceBar(controls_.problems.frame, problems, bottom);
  above = PlaceBar(controls_.explain.frame, ExplainPanel::Height(), above);
  return PlaceBar(controls_.find.frame, FindBar::Height(), above);
}

float Layout::PlaceBar(Frame& bar, Pixels height, float bottom) {
  if (!bar.Visible) return bottom;
  const TabStrip& strip = documents_.tabs;
  const float top = bottom - height.count;
  bar.Move(strip.Left + kPaneLeft, top, strip.Width - kPaneLeft - kPaneRight, height.count);
  return top;
}

void Layout::PositionControls() {
  PlaceTabStrip();
  const TabStrip& strip = documents_.tabs;
  const float top = PlaceNotice();
  const float height = PlaceBars() - top;
  for (Document* document : {&documents_.joystick, &documents_.macro}) {
    document->text.Move(strip.Left + kPaneLeft, top, strip.Width - kPaneLeft - kPaneRight, height);
  }
  ShowPanes();
}

void Layout::ShowBothFiles() {
  PlaceTabStrip();
  const TabStrip& strip = documents_.tabs;
  const float edge = strip.Width * TileShare();
  const float top = PlaceNotice();
  const float height = PlaceBars() - top;
  documents_.joystick.text.Move(strip.Left + kPaneLeft, top, edge - kTileGap, height);
  documents_.macro.text.Move(strip.Left + edge, top, strip.Width - edge - kTileGap, height);
  ShowPanes();
}

/// The stored share may be any number.
float Layout::TileShare() const {
  return std::clamp(static_cast<float>(documents_.settings.TileShare.Get()) / kWhole, kLeastTile,
                    1 - kLeastTile);
}

void Layout::TileTo(Pixels x) {
  const TabStrip& strip = documents_.tabs;
  const float share = (x.count - strip.Left) / std::max(strip.Width.Get(), 1.0F);
  documents_.settings.TileShare = static_cast<int>(std::clamp(share, kLeastTile, 1 - kLeastTile) * kWhole);
  Place();
}

void Layout::TileEvenly() {
  documents_.settings.TileShare = static_cast<int>(kWhole) / 2;
  Place();
  KeepTiles();
}

void Layout::KeepTiles() {
  Settings& settings = documents_.settings;
  settings.Change(settings.TileShare, settings.TileShare);
}

void Layout::ShowPanes() {
  const bool both = controls_.tile.Checked;
  documents_.joystick.text.Visible = both || documents_.Active().IsJoystick();
  documents_.macro.text.Visible = both || !documents_.Active().IsJoystick();
}

void Layout::ToggleMacroFrame() {
  controls_.frame.Visible = !controls_.frame.Visible;
  controls_.viewMacros.Checked = controls_.frame.Visible;
  Place();
}

void Layout::ShowMacroFrame() {
  if (!controls_.viewMacros.Checked) ToggleMacroFrame();
}

void Layout::ToggleTiled() {
  controls_.tile.Checked = !controls_.tile.Checked;
  Place();
  documents_.FocusActiveText();
}

void Layout::FrameMouseMove(const Mouse& mouse) {
  const int x = static_cast<int>(InPixels(mouse.x).count);
  Frame& frame = controls_.frame;
  if (mouse.button != button::kLeft || frame.MousePointer != pointer::kWestEast) {
    const bool atEdge = x + kFrameGrip >= static_cast<int>(frame.Width);
    frame.MousePointer = atEdge ? pointer::kWestEast : pointer::kDefault;
    return;
  }
  const int width = std::max(x + 1, kNarrowestFrame);
  if (width == documents_.settings.MacroFrameWidth) return;
  documents_.settings.MacroFrameWidth = width;
  Place();
  documents_.settings.Write(section::kMiscellaneous, "MacroFrameWidth", TextOf(width));
}

}  // namespace tarvik
