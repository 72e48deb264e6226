// The macro frame's lists: filled from the macro file, ticked by use in the joystick file, and the ways from
// a macro in a list to its keys, its definition and its use.
#pragma once

#include "language/MacroAnalysis.h"
#include "workbench/Documents.h"
#include "workbench/MacroListPanel.h"

namespace tarvik {

class MacroLists {
  Documents& documents_;  // the controls are made in it

 public:
  explicit MacroLists(Documents& documents) : documents_(documents) {}

  /// The lists were made from the macro file that is open now, or emptied.
  Signal<> Renewed;
  /// A macro file has been analysed.
  [[nodiscard]] bool HasLists() const { return !headings_.empty(); }

  [[nodiscard]] Settings& settings() const { return documents_.settings; }

  /// The lists as they are, for the editor to show.
  MacroListPanel panel{documents_, *this};

  // Analysis, in the order of its calls.
  void ClearAllForNewMacroFile();
  /// Reads the macro file from disk. A missing file leaves the records of the one before.
  void GetEachLineFromMacroFile();
  void ExtractMacrosAndTitles();

  /// Shows the definition of SelectedMacro in the status bar, and selects it in the macro file when that is
  /// on show.
  void ShowMacroKeys();
  /// Does the same with the macro file on top.
  void ShowInMacroFile();
  /// "All", then the headings of the macro file in its order; each has the list of its index.
  [[nodiscard]] const std::vector<std::string>& MacroHeadings() const { return headings_; }
  /// Brings the list of the selected category to the front and takes its first macro; what is shown are the
  /// lists or a tool's copies of them.
  void ShowCategory(const MacroListPanel& shown);
  /// The macro last taken from a list.
  [[nodiscard]] const std::string& Selected() const { return documents_.values.SelectedMacro; }
  /// Takes SelectedMacro from a list.
  void TakeFrom(const ListBox& list) { documents_.values.SelectedMacro = list.Current(); }
  /// Takes the macro that the mouse went down on or is dragged over, and with Shift goes to its first use.
  void TakeUnder(const ListBox& list, const Mouse& mouse);

  void IdentifyMacrosUsed();
  void ClearMacroTicks();
  /// Selects the first use of SelectedMacro in the joystick file.
  void FindMacroInJF();
  /// Selects the definition of a button in the joystick file, up to the next statement that begins another
  /// one.
  void ExtractButtonDefinition(const std::string& name);
  /// Forgets the macro file.
  void Reset();
  /// Inserts the current macro of a list at the joystick file's remembered caret.
  void Insert(const ListBox& list);

 private:
  void TickNamesUsed(std::string_view text);
  void Fill(MacroAnalysis analysis);
  void ShowAll();

  std::vector<std::string> records_;  // the macro file's, in order
  std::vector<std::string> headings_;
};

}  // namespace tarvik
