#include "tools/composer/StatementWriter.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr const char* kAxisWords[] = {"rng", "ant", "rddr", "jsx", "jsy", "thr"};

/// What stands for an axis is looked for as a whole word. With the letters behind it a text that ends in "JS"
/// counts as one too.
bool IsAxis(const std::string& text) {
  const std::string lower = LowerCase(text) + "xxxx";
  return std::ranges::any_of(kAxisWords,
                             [&lower](const char* word) { return lower.find(word) != std::string::npos; });
}

}  // namespace

bool StatementWriter::FindButton(const std::string& text) {
  Document& joystick = bench_.documents.joystick;
  Pane& pane = joystick.text;
  if (pane.Characters().empty()) return false;
  bench_.documents.Select(joystick);
  const auto hit = pane.Find(text, 0, pane.Characters().size(), IsAxis(text) ? find::kWholeWord : 0);
  if (hit) {
    joystick.Caret = *hit + text.size();
    joystick.SelLength = 0;
  }
  pane.SelStart = joystick.Caret;
  bench_.documents.FocusActiveText();
  return hit.has_value();
}

bool StatementWriter::FindOrWrite(const Statement& statement, bool alwaysInsert) {
  if (!alwaysInsert && !statement.search.empty() && FindButton(statement.search)) {
    Document& joystick = bench_.documents.joystick;
    joystick.Caret = joystick.Caret + statement.pastHit;
    joystick.text.SelStart = joystick.Caret;
    return false;
  }
  Write(statement);
  return true;
}

void StatementWriter::Write(const Statement& statement) {
  ColouredInsertion& insertion = bench_.insertion;
  insertion.BeginColInsert();
  if (statement.ownLine) bench_.edit.CheckAtLineBeginning();
  for (const Piece& piece : statement.pieces) WritePiece(piece);
  if (statement.endsLine) insertion.InsertCarriageReturn();
  insertion.EndColInsert();
}

void StatementWriter::WritePiece(const Piece& piece) {
  ColouredInsertion& insertion = bench_.insertion;
  SharedValues& values = bench_.values;
  values.InsertionText = piece.text;
  values.InsertionColour = ColoursOf(bench_.settings)[static_cast<std::size_t>(piece.colour)];
  if (piece.blank == BlankBefore::Never) {
    insertion.InsertColouredStringNoSpace(values.InsertionText, values.InsertionColour);
  } else if (piece.colour == ColourClass::Black) {
    insertion.InsertBlackText();
  } else {
    insertion.AddSpaceToColouredText();
    insertion.InsertColouredString(values.InsertionText, values.InsertionColour);
  }
}

}  // namespace tarvik
