#include "panes/Pane.h"

#include <algorithm>

#include "text/CodePage.h"
#include "text/Rtf.h"

namespace tarvik {
namespace {

/// Where a position is behind the replacements: in one of them at most at its end.
std::size_t Moved(std::span<const Replacement> replacements, std::size_t position) {
  std::size_t moved = position;
  for (const auto& [range, text] : replacements) {
    if (range.start >= position) break;
    const std::size_t within = std::min(position, range.End()) - range.start;
    moved += position < range.End() ? std::min(within, text.size()) - within : text.size() - range.length;
  }
  return moved;
}

}  // namespace

void Apply(const PaneEdit& edit, RichText& content) {
  if (!edit.OnlyColours()) content.text.replace(edit.position, edit.removed.text.size(), edit.inserted.text);
  content.colours.Replace({edit.position, edit.removed.colours.size()}, edit.inserted.colours);
}

Pane::Pane(Component& parent, std::string_view name, Files& files)
    : Control(parent, name),
      TextRTF(
          *this, "TextRTF",
          [this] {
            return WriteRtf(content_, {{SelFontName.Get(), SelFontSize, SelBold}, SelIndent});
          },
          [this](const std::string& rtf) { SetContent(ReadRtf(rtf)); }),
      SelText(
          *this, "SelText", [this] { return content_.text.substr(selection_.start, selection_.length); },
          [this](const std::string& text) {
            ReplaceSelection(RichText(WithPaneLineBreaks(text), InsertionColour()));
          }),
      SelRTF(
          *this, "SelRTF",
          [this] {
            const RichText selected(content_.text.substr(selection_.start, selection_.length),
                                    content_.colours.Slice(selection_));
            return WriteRtf(selected, {{SelFontName.Get(), SelFontSize, SelBold}, SelIndent});
          },
          [this](const std::string& rtf) {
            const RtfContent read = ContentOfRtf(rtf);
            ReplaceSelection(read.text);
            if (read.lost > 0) CharactersLost(read.lost);
          }),
      SelColor(
          *this, "SelColor",
          [this] { return selection_.length ? content_.colours.At(selection_.start) : InsertionColour(); },
          [this](Colour colour) {
            if (selection_.length == 0) {
              nextColour_ = colour;
            } else {
              Recolour(selection_.start, ColourRuns(selection_.length, colour));
            }
          }),
      files_(files) {}

SearchableText Pane::Searchable() const {
  if (!isFolded_) {
    folded_ = LowerCase(content_.text);
    isFolded_ = true;
  }
  return {content_.text, folded_};
}

Range Pane::Clipped(Range range) const {
  const std::size_t start = std::min(range.start, content_.size());
  return {start, std::min(range.length, content_.size() - start)};
}

void Pane::SetContent(RichText content) {
  nextColour_.reset();
  PaneEdit edit{0, std::move(content_), std::move(content)};
  content_ = edit.inserted;
  isFolded_ = false;
  known_ = {};
  selection_ = {0, 0};
  Edited(edit);
  SelectionChanged();
  Change();
  SelChange();
}

void Pane::Recolour(std::size_t start, const ColourRuns& colours) {
  const Range range = Clipped({start, colours.size()});
  if (range.length == 0) return;
  PaneEdit edit{range.start, {{}, content_.colours.Slice(range)}, {{}, colours.Slice({0, range.length})}};
  if (edit.removed == edit.inserted) return;
  content_.colours.Replace(range, edit.inserted.colours);
  Edited(edit);
}

void Pane::ApplyEdit(const PaneEdit& edit) {
  if (edit.OnlyColours()) {
    Recolour(edit.position, edit.inserted.colours);
  } else {
    Replace({edit.position, edit.removed.size()}, edit.inserted);
    Change();
  }
  Select({0, 0});
}

void Pane::Replace(Range range, const RichText& content) {
  if (range.start < known_.position) (void)GetLineFromChar(range.start);
  PaneEdit edit{
      range.start, {content_.text.substr(range.start, range.length), content_.colours.Slice(range)}, content};
  content_.text.replace(range.start, range.length, content.text);
  content_.colours.Replace(range, content.colours);
  if (isFolded_) folded_.replace(range.start, range.length, LowerCase(content.text));
  nextColour_.reset();
  selection_ = {range.start + content.size(), 0};
  Edited(edit);
}

Outcome<> Pane::LoadFile(std::string_view path) {
  auto bytes = files_.Read(path);
  if (!bytes) return bytes.failure();
  SetContent(ShownOfFile(*bytes));
  return Done{};
}

std::string Pane::Bytes(FileFormat format) const {
  return format == FileFormat::Text ? content_.text : TextRTF.Get();
}

Outcome<> Pane::SaveFile(std::string_view path, FileFormat format) const {
  return WriteAndRead(files_, path, Bytes(format));
}

Outcome<> Pane::SaveCopy(std::string_view path, FileFormat format, std::string_view of) const {
  return WriteAndReadCopy(files_, path, Bytes(format), of);
}

void Pane::Select(Range range) { MoveSelection(Clipped(range)); }

void Pane::MoveSelection(Range range) {
  if (range == selection_) return;
  selection_ = range;
  nextColour_.reset();
  SelectionChanged();
  SelChange();
}

void Pane::ReplaceSelection(const RichText& content) {
  Replace(selection_, content);
  SelectionChanged();
  Change();
  SelChange();
}

void Pane::UserReplaced(Range range, std::string_view text) {
  const Range clipped = Clipped(range);
  const bool whereCaretWas =
      clipped.length == 0 && clipped.start == selection_.start && selection_.length == 0;
  if (!whereCaretWas) {
    nextColour_.reset();
    selection_ = clipped;
  }
  const std::optional<Colour> asked = nextColour_;
  Replace(clipped, RichText(WithPaneLineBreaks(text), InsertionColour()));
  if (asked) nextColour_ = asked;
  Change();
  SelChange();
}

void Pane::UserMoved(Range from, std::size_t to) {
  const Range moved = Clipped(from);
  if (moved.length == 0 || to > content_.size() || (to >= moved.start && to <= moved.End())) return;
  const Range between = to < moved.start ? Range{to, moved.start - to} : Range{moved.End(), to - moved.End()};
  const bool back = to < moved.start;
  RichText result;
  for (const Range& part : {back ? moved : between, back ? between : moved}) {
    result.text.append(content_.text, part.start, part.length);
    result.colours.Append(content_.colours, part);
  }
  Replace({std::min(moved.start, to), moved.length + between.length}, result);
  if (back) selection_ = {to + moved.length, 0};
  SelectionChanged();
  Change();
  SelChange();
}

Colour Pane::InsertionColour() const {
  if (selection_.length) return content_.colours.At(selection_.start);
  if (nextColour_) return *nextColour_;
  return ColourFor(selection_.start);
}

Colour Pane::ColourFor(std::size_t position) const {
  const bool lineStart = position == 0 || content_.text[position - 1] == '\n';
  return content_.colours.At(lineStart ? position : position - 1);
}

std::optional<std::size_t> Pane::Find(std::string_view text, std::size_t start, std::size_t end,
                                      int options) {
  const auto hit = FindText(Searchable(), text, start, end, options);
  if (hit && !(options & find::kKeepSelection)) Select({*hit, text.size()});
  return hit;
}

Replaced Pane::ReplaceAll(std::string_view needle, std::string_view with, int options,
                          const std::function<void(std::size_t)>& hitAt) {
  const std::string replacement = WithPaneLineBreaks(with);
  const std::size_t end = content_.size();
  std::string text = content_.text;
  std::string folded(options & find::kMatchCase ? std::string_view() : Searchable().folded);
  const SearchPattern pattern(needle, options);
  Replaced replaced;
  RichText result;
  std::size_t first = 0;  // of the first hit; `result` takes the place of what lies between it and `from`
  std::size_t from = 0;
  while (replaced.end <= end) {
    const std::size_t limit = std::min(text.size(), from + end - replaced.end);
    const auto hit = pattern.FindIn({text, folded}, from, limit);
    if (!hit) break;
    hitAt(*hit);
    if (replaced.count++ == 0) first = from = *hit;
    const Range between{from, *hit - from};
    result.text.append(text, between.start, between.length);
    result.colours.Append(content_.colours, between);
    result.text += replacement;
    result.colours.Append(replacement.size(), content_.colours.At(*hit));
    from = *hit + needle.size();
    replaced.end = first + result.size();
    // What stands before the next character now tells whether a word begins there.
    const char edge = first == 0 ? '\n' : text[first - 1];
    text[from - 1] = result.text.empty() ? edge : result.text.back();
  }
  if (replaced.count == 0) return replaced;
  Replace({first, from - first}, result);
  SelectionChanged();
  Change();
  SelChange();
  return replaced;
}

void Pane::ReplaceRanges(std::span<const Replacement> replacements) {
  if (replacements.empty()) return;
  const std::size_t first = replacements.front().range.start;
  RichText result;
  std::size_t from = first;
  for (const auto& [range, text] : replacements) {
    const Range between{from, range.start - from};
    result.text.append(content_.text, between.start, between.length).append(text);
    result.colours.Append(content_.colours, between);
    const Colour colour = range.length > 0 ? content_.colours.At(range.start) : ColourFor(range.start);
    result.colours.Append(text.size(), colour);
    from = range.End();
  }
  const std::size_t start = Moved(replacements, selection_.start);
  const Range selection{start, Moved(replacements, selection_.End()) - start};
  Replace({first, from - first}, result);
  selection_ = selection;
  SelectionChanged();
  Change();
  SelChange();
}

void Pane::Span(std::string_view set) {
  const std::size_t stop = std::min(content_.text.find_first_of(set, selection_.start), content_.size());
  Select({selection_.start, stop - selection_.start});
}

std::size_t Pane::GetLineFromChar(std::size_t position) const {
  const std::size_t at = std::min(position, content_.size());
  const auto lineEnds = [this](std::size_t from, std::size_t to) {
    const auto text = content_.text.begin();
    return static_cast<std::size_t>(
        std::count(text + static_cast<std::ptrdiff_t>(from), text + static_cast<std::ptrdiff_t>(to), '\n'));
  };
  if (at >= known_.position) {
    known_.line += lineEnds(known_.position, at);
  } else {
    known_.line -= lineEnds(at, known_.position);
  }
  known_.position = at;
  return known_.line;
}

}  // namespace tarvik
