#include "language/Outline.h"

#include "language/MacroAnalysis.h"

namespace tarvik::model {
namespace {

/// The words of a statement's beginning that tell it from others: "BTN S1", "DEF X2", "THR", "USE TQS".
Range TitleOf(const JoystickStatement& statement) {
  Range last = statement.word;
  if (const auto* button = std::get_if<Button>(&statement.body)) last = button->control;
  if (const auto* definition = std::get_if<Definition>(&statement.body)) last = definition->flag;
  if (const auto* port = std::get_if<Port>(&statement.body)) last = port->control;
  const auto* setting = std::get_if<Setting>(&statement.body);
  if (setting != nullptr && !setting->values.empty()) last = setting->values.back();
  if (last.length == 0) last = statement.word;
  return {statement.word.start, last.End() - statement.word.start};
}

Range TitleOf(const MacroStatement& statement) {
  const auto* definition = std::get_if<MacroDefinition>(&statement.body);
  return definition == nullptr ? Range{} : definition->name;
}

/// Blanks and line ends between words are one blank.
std::string OnOneLine(std::string_view words) {
  std::string line;
  for (const char byte : words) {
    const bool blank = IsBlank(byte) || byte == '\n';
    if (!blank) line.push_back(byte);
    if (blank && !line.ends_with(' ')) line.push_back(' ');
  }
  return line;
}

template <class File>
class OutlineSearch {
 public:
  OutlineSearch(const File& file, std::string_view text) : file_(file), text_(text) {}

  std::vector<OutlineRow> Run() {
    for (std::size_t i = 0; i < file_.size(); ++i) {
      if (const auto heading = HeadingAt(i)) {
        rows_.push_back({0, AsListed(*heading), file_.RangeOf(i).start});
        below_ = 1;
        i += 2;
        continue;
      }
      const Range title = TitleOf(file_[i]);
      if (title.length == 0) continue;
      const Range lines = file_.RangeOf(i);
      rows_.push_back({below_, OnOneLine(In(In(text_, lines), title)), lines.start + title.start});
    }
    return std::move(rows_);
  }

 private:
  [[nodiscard]] std::string_view RemarkAt(std::size_t statement) const {
    const auto* remark = std::get_if<Remark>(&file_[statement].body);
    return remark == nullptr ? std::string_view{} : In(file_.LinesOf(statement, text_), remark->comment);
  }
  [[nodiscard]] std::optional<std::string> HeadingAt(std::size_t statement) const {
    if (statement + 2 >= file_.size() || RemarkAt(statement).empty() || RemarkAt(statement + 1).empty()) {
      return std::nullopt;
    }
    auto heading = HeadingIn(RemarkAt(statement), RemarkAt(statement + 1), RemarkAt(statement + 2));
    if (heading && heading->empty()) heading.reset();
    return heading;
  }

  const File& file_;
  std::string_view text_;
  std::size_t below_ = 0;
  std::vector<OutlineRow> rows_;
};

}  // namespace

std::vector<OutlineRow> OutlineOf(const FilePair& pair, FileKind file) {
  if (file == FileKind::Joystick) return OutlineSearch(pair.joystick, pair.joystickText).Run();
  return OutlineSearch(pair.macros, pair.macroText).Run();
}

}  // namespace tarvik::model
