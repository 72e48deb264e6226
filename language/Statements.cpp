#include "language/Statements.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr std::string_view kButtonWord = "BTN ";
constexpr std::string_view kUseWord = "USE ";

Statement Styled(std::vector<Piece> pieces, StatementStyle style) {
  Statement statement{std::move(pieces)};
  if (!style.withColour) statement.pieces = {{statement.Text()}};
  return statement;
}

Statement OnOwnLine(std::vector<Piece> pieces, StatementStyle style) {
  Statement statement = Styled(std::move(pieces), style);
  statement.ownLine = true;
  statement.endsLine = style.addCr;
  return statement;
}

/// A keyword and a value that takes the blank of black text; an empty one is no piece.
Statement KeywordAndValue(std::string_view keyword, std::string_view value, StatementStyle style) {
  std::vector<Piece> pieces = {{std::string(keyword), ColourClass::Miscellaneous}};
  if (!value.empty()) pieces.push_back({std::string(value)});
  return OnOwnLine(std::move(pieces), style);
}

}  // namespace

std::string Statement::Text() const {
  std::string text;
  for (const Piece& piece : pieces) text += piece.text;
  return text;
}

HatTokens TokensOf(int hat) {
  const std::string name(tables::kHats[hat]);
  HatTokens tokens;
  for (const std::string_view position : tables::kHatPositions) {
    tokens.positions.push_back(name + std::string(position));
  }
  if (name == "H") return tokens;
  for (const std::string_view corner : tables::kHatCorners) {
    tokens.corners.push_back(name + std::string(corner));
  }
  return tokens;
}

bool IsRocker(int button, std::string_view caption) {
  return !caption.starts_with('T') && std::ranges::any_of(tables::kWcsButtons, [button](const auto& row) {
    return row.button == button && row.plain.starts_with("RKR");
  });
}

Statement ControlStatement(std::string_view token, bool portArmed, StatementStyle style) {
  const std::string text = std::string(portArmed ? "" : kButtonWord) + std::string(token) + " ";
  Statement statement = Styled({{text, ColourClass::Button}}, style);
  statement.ownLine = !portArmed;
  statement.releasesPort = true;
  if (!portArmed) statement.search = text;
  return statement;
}

Statement ButtonStatement(int button, std::string_view caption, bool portArmed, StatementStyle style) {
  if (!IsRocker(button, caption)) return ControlStatement(caption, portArmed, style);
  Statement statement = Styled({{std::string(caption) + " ", ColourClass::Button}}, style);
  statement.search = statement.Text();
  return statement;
}

Statement PortStatement(std::string_view caption, StatementStyle style) {
  const std::string text = std::string(caption) + " ";
  Statement statement = Styled({{text, ColourClass::Miscellaneous}}, style);
  statement.ownLine = true;
  statement.search = caption.substr(0, caption.find(' '));
  statement.pastHit = text.size() - statement.search.size();
  return statement;
}

// In colour no blank goes before it, also behind other text; in black it takes one there.
Statement SwapTriggersStatement(StatementStyle style) {
  Statement statement = Styled({{"SWAPTG ", ColourClass::Miscellaneous, BlankBefore::Never}}, style);
  statement.ownLine = statement.endsLine = true;
  statement.search = statement.Text();
  return statement;
}

Statement SlashStatement(std::string_view caption, StatementStyle style) {
  return Styled({{std::string(caption) + " ", ColourClass::Slash}}, style);
}

Statement BracketStatement(const tables::BracketRow& row, const std::string& value, StatementStyle style) {
  return Styled({{std::string(row.opening), ColourClass::Raw},
                 {value, ColourClass::Black, BlankBefore::Never},
                 {") ", ColourClass::Raw, BlankBefore::Never}},
                style);
}

Statement RemStatement(const std::string& note, StatementStyle style) {
  return Styled({{"Rem " + note + " ", ColourClass::Comment}}, style);
}

Statement TabStatement(const tables::TabRow& row, const BoxTexts& boxes, int axis, StatementStyle style) {
  const std::string_view keyword = row.keyword.empty() ? tables::kAxes[axis].token : row.keyword;
  std::string values(row.type);
  for (const tables::FieldRow& field : row.fields) {
    if (field.box.empty()) break;
    const bool otherBox = !style.withColour && !field.blackBox.empty();
    const auto found = boxes.find(otherBox ? field.blackBox : field.box);
    values += " " + (found == boxes.end() ? "" : found->second);
  }
  return OnOwnLine({{std::string(keyword) + " ", ColourClass::Miscellaneous},
                    {values, ColourClass::Black, BlankBefore::Never}},
                   style);
}

// Of a USE statement the first word alone has a colour; the two others of the buttons are one piece.
Statement UseStatement(const tables::UseRow& row, StatementStyle style) {
  if (!row.text.starts_with(kUseWord)) return KeywordAndValue(row.text, "", style);
  return KeywordAndValue(kUseWord, row.text.substr(kUseWord.size()), style);
}

Statement ValueStatement(const tables::ValueRow& row, const std::string& value, StatementStyle style) {
  return KeywordAndValue(row.keyword, value, style);
}

std::vector<std::string> MouseTypes(const tables::MouseListRow& list) {
  std::vector<std::string> types;
  for (std::size_t i = 1; i <= list.types.size(); ++i) types.push_back(list.letter + std::to_string(i));
  return types;
}

Statement MouseStatement(const std::string& type, StatementStyle style) {
  return KeywordAndValue("USE MTYPE ", type, style);
}

}  // namespace tarvik
