// A text pane: coloured text with one selection, and the operations through which all of the program reads
// and writes it. The pane holds the text; what is on screen is a view of it.
#pragma once

#include <optional>

#include "controls/Controls.h"
#include "platform/Files.h"
#include "text/RichText.h"
#include "text/Search.h"

namespace tarvik {

/// One change of a pane's content: at `position`, `removed` went and `inserted` came. Where only colours
/// change both texts are empty, and the colours are those of the characters from `position` on.
struct PaneEdit {
  std::size_t position = 0;
  RichText removed;
  RichText inserted;

  [[nodiscard]] bool OnlyColours() const { return removed.text.empty() && inserted.text.empty(); }
  [[nodiscard]] PaneEdit Inverse() const { return {position, inserted, removed}; }
};

/// Does to `content` what the edit says.
void Apply(const PaneEdit& edit, RichText& content);

/// How many hits were replaced, and the position behind the last of them.
struct Replaced {
  std::size_t count = 0;
  std::size_t end = 0;
};

enum class FileFormat { Rtf, Text };

/// Right margins of a pane: its lines wrap at the edge of its window, or at a margin that no line reaches.
namespace margin {
inline constexpr int kWindow = 0;
inline constexpr int kNone = 2000;
}  // namespace margin

class Pane : public Control {
 public:
  Pane(Component& parent, std::string_view name, Files& files);

  // The whole content.

  /// The characters without a copy; valid until the next change.
  [[nodiscard]] std::string_view Characters() const { return content_.text; }
  [[nodiscard]] const RichText& Content() const { return content_; }
  [[nodiscard]] SearchableText Searchable() const;
  /// Replaces everything, colours included; the selection goes to 0.
  void SetContent(RichText content);
  /// Gives the characters from `start` on the colours of `colours`. The text, and so Change, is not touched.
  void Recolour(std::size_t start, const ColourRuns& colours);
  /// Does an edit, or undoes one by its inverse; the selection goes to 0.
  void ApplyEdit(const PaneEdit& edit);
  /// Loads a file: RTF as RTF, anything else as plain text in black. On failure the pane stays as it was.
  Outcome<> LoadFile(std::string_view path);
  /// Replaces the file with the plain text, byte for byte, or with the content as RTF. It has succeeded when
  /// the file, read again, holds that.
  Outcome<> SaveFile(std::string_view path, FileFormat format = FileFormat::Rtf) const;
  /// The same; the file is open to nobody then whom the file `of` is not open to.
  Outcome<> SaveCopy(std::string_view path, FileFormat format, std::string_view of) const;

  // The selection.

  [[nodiscard]] Range Selection() const { return selection_; }
  void Select(Range range);
  /// Replaces the selection as a user's typing does; the caret stands behind the new text.
  void ReplaceSelection(const RichText& content);
  /// What a user's typing, dropping or deleting on screen did to the text.
  void UserReplaced(Range range, std::string_view text);
  /// The user dragged a part of the text to another place, colours and all: one change. The caret stands
  /// behind it. Within the part itself nothing happens.
  void UserMoved(Range from, std::size_t to);

  // Searching and lines.

  /// The first hit within `start` and `end`. Without find::kKeepSelection a hit becomes the selection.
  std::optional<std::size_t> Find(std::string_view text, std::size_t start, std::size_t end, int options = 0);
  /// Replaces every hit, as finding one behind the other and replacing it would, in one edit: the search ends
  /// where the text ended at first. `hitAt` hears of each hit's place.
  Replaced ReplaceAll(std::string_view text, std::string_view replacement, int options,
                      const std::function<void(std::size_t)>& hitAt);
  /// Puts each text in its place, in one edit. The ranges come in order and apart. A text takes the colour of
  /// what it replaces, and where that is nothing, of what a user types there; the selection stays with its
  /// characters.
  void ReplaceRanges(std::span<const Replacement> replacements);
  /// Extends the selection forward from its start, up to the first character of `set` or the end of the text.
  void Span(std::string_view set);
  /// The line of a character, 0-based; lines are the text's own, wrapped or not.
  [[nodiscard]] std::size_t GetLineFromChar(std::size_t position) const;

  Attribute<std::string> Text{
      *this, "Text", [this] { return content_.text; },
      [this](const std::string& text) { SetContent(RichText(WithPaneLineBreaks(text))); }};
  Attribute<std::string> TextRTF;
  Attribute<std::size_t> SelStart{*this, "SelStart", [this] { return selection_.start; },
                                  [this](std::size_t start) {
                                    Select({start, 0});
                                  }};
  Attribute<std::size_t> SelLength{*this, "SelLength", [this] { return selection_.length; },
                                   [this](std::size_t length) {
                                     Select({selection_.start, length});
                                   }};
  Attribute<std::string> SelText;
  Attribute<std::string> SelRTF;
  Attribute<Colour> SelColor;
  Property<std::string> SelFontName{*this, "SelFontName", "Arial"};
  Property<float> SelFontSize{*this, "SelFontSize", 8.5F};
  Property<bool> SelBold{*this, "SelBold", false};
  Property<int> SelIndent{*this, "SelIndent", 0};
  Property<Colour> BackColor{*this, "BackColor", kDesktopPaper};
  Property<bool> Locked{*this, "Locked", false};
  Property<int> RightMargin{*this, "RightMargin", margin::kWindow};
  /// What the user types takes the place of what is behind the caret.
  Property<bool> Overtype{*this, "Overtype", false};

  Event<> Change{*this, "Change"};
  Event<> SelChange{*this, "SelChange"};
  Event<> Click{*this, "Click"};
  Event<> DblClick{*this, "DblClick"};
  Event<Key&> KeyDown{*this, "KeyDown"};
  Event<int&> KeyPress{*this, "KeyPress"};
  Event<Key&> KeyUp{*this, "KeyUp"};

  /// Every change of the content, after it was made.
  Signal<const PaneEdit&> Edited;
  Signal<> SelectionChanged;
  /// So many characters came from outside that the code page lacks. Each is a "?" in the text.
  Signal<std::size_t> CharactersLost;

 private:
  [[nodiscard]] std::string Bytes(FileFormat format) const;
  [[nodiscard]] Range Clipped(Range range) const;
  [[nodiscard]] Colour InsertionColour() const;
  /// The colour of what a user types there.
  [[nodiscard]] Colour ColourFor(std::size_t position) const;
  void Replace(Range range, const RichText& content);
  void MoveSelection(Range range);

  Files& files_;
  RichText content_;
  Range selection_;
  std::optional<Colour> nextColour_;  // given to the empty selection, for what is inserted next
  mutable std::string folded_;        // made on the first search, and kept up from then on
  mutable bool isFolded_ = false;
  struct {
    std::size_t position = 0;
    std::size_t line = 0;
  } mutable known_;  // the last line that was asked for; the next one is mostly near it
};

}  // namespace tarvik
