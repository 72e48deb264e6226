// The two documents in hand, the controls in which they are edited and in which the program speaks, and the
// services from outside: what everything works on that edits a file. They have no window; the forms give the
// controls their places.
#pragma once

#include "platform/Platform.h"
#include "workbench/Document.h"
#include "workbench/SharedValues.h"

namespace tarvik {

/// The panels of the status bar.
namespace panel {
enum { kSaid = 1, kSavedState, kLine, kCaps, kInsert, kNum, kClock, kMacroFile };
}  // namespace panel
inline constexpr int kStatusPanels = panel::kMacroFile;

class Documents : public Component {
 public:
  Documents(Platform& services, Settings& theSettings, SharedValues& theValues, Errors& theErrors);

  Platform& platform;
  Settings& settings;
  SharedValues& values;
  Errors& errors;

  // Controls that have their places in the frame.
  StatusBar status{*this, "StatusBar", kStatusPanels};
  ProgressBar progress{*this, "ProgressBar1"};
  PictureBox swatch{*this, "Picture1"};
  /// While it is true the program works on something that takes its time.
  Property<bool> Busy{*this, "Busy", false};

  // Controls that have their places in the editor.
  TabStrip tabs{*this, "TabStrip1", 2};
  Pane joystickText{*this, "JoystickText", platform.files};
  Pane macroText{*this, "MacroText", platform.files};
  Pane scratch{*this, "TempRichTextBox", platform.files};  ///< hidden, for work that must not show
  Pane compare{*this, "CompareRTF", platform.files};  ///< hidden, to compare a coloured copy with its file

  Document joystick{*this, "Joystick", kJoystickTraits, joystickText};
  Document macro{*this, "Macro", kMacroTraits, macroText};

  /// The document of the selected tab.
  [[nodiscard]] Document& Active() { return tabs.SelectedIndex() == 1 ? joystick : macro; }
  [[nodiscard]] const Document& Active() const { return tabs.SelectedIndex() == 1 ? joystick : macro; }
  [[nodiscard]] Tab& TabOf(const Document& document) const { return tabs.Tabs(document.traits.tab); }
  void Select(const Document& document) { tabs.Select(document.traits.tab); }
  /// Gives the focus to the file on top.
  void FocusActiveText() { Active().text.SetFocus(); }
  /// Tells the user something in the status bar.
  void Say(const std::string& text) const;
  /// Tells the user, who would edit a protected file, that it is one.
  void SayIsProtected(const Document& document) const;
  /// Tells the user that so many characters became a "?".
  void SayLost(std::size_t characters) const;
  /// Shows in the status bar which line the document's caret memory is in.
  void ShowLineNumber(const Document& document);
  /// Shows the line of the caret in the document of the selected tab. Its pane announces each move, so that
  /// no command has to think of it; only a change of the tab asks for it by hand.
  void ShowCaretLine();
  /// Shows in the status bar whether the document of the selected tab is saved.
  void UpdateSavedIcon() const;
  /// Gives the pane the user's font, indent and the document's background.
  void ApplyLook(const Document& document) const;
  void ApplyBackground(const Document& document) const;
  /// Selects a place of a document and brings it to the top, in one go for whoever follows the caret.
  void GoTo(Document& document, Range place);
  /// Gives the font to the document on top once more.
  void Reformat();
  /// Marks the document as modified and records the change for undo.
  void TextChanged(Document& document);
  /// Empties both documents, and forgets everything of the files that they were.
  void Reset();

  /// What undo and redo can do in the document on top has changed.
  Signal<> HistoryChanged;
  /// A change of the text ended what could be redone; the counts are shown as they were.
  Signal<> RedoEnded;

 private:
  void ShowLine(const Document& document, std::size_t position);

  std::optional<std::size_t> shownLine_;  // in the status bar
};

/// Gives a pane the user's font, and the indent of all panes.
void ApplyFont(Pane& pane, const Settings& settings);
/// Does the same without the indent.
void ApplyFontOnly(Pane& pane, const Settings& settings);

/// Keeps the change handlers from counting what program code does to a pane as an edit.
class ProgramEdit {
 public:
  explicit ProgramEdit(SharedValues& values) : values_(values), before_(values.LoadingFile) {
    values_.LoadingFile = 1;
  }
  ~ProgramEdit() { values_.LoadingFile = before_; }
  ProgramEdit(const ProgramEdit&) = delete;
  ProgramEdit& operator=(const ProgramEdit&) = delete;

 private:
  SharedValues& values_;
  int before_;
};

/// Work in a hidden pane, which is left empty whatever happens.
class Scratch {
 public:
  explicit Scratch(Pane& pane) : pane_(pane) {}
  ~Scratch() { pane_.SetContent({}); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  Pane* operator->() const { return &pane_; }
  Pane& operator*() const { return pane_; }

 private:
  Pane& pane_;
};

}  // namespace tarvik
