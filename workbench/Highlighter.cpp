#include "workbench/Highlighter.h"

#include <limits>

namespace tarvik {

std::array<Colour, kColourClasses> ColoursOf(const Settings& settings) {
  return {kBlack,
          settings.BTNColour,
          settings.SlashColour,
          settings.RAWColour,
          settings.MiscellaneousColour,
          settings.RemStatements};
}

std::span<const Pass> PassesOf(const Document& document) {
  return document.IsJoystick() ? JoystickPasses() : MacroPasses();
}

namespace {

constexpr int kCommandGroup = 15;  // the progress bar's length during the passes over commands

int Clamped(std::size_t position) {
  return static_cast<int>(std::min<std::size_t>(position, std::numeric_limits<int>::max()));
}

}  // namespace

void Highlighter::Apply(Document& document) {
  const std::string caption = documents_.TabOf(document).Caption;
  if (document.text.Characters().empty()) {
    documents_.Say(caption + " has no text to highlight.");
    return;
  }
  const ProgramEdit edit(documents_.values);
  Remove(document);
  documents_.Select(document);
  documents_.Say("Applying colour highlighting to " + caption + ". Please wait ...");
  documents_.ApplyLook(documents_.macro);
  ApplyLookOfJoystick(document);

  MakePasses(document.text, PassesOf(document), documents_, CommandProgress::CountOfPasses);

  documents_.macro.text.SelStart = documents_.macro.Caret;
  documents_.joystick.text.SelStart = documents_.joystick.Caret;
  document.Undo.StoreLook();
  if (document.Dirty == saved::kSaved || copies_.Exists(document)) copies_.Save(document);
  documents_.Say("Done");
}

/// Colouring the macro file leaves the joystick pane's indent alone.
void Highlighter::ApplyLookOfJoystick(const Document& coloured) {
  if (coloured.IsJoystick()) return documents_.ApplyLook(documents_.joystick);
  documents_.ApplyBackground(documents_.joystick);
  ApplyFontOnly(documents_.joystick.text, documents_.settings);
}

void MakePasses(Pane& pane, std::span<const Pass> passes, Documents& documents, CommandProgress shown) {
  const int textLength = Clamped(pane.Characters().size());
  ProgressBar& bar = documents.progress;
  bar.Visible = true;
  bool followsHits = true;
  const ColouringProgress progress = {
      [&](const Pass& pass) {
        if (pass.status) {
          documents.Say(std::string(pass.status));
          followsHits = pass.progress == 0 || shown == CommandProgress::Hits;
        }
        bar.Max = followsHits ? textLength : kCommandGroup;
      },
      [&](std::size_t hit) {
        if (followsHits) bar.Value = Clamped(hit + 1);
      },
      [&](const Pass& pass) {
        if (followsHits) {
          bar.Value = 0;
        } else if (pass.progress) {
          bar.Value = pass.progress;
        }
      },
  };
  SyntaxColouring colouring(pane.Characters(), passes);
  colouring.Run(progress);
  pane.Recolour(0, colouring.Colours(ColoursOf(documents.settings)));
  bar.Visible = false;
}

void Highlighter::Remove(Document& document) {
  const ProgramEdit edit(documents_.values);
  documents_.Say("Removing colour highlighting from " + documents_.TabOf(document).Caption.Get() +
                 ". Please wait ...");
  document.text.Recolour(0, ColourRuns(document.text.Characters().size(), kBlack));
  document.text.SelStart = document.Caret;
  documents_.Say("Done");
}

void Highlighter::ColourSelection(Colour colour) {
  const ProgramEdit edit(documents_.values);
  documents_.Active().text.SelColor = colour;
}

}  // namespace tarvik
