// The statements that the Composer writes, as the pieces of text that its form hands to the coloured
// insertion. They are made of values alone, without a form or a pane. Nothing is validated: what the controls
// say is written.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "language/ComposerTables.h"
#include "language/Passes.h"

namespace tarvik {

/// Whether a piece takes a blank before it where the caret stands behind something else.
enum class BlankBefore { WhereNeeded, Never };

/// A black piece that takes its blank is what InsertBlackText writes, blank and swatch included.
struct Piece {
  std::string text;
  ColourClass colour = ColourClass::Black;
  BlankBefore blank = BlankBefore::WhereNeeded;

  bool operator==(const Piece&) const = default;
};

struct Statement {
  std::vector<Piece> pieces;
  bool ownLine = false;       ///< begins a line
  bool endsLine = false;      ///< a line end follows
  bool releasesPort = false;  ///< once it is written
  std::string search = {};    ///< looked for first, and not written where it is found; empty for no search
  std::size_t pastHit = 0;    ///< how far behind the hit the caret goes

  [[nodiscard]] std::string Text() const;
  bool operator==(const Statement&) const = default;
};

/// The settings that a statement depends on.
struct StatementStyle {
  bool withColour = false;  ///< InsertWithColour
  bool addCr = false;       ///< CompTabsAddCr, for the statements of the tabs
};

/// What the boxes hold, under their names such as "Text1(0)". A box that is not there is empty.
using BoxTexts = std::map<std::string, std::string, std::less<>>;

/// The menu entries of a hat of HAT. Those of the corners are empty for the one hat that has none.
struct HatTokens {
  std::vector<std::string> positions;
  std::vector<std::string> corners;
};
[[nodiscard]] HatTokens TokensOf(int hat);

/// The position of a rocker, which is written without BTN: of the three labels that can be one, those that do
/// not bear a T-number.
[[nodiscard]] bool IsRocker(int button, std::string_view caption);

/// A hat's position or a trigger with BTN before it. While the PORT latch is armed there is no BTN, and the
/// statement is not looked for.
[[nodiscard]] Statement ControlStatement(std::string_view token, bool portArmed, StatementStyle style);
/// A button of BTN. A rocker is looked for also while the PORT latch is armed, and leaves it armed.
[[nodiscard]] Statement ButtonStatement(int button, std::string_view caption, bool portArmed,
                                        StatementStyle style);
/// An entry of kPorts. The latch stays armed for the control that completes the line.
[[nodiscard]] Statement PortStatement(std::string_view caption, StatementStyle style);
[[nodiscard]] Statement SwapTriggersStatement(StatementStyle style);

[[nodiscard]] Statement SlashStatement(std::string_view caption, StatementStyle style);
/// DLY or RPT with the text of its box.
[[nodiscard]] Statement BracketStatement(const tables::BracketRow& row, const std::string& value,
                                         StatementStyle style);
[[nodiscard]] Statement RemStatement(const std::string& note, StatementStyle style);

/// A statement of the tabs Range to Axes. `axis` is the lit row of kAxes.
[[nodiscard]] Statement TabStatement(const tables::TabRow& row, const BoxTexts& boxes, int axis,
                                     StatementStyle style);
[[nodiscard]] Statement UseStatement(const tables::UseRow& row, StatementStyle style);
[[nodiscard]] Statement ValueStatement(const tables::ValueRow& row, const std::string& value,
                                       StatementStyle style);
/// The items of a list of mouse types.
[[nodiscard]] std::vector<std::string> MouseTypes(const tables::MouseListRow& list);
[[nodiscard]] Statement MouseStatement(const std::string& type, StatementStyle style);

}  // namespace tarvik
