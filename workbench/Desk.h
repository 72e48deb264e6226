// What the matters of the editor work on: the two documents, the panes to work in, the places where the
// program speaks, and the services from outside. Each small class of the editor takes what it knows from
// here.
#pragma once

#include "platform/Platform.h"
#include "workbench/Document.h"
#include "workbench/Values.h"

namespace tarvik {

struct Desk {
  Platform& platform;
  Settings& settings;
  Values& values;
  Errors& errors;
  StatusBar& status;
  ProgressBar& progress;
  PictureBox& swatch;
  Property<int>& mousePointer;
  TabStrip& tabs;
  Document& joystick;
  Document& macro;
  Pane& scratch;
  Pane& compare;

  /// The document of the selected tab.
  [[nodiscard]] Document& Active() const { return tabs.SelectedIndex() == 1 ? joystick : macro; }
  [[nodiscard]] Tab& TabOf(const Document& document) const { return tabs.Tabs(document.traits.tab); }
  void Select(const Document& document) const { tabs.Select(document.traits.tab); }
  /// Status panel 1.
  void Say(const std::string& text) const;
  /// Status panel 1, when the user would edit a protected file.
  void SayIsProtected(const Document& document) const;
  /// Status panel 3: the line of the document's caret memory.
  void ShowLineNumber(const Document& document) const;
  /// The same of the caret in the document of the selected tab. Its pane announces each move, so that no
  /// command has to think of it; only a change of the tab asks for it by hand.
  void ShowCaretLine() const;
  /// Status panel 2: the saved state of the document of the selected tab.
  void UpdateSavedIcon() const;
  /// Menu captions, tool tips and states of undo and redo; set by the form that owns them.
  std::function<void()> updateUndoRedoMenus;
  /// Gives the pane the user's font, indent and the document's background.
  void ApplyLook(const Document& document) const;
  void ApplyBackground(const Document& document) const;

 private:
  void ShowLine(const Document& document, std::size_t position) const;
};

/// Gives a pane the user's font, and the indent of all panes.
void ApplyFont(Pane& pane, const Settings& settings);
/// The same without the indent.
void ApplyFontOnly(Pane& pane, const Settings& settings);

/// Keeps the change handlers from counting what program code does to a pane as an edit.
class Loading {
 public:
  explicit Loading(Values& values) : values_(values), before_(values.LoadingFile) { values_.LoadingFile = 1; }
  ~Loading() { values_.LoadingFile = before_; }
  Loading(const Loading&) = delete;
  Loading& operator=(const Loading&) = delete;

 private:
  Values& values_;
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
