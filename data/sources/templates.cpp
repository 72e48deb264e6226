// tarvik_templates FOLDER: writes the templates that come with the program, as its Template Editor saves
// them. What a device has comes from the Composer's tables; the rest stands here.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "app/Program.h"
#include "language/ComposerTables.h"
#include "language/Controllers.h"
#include "language/Statements.h"
#include "tools/templates/TemplateForm.h"

namespace tarvik {
namespace {

using tables::Picture;

struct Template {
  std::string name;
  std::string text;  ///< with LF
};

constexpr const char* kHowTo =
    "Rem ^ is the null character: put a macro in its place, and leave out the lines you don't need.\n\n";

std::string Heading(const std::string& text) {
  const std::string rule = "Rem " + std::string(text.size() + 20, '-') + "\n";
  return rule + "Rem           " + text + "\n" + rule;
}

std::string Assigned(std::string_view token) {
  return (token.starts_with("RKR") ? "" : "BTN ") + std::string(token) + " ^\n";
}

/// The controls of a picture that are of one kind, without the axes.
std::string Controls(Picture picture, std::string_view array) {
  std::string lines;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture || row.array != array) continue;
    if (array == "BTN") lines += Assigned(row.caption);
    if (array != "HAT") continue;
    const HatTokens tokens = TokensOf(row.index);
    for (const auto* const part : {&tokens.positions, &tokens.corners}) {
      for (const std::string& token : *part) lines += Assigned(token);
    }
  }
  return lines;
}

std::string Stick(std::string_view model, Picture picture) {
  std::string text = "Rem Each button and hat of the " + std::string(model) + ".\n" + kHowTo +
                     Heading("Set up") + "MDEF mymacros\nRATE 20\nNULLCHR ^\n\n" +
                     Heading("Trigger and stick buttons");
  if (picture == Picture::Stick) {
    for (const std::string_view trigger : tables::kTriggers) text += Assigned(trigger);
  }
  return text + Controls(picture, "BTN") + "\n" + Heading("Hats") + Controls(picture, "HAT");
}

std::string Wcs(const std::string& model, bool plain) {
  std::string text = "Rem Each button of the " + model + ", beside " +
                     (plain ? "a P FCS, an FCS or a Top Gun.\n" : "an F-16 FLCS or F-22 Pro.\n") + kHowTo +
                     Heading("Throttle") + "USE WCS\n";
  for (const tables::WcsRow& row : tables::kWcsButtons) {
    const std::string_view token = plain ? row.plain : row.numbered;
    if (!token.empty()) text += Assigned(token);
  }
  return text;
}

/// A statement with the steps of a start, and the null character for every other field.
std::string AxisStatement(const tables::TabRow& row, std::string_view token) {
  std::string line = std::string(token) + " " + std::string(row.type);
  std::string says = "Rem";
  for (const tables::FieldRow& field : row.fields) {
    if (field.box.empty()) break;
    line += field.label.ends_with("steps") ? " 5" : " ^";
    says += (says == "Rem" ? " " : ", ") + std::string(field.label);
  }
  return says + "\n" + line + "\n";
}

/// Each type of the statements with these keywords; those without one are the axes'.
std::string Statements(std::string_view keyword, std::string_view token) {
  std::string text;
  for (const tables::TabRow& row : tables::kTabStatements) {
    if (row.keyword == keyword) text += AxisStatement(row, token);
  }
  return text + "\n";
}

std::string Axes(const std::string& says, std::initializer_list<std::string_view> keywords) {
  std::string text = says + kHowTo;
  for (const std::string_view keyword : keywords) {
    const bool axis = keyword != "RNG" && keyword != "ANT" && keyword != "THR";
    text += Heading(std::string(keyword)) + Statements(axis ? "" : keyword, keyword);
  }
  text.pop_back();
  return text;
}

std::string MouseTypes() {
  std::string text =
      "Rem The throttle's ministick as a mouse, and which of its buttons are the mouse's: keep one line.\n";
  for (const tables::MouseListRow& list : tables::kMouseLists) {
    for (std::size_t i = 0; i < list.types.size(); ++i) {
      const tables::MouseRow& row = list.types[i];
      text += "USE MTYPE " + std::string(1, list.letter) + std::to_string(i + 1) + "  Rem " +
              std::string(list.option) + ": left " + std::string(row.left) + ", middle " +
              std::string(row.middle) + ", right " + std::string(row.right) + "\n";
    }
  }
  return text + "Rem No mouse at all.\nUSE NOMOUSE\n";
}

std::string Ports() {
  constexpr const char* kTokens[] = {"TG1", "S2", "H1U", "H1D"};
  std::string text =
      "Rem A hat or button as an analogue switch of the F-22 Pro: four ports are there to give away.\n";
  for (std::size_t i = 0; i < std::size(tables::kPorts); ++i) {
    text += std::string(tables::kPorts[i]) + " " + kTokens[i] + "\n";
  }
  return text;
}

