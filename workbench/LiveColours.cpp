#include "workbench/LiveColours.h"

#include <algorithm>

#include "workbench/Highlighter.h"

namespace tarvik {
namespace {

constexpr std::size_t kMostAtOnce = 4'096;  // characters of a line that are coloured within a key's time

ColourRuns Coloured(std::string_view text, const Document& document, const Settings& settings) {
  SyntaxColouring colouring(text, PassesOf(document));
  colouring.Run();
  return colouring.Colours(ColoursOf(settings));
}

/// The lines that an edit has left its text in, with the ends of all but the last.
Range LinesOf(std::string_view text, const PaneEdit& edit) {
  const std::size_t end = edit.position + edit.inserted.size();
  const std::size_t before = edit.position == 0 ? text.npos : text.rfind('\n', edit.position - 1);
  const std::size_t start = before == text.npos ? 0 : before + 1;
  return {start, std::min(text.find("\r\n", end), text.size()) - start};
}

}  // namespace

LiveColours::LiveColours(Documents& documents) : documents_(documents) {
  Settings& settings = documents.settings;
  const auto renew = [this] { Renew(); };
  connections_.push_back(settings.ColourAsYouType.Changed.Connect(renew));
  for (Property<Colour>* const colour : {&settings.BTNColour, &settings.SlashColour, &settings.RAWColour,
                                         &settings.MiscellaneousColour, &settings.RemStatements}) {
    connections_.push_back(colour->Changed.Connect(renew));
  }
  for (const Document* const document : {&documents.joystick, &documents.macro}) {
    connections_.push_back(document->text.Edited.Connect([this, document](const PaneEdit& edit) {
      if (IsOn() && !edit.OnlyColours()) Follow(*document, edit);
    }));
  }
}

const ColourRuns* LiveColours::Of(const Document& document) const {
  return IsOn() ? &colours_.Of(document) : nullptr;
}

bool LiveColours::Gives(Colour colour) const {
  return std::ranges::count(ColoursOf(documents_.settings), colour) > 0;
}

void LiveColours::Renew() {
  pause.Cancel();
  for (const Document* const document : {&documents_.joystick, &documents_.macro}) {
    ColourRuns colours;
    if (IsOn()) colours = Coloured(document->text.Characters(), *document, documents_.settings);
    if (colours_.Of(*document) == colours) continue;
    colours_.Of(*document) = std::move(colours);
    Changed(*document);
  }
}

/// What is too long for a key's time is black until the pause.
void LiveColours::Follow(const Document& document, const PaneEdit& edit) {
  const std::string_view text = document.text.Characters();
  Range lines = LinesOf(text, edit);
  if (lines.length > kMostAtOnce) lines = {edit.position, edit.inserted.size()};
  ColourRuns colours(lines.length, kBlack);
  if (lines.length <= kMostAtOnce) {
    colours = Coloured(text.substr(lines.start, lines.length), document, documents_.settings);
  }
  colours_.Of(document).Replace({lines.start, lines.length + edit.removed.size() - edit.inserted.size()},
                                colours);
  pause.Begin();
}

}  // namespace tarvik
