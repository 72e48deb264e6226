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

namespace {

constexpr int kCommandGroup = 15;  // the progress bar's length during the passes over commands

int Clamped(std::size_t position) {
  return static_cast<int>(std::min<std::size_t>(position, std::numeric_limits<int>::max()));
}

}  // namespace

void Highlighter::Apply(Document& document) {
  const std::string caption = desk_.TabOf(document).Caption;
  if (document.text.Characters().empty()) {
    desk_.Say(caption + " has no text to highlight.");
    return;
  }
  const Loading loading(desk_.values);
  Remove(document);
  desk_.Select(document);
  desk_.Say("Applying colour highlighting to " + caption + ". Please wait ...");
  desk_.ApplyLook(desk_.macro);
  ApplyLookOfJoystick(document);

  MakePasses(document.text, document.IsJoystick() ? JoystickPasses() : MacroPasses(), desk_.settings,
             {desk_.status.Panels(1), desk_.progress, true});

  desk_.macro.text.SelStart = desk_.macro.Caret;
  desk_.joystick.text.SelStart = desk_.joystick.Caret;
  document.Undo.StoreLook();
  if (document.Dirty == saved::kSaved || copies_.Exists(document)) copies_.Save(document);
  desk_.Say("Done");
}

/// Colouring the macro file leaves the joystick pane's indent alone.
void Highlighter::ApplyLookOfJoystick(const Document& coloured) {
  if (coloured.IsJoystick()) return desk_.ApplyLook(desk_.joystick);
  desk_.ApplyBackground(desk_.joystick);
  ApplyFontOnly(desk_.joystick.text, desk_.settings);
}

void MakePasses(Pane& pane, std::span<const Pass> passes, const Settings& settings,
                const PassesShown& shown) {
  const int textLength = Clamped(pane.Characters().size());
  ProgressBar& bar = shown.bar;
  bar.Visible = true;
  // The bar follows the hits, or counts the passes over commands.
  bool followsHits = true;
  const PaintingProgress progress = {
      [&](const Pass& pass) {
        if (pass.status) {
          shown.panel.Text = std::string(pass.status);
          followsHits = pass.progress == 0 || !shown.countsCommands;
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
  Painting painting(pane.Characters(), passes);
  painting.Run(progress);
  pane.Recolour(0, painting.Colours(ColoursOf(settings)));
  bar.Visible = false;
}

void Highlighter::Remove(Document& document) {
  const Loading loading(desk_.values);
  desk_.Say("Removing colour highlighting from " + desk_.TabOf(document).Caption.Get() + ". Please wait ...");
  document.text.Recolour(0, ColourRuns(document.text.Characters().size(), kBlack));
  document.text.SelStart = document.Caret;
  desk_.Say("Done");
}

void Highlighter::ColourSelection(Colour colour) {
  const Loading loading(desk_.values);
  desk_.Active().text.SelColor = colour;
}

}  // namespace tarvik
