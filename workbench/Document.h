// One of the two files in hand: everything the joystick file and the macro file have alike, and a table of
// the words and names in which they differ.
#pragma once

#include "platform/FileName.h"
#include "workbench/Origin.h"
#include "workbench/SeenFile.h"
#include "workbench/Settings.h"
#include "workbench/UndoHistory.h"

namespace tarvik {

/// Saved states of a document.
namespace saved {
inline constexpr int kNoText = -1;
inline constexpr int kSaved = 0;
inline constexpr int kModified = 1;
}  // namespace saved

/// What tells one document from the other. The names are those of its values in the registry.
struct DocumentTraits {
  int tab;
  const char* name;
  const char* path;
  const char* dirty;
  const char* caret;
  const char* selLength;
  const char* undoIndex;
  const char* undoStart;
  Property<std::string> Settings::*extension;
  Property<Colour> Settings::*background;
};

inline constexpr DocumentTraits kJoystickTraits = {
    1,
    "JoystickName",
    "JoystickPath",
    "JoystickDirty",
    "JoystickCaret",
    "JoystickSelLength",
    "JoyUndoIndex",
    "JoyUndoStart",
    &Settings::JoystickExtension,
    &Settings::BackgroundColour,
};

inline constexpr DocumentTraits kMacroTraits = {
    2,
    "MacroName",
    "MacroPath",
    "MacroDirty",
    "MacroCaret",
    "MacroSelLength",
    "MacUndoIndex",
    "MacUndoStart",
    &Settings::MacroExtension,
    &Settings::MacroBackgroundColour,
};

class Document : public Component {
 public:
  Document(Component& owner, std::string_view name, const DocumentTraits& documentTraits, Pane& pane)
      : Component(owner, name), traits(documentTraits), text(pane) {}

  const DocumentTraits& traits;
  Pane& text;

  Property<FileName> Name{*this, traits.name};
  Property<std::string> Path{*this, traits.path};
  /// One of the saved states.
  Property<int> Dirty{*this, traits.dirty, saved::kNoText};
  /// Where the user last was; insertions go on from here.
  Property<std::size_t> Caret{*this, traits.caret};
  Property<std::size_t> SelLength{*this, traits.selLength};
  UndoHistory Undo{*this, traits.undoIndex, traits.undoStart, text};
  SeenFile seen;  ///< the file at its path, as it was when it was last read or written
  Origin origin;  ///< what the text does not show of the file that it came from

  /// Empties the document, and forgets everything of the file that it was.
  void Reset() {
    text.SetContent({});
    text.Locked = false;
    text.Overtype = false;
    text.RightMargin = margin::kWindow;
    text.Visible = true;
    Name = FileName();
    Path = std::string();
    Dirty = saved::kNoText;
    Caret = 0;
    SelLength = 0;
    Undo.Clear();
    seen.Forget();
    origin = {};
  }

  /// Its text is in another encoding, and the user has not chosen yet.
  [[nodiscard]] bool IsForeign() const { return origin.IsForeign(text.Characters()); }
  [[nodiscard]] bool IsJoystick() const { return traits.tab == 1; }
  [[nodiscard]] bool IsUntitled() const { return Name.Get().Text().starts_with("untitled"); }
};

/// Something that there is of each of the two documents.
template <typename T>
struct PerDocument {
  T joystick;
  T macro;

  [[nodiscard]] T& Of(const Document& document) { return document.IsJoystick() ? joystick : macro; }
  [[nodiscard]] const T& Of(const Document& document) const {
    return document.IsJoystick() ? joystick : macro;
  }
};

}  // namespace tarvik
