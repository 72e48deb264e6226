// A stream of pane operations against a model made of a string and one colour a character, and of undo
// against a list of whole copies.
#include <algorithm>
#include <cstdlib>

#include "Bytes.h"
#include "support/LiteralReplaceAll.h"
#include "support/MemoryFiles.h"
#include "text/CodePage.h"
#include "workbench/UndoHistory.h"

namespace {

using namespace tarvik;

struct Model {
  std::string text;
  std::vector<Colour> colours;

  void Replace(std::size_t start, std::size_t length, const std::string& with, Colour colour) {
    text.replace(start, length, with);
    const auto at = colours.begin() + static_cast<std::ptrdiff_t>(start);
    colours.insert(colours.erase(at, at + static_cast<std::ptrdiff_t>(length)), with.size(), colour);
  }
};

struct Fixture final : Form {
  Fixture() : Form("Fixture") {}
  MemoryFiles files;
  Pane pane{*this, "Pane", files};
  UndoHistory history{*this, "Index", "Start", pane};
};

void Check(const Pane& pane, const Model& model) {
  if (pane.Characters() != model.text) std::abort();
  for (std::size_t i = 0; i < model.text.size(); ++i) {
    if (pane.Content().colours.At(i) != model.colours[i]) std::abort();
  }
  const auto runs = pane.Content().colours.runs();
  for (std::size_t i = 0; i + 1 < runs.size(); ++i) {
    if (runs[i].colour == runs[i + 1].colour || runs[i].start >= runs[i + 1].start) std::abort();
  }
  const Range selection = pane.Selection();
  if (selection.End() > model.text.size()) std::abort();
  for (const std::size_t place : {selection.start, selection.End() / 2}) {
    const auto end = model.text.begin() + static_cast<std::ptrdiff_t>(place);
    const auto line = static_cast<std::size_t>(std::count(model.text.begin(), end, '\n'));
    if (pane.GetLineFromChar(place) != line) std::abort();
  }
  const SearchableText searchable = pane.Searchable();
  if (searchable.folded != LowerCase(model.text)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  constexpr const char* kTexts[] = {"", "a", "BTN ", "\r\n", "Rem x\r\n", "\xC9\xCD"};
  constexpr Colour kColours[] = {kBlack, Colour{255}, Colour{16711680}, Colour{8421504}};
  Bytes bytes(data, size);
  Fixture fixture;
  Pane& pane = fixture.pane;
  UndoHistory& history = fixture.history;
  history.Clear();
  (void)pane.Searchable();
  Model model;
  std::vector<Model> slots = {model};  // the newest first
  std::size_t index = 0;

  while (!bytes.Empty()) {
    const std::size_t start = bytes.Below(model.text.size() + 1);
    const std::size_t length = bytes.Below(model.text.size() - start + 1);
    switch (bytes.Below(7)) {
      case 0: {
        pane.Select({start, length});
        const Colour colour = kColours[bytes.Below(4)];
        if (length == 0) break;
        pane.SelColor = colour;
        std::fill_n(model.colours.begin() + static_cast<std::ptrdiff_t>(start), length, colour);
        break;
      }
      case 1: {
        const std::string text = kTexts[bytes.Below(6)];
        const Colour colour = kColours[bytes.Below(4)];
        pane.Select({start, length});
        pane.ReplaceSelection(RichText(text, colour));
        model.Replace(start, length, text, colour);
        break;
      }
      case 2:
        history.Open(4);
        history.GoToNewest();
        slots.insert(slots.begin(), model);
        if (slots.size() > 5) slots.pop_back();
        index = 0;
        break;
      case 3:
        history.BeginCommand(4);
        slots[index] = model;
        if (index == 0) break;
        slots.insert(slots.begin(), model);
        if (slots.size() > 5) slots.pop_back();
        index = 0;
        break;
      case 4:
        if (index + 1 == slots.size()) break;
        history.Undo();
        model = slots[++index];
        break;
      case 5: {
        const std::string text = kTexts[1 + bytes.Below(5)];
        const std::string with = kTexts[bytes.Below(6)];
        const int options = static_cast<int>(bytes.Below(4)) * find::kWholeWord;
        Fixture literal;
        literal.pane.SetContent(pane.Content());
        const Replaced wanted = LiteralReplaceAll(literal.pane, text, with, options);
        const Replaced found = pane.ReplaceAll(text, with, options, [](std::size_t) {});
        if (wanted.count != found.count || wanted.end != found.end) std::abort();
        if (pane.Content() != literal.pane.Content()) std::abort();
        model.text = literal.pane.Characters();
        model.colours.clear();
        for (std::size_t i = 0; i < model.text.size(); ++i) {
          model.colours.push_back(literal.pane.Content().colours.At(i));
        }
        break;
      }
      default:
        if (index == 0) break;
        history.Redo();
        model = slots[--index];
    }
    Check(pane, model);
  }
  return 0;
}