const Template kTexts[] = {
    {"Title",
     "Rem ################################################\nRem\n"
     "Rem             my.b50 for Name of the game\nRem\n"
     "Rem                     by your name\nRem\n"
     "Rem                 last modified: today\nRem\n"
     "Rem         For: F-16 FLCS, TQS, RCS combination\nRem\n"
     "Rem ################################################\n"},
    {"Heading", Heading("Name of the section")},
    {"Toggle",
     "Rem The first press lowers the gear, the next one raises it.\nBTN S4 /T Gear_Down\n       /T Gear_Up\n"
     "Rem The same, and a button that is held sends it once.\nBTN S1 /T /N Radar_On\n       /T /N "
     "Radar_Off\n"},
    {"S3 in and out",
     "Rem Held in, S3 gives the hat a second job.\nBTN H1U /I Trim_Down\n        /O Look_Up\n"
     "BTN H1D /I Trim_Up\n        /O Look_Back\n"},
    {"Dogfight switch",
     "Rem Up, in the middle and down the switch gives a button three jobs.\n"
     "BTN S1 /U Missile_Step\n       /M Nose_Wheel\n       /D Ripple\n"
     "Rem Together with S3.\nBTN S2 /U /I Uncage\n          /O Missile_Fire\n       /M Brake\n"
     "       /D Pickle\n"},
    {"Press and release",
     "Rem One macro on the way down, another on the way up.\n"
     "BTN H1L /P Look_Left /R Look_Ahead\n"
     "Rem The key is held as long as the button is.\nBTN TG1 /H Gun_Fire\n"
     "Rem It is sent once, however long the button is held.\nBTN S4 /N Chaff\n"},
    {"Delay and repeat",
     "Rem Two keys with a pause between them.\nBTN S1 Master_Arm DLY(80) Gun_Burst\n"
     "Rem Three times the same.\nBTN S2 RPT(3) Flare\n"
     "Rem Key codes as the keyboard sends them: held on press, up on release.\n"
     "BTN S4 /P RAW (#12 #5A) DLY(60) /R RAW (#F0 #5A #F0 #12)\n"},
    {"Logical flags",
     "Rem X1 is set while S3 is held in and comes with one press of T6.\nDEF X1 S3 AND T6\n"
     "BTN X1 Landing_Lights\n"
     "Rem X2 pulses for as long as X1 is set.\nDEF X2 X1 AND PULSE(500 500)\nBTN X2 Flash\n"
     "Rem X3 is set while S3 is held in and S1 is not.\nDEF X3 S3 AND NOT S1\n"
     "BTN X3 /P Jammer_On /R Jammer_Off\n"},
    {"Rate", "Rem The pace at which keys are sent: try another number where a game misses some.\nRATE 30\n"},
    {"Throttle detents",
     "Rem Minimum throttle: the lever right back against the stop.\nBTN MT Throttle_Cut\n"
     "Rem Keep one of these. Ten dry steps, five with the burner, and what is sent in and out of it.\n"
     "THR 1 10 5 Throttle_Up Throttle_Down Burner_On Burner_Off Burner_Up Burner_Down\n"
     "Rem A key for each step.\nTHR 2 6 3 1 2 3 4 5 6 7 8 9\n"
     "Rem The throttle as the macro file's @digitalthrottle says.\n@digitalthrottle \n"},
};

std::vector<Template> Templates() {
  std::vector<Template> all(std::begin(kTexts), std::end(kTexts));
  for (const JoystickRow& joystick : kJoysticks) {
    const Picture picture = joystick.dialect == Dialect::Plain ? Picture::PlainStick : Picture::Stick;
    all.push_back({std::string(joystick.inComposer), Stick(joystick.inComposer, picture)});
  }
  all.push_back({"TQS", std::string("Rem Each button of the TQS.\n") + kHowTo + Heading("Throttle") +
                            "USE TQS\n" + Controls(Picture::Tqs, "BTN")});
  for (const char* const model : {"WCS", "WCS MkII"}) {
    all.push_back({model, Wcs(model, true)});
    all.push_back({std::string(model) + " with FLCS or F-22 Pro", Wcs(model, false)});
  }
  all.push_back({"Rudders", Axes("Rem Pedals that send keys. USE RCS names the RCS.\nUSE RCS\n"
                                 "Rem Without pedals: USE NORDDR\n",
                                 {"RDDR"})});
  all.push_back(
      {"Throttle, range and antenna",
       Axes("Rem The throttle and its rotaries as keys: keep one type of each.\n", {"THR", "RNG", "ANT"})});
  all.push_back(
      {"Stick axes", Axes("Rem The stick as keys: keep one type for each axis.\n", {"JSX", "JSY"})});
  all.push_back({"Mouse", MouseTypes()});
  all.push_back({"Ports of the F-22 Pro", Ports()});
  return all;
}

}  // namespace
}  // namespace tarvik

int main(int count, char* arguments[]) {
  if (count != 2) {
    std::cerr << "tarvik_templates FOLDER\n";
    return 2;
  }
  tarvik::Program program;
  auto& form = program.application.Tool<tarvik::TemplateForm>();
  for (const auto& [name, text] : tarvik::Templates()) {
    form.TemplateText.Text = text;
    form.Text1.Text = name + ".rtf";
    form.ColourTemplateText();
    form.mnuFileSave_Click();
    const auto saved = program.files().Content(form.TemplatePath.Get());
    std::ofstream file(std::filesystem::path(arguments[1]) / (name + ".rtf"), std::ios::binary);
    if (!saved || !(file << *saved)) {
      std::cerr << name << ".rtf can't be written\n";
      return 1;
    }
  }
  return 0;
}
