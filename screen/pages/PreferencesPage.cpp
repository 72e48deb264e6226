// The page of the preferences' window.
#include "screen/pages/Pages.h"
#include "tools/preferences/Preferences.h"

namespace tarvik::screen {
namespace {

constexpr int kShownWidth = 64;
constexpr int kKerning = 4;  // of a label, which its underlined letter breaks

/// A path in a row of its own: what it is, the box, the button that looks for it.
struct PathRow {
  const char* label;
  TextBox& box;
  CommandButton& browse;
};

struct PathGrid {
  QLayout* grid;
  int labelWidth;  ///< of the widest label, for the labels of a group below
};

PathGrid Paths(const FormLayout& in, std::initializer_list<PathRow> rows) {
  std::vector<QWidget*> cells;
  int widest = 0;
  for (const PathRow& row : rows) {
    QWidget* const box = in.Show(row.box);
    QLabel* const label = LabelOf(row.label, box);
    label->setMinimumWidth(label->sizeHint().width() + kKerning);
    widest = std::max(widest, label->minimumWidth());
    QWidget* const browse = Named(in.Show(row.browse), QLatin1String("Browse: ") + label->text());
    cells.insert(cells.end(), {label, box, browse});
  }
  return {Grid(cells, 3), widest};
}

constexpr const char* kMayStayEmpty =
    "Loader and Control Centre may stay empty: a download and the Thrustmaster tools need them, editing does "
    "not. Drive c: is a folder of your own, and z: is the whole of this computer's disk; Drives has more.";

/// A label on the page's own background.
QWidget* Plain(QWidget* label) {
  label->setAutoFillBackground(false);
  return label;
}

/// A setting that has nothing to act on here.
QLayout* Idle(QWidget* box) { return Row({box, Words("(without effect here)"), Stretch()}); }

QLayout* FileLocations(Preferences& form, const FormLayout& in) {
  const auto [paths, labelWidth] = Paths(in, {{"Loader", form.Text1, form.Command1},
                                              {"Joystick and macro files", form.Text2, form.Command2},
                                              {"Control Centre", form.Text10, form.Command8}});
  const std::vector<Field> hardware = {{"Joystick", in.Show(form.ComboJoystick)},
                                       {"Throttle", in.Show(form.ComboThrottle)},
                                       {"Rudders", in.Show(form.ComboRudders)}};
  hardware.front().label->setMinimumWidth(labelWidth);
  return Column(
      {Group("Files",
             Column({paths, Row({Stretch(), in.Show(form.CommandStick), in.Show(form.CommandDrives)})})),
       Group("Hardware", Fields(hardware)), Wrapped(Words(kMayStayEmpty)), Stretch()});
}

QLayout* Colours(Preferences& form, const FormLayout& in) {
  QWidget* const list = Named(in.Show(form.List1), QStringLiteral("Colours"));
  list->setFixedWidth(170);
  QWidget* const example = Named(in.Show(form.ExampleJoystickText), QStringLiteral("Example"));
  example->setMinimumSize(360, 200);
  QLayout* const schemes =
      Row({in.Show(form.CheckBox1), Stretch(), in.Show(form.LightScheme), in.Show(form.DarkScheme)});
  return Column({Row({list, example}), schemes,
                 Group("Font", Column({Plain(in.Show(form.FontInUse)),
                                       Row({in.Show(form.Command18), in.Show(form.CheckFixedPitch), Stretch(),
                                            in.Show(form.Command17)})}))});
}

QLayout* Apps(Preferences& form, const FormLayout& in) {
  constexpr int kNameWidth = 150;
  std::vector<QWidget*> cells;
  for (int row = 1; row <= PreviousFiles::kCustomApps; ++row) {
    const auto named = [row](QWidget* shown, const char* name) {
      return Named(shown, QString::fromUtf8(name) + QString::number(row));
    };
    QWidget* const name = named(in.Show(form.CustomAppNameText(row)), "Name ");
    name->setFixedWidth(kNameWidth);
    cells.insert(cells.end(), {name, named(in.Show(form.CustomAppPathText(row)), "Command line "),
                               named(in.Show(form.CustomAppPathBrowse(row)), "Browse "),
                               named(in.Show(form.CustomAppPathUse(row)), "In the menu ")});
  }
  return Column(
      {Group("What the tools start with", Paths(in, {{"Image Viewer", form.Text5, form.Command5},
                                                     {"Template Editor", form.Text6, form.Command7}})
                                              .grid),
       Group("Custom apps: name and command line", Grid(cells, 4)), Stretch()});
}

/// The names beside the record in hand.
QLayout* ListPage(const FormLayout& in, ListBox& rows, Label& hint, const char* name, TextBox& first,
                  QLayout* record) {
  constexpr int kListWidth = 190;
  QWidget* const list = Named(in.Show(rows), QString::fromUtf8(name));
  list->setFixedWidth(kListWidth);
  QLabel* const words = Wrapped(Plain(in.Show(hint)));
  words->setFixedWidth(kListWidth);
  return Row({Column({words, list}), Column({Above("Name for menu", in.Show(first)), record})});
}

QLayout* Favourites(Preferences& form, const FormLayout& in) {
  QWidget* const toLoad = Plain(in.Show(form.Label11));
  return ListPage(in, form.List2, form.NoFavourites, "Favourites", form.Text7,
                  Column({Paths(in, {{"Joystick file", form.Text8, form.Command9},
                                     {"Macro file", form.Text9, form.Command10}})
                              .grid,
                          Row({Stretch(), in.Show(form.Command13)}), Stretch(),
                          Row({in.Show(form.LoadAppCheckBox), toLoad, Stretch(), in.Show(form.Command14)})}));
}

QLayout* Games(Preferences& form, const FormLayout& in) {
  return ListPage(in, form.List3, form.NoGames, "Games", form.Text12,
                  Column({Paths(in, {{"File that runs game", form.Text11, form.Command16},
                                     {"Working directory", form.Text4, form.Command15},
                                     {"Joystick file", form.Text13, form.Command4}})
                              .grid,
                          in.Show(form.Check5), in.Show(form.CheckFly),
                          Row({Stretch(), in.Show(form.Command12)}), Stretch()}));
}

QLayout* Miscellaneous(Preferences& form, const FormLayout& in) {
  const auto number = [&in](TextBox& box, const char* name) {
    QWidget* const shown = Named(in.Show(box), QString::fromUtf8(name));
    shown->setFixedWidth(kShownWidth);
    return shown;
  };
  QLayout* const left = Column(
      {Group("Saving", Column({Row({in.Show(form.Check3(0)), number(form.Text3, "Minutes"), Words("minutes"),
                                    Stretch()}),
                               in.Show(form.Check3(1))})),
       Group("Undo", Column({Row({Words("Maximum:"), number(form.TxtUndoLevels, "Maximum"), Words("steps"),
                                  Stretch(), in.Show(form.Command11)}),
                             in.Show(form.CheckUndoSave), in.Show(form.CheckHighlightOnUndo)})),
       Group("Composer", Column({in.Show(form.OptionImagesToShow(0)), in.Show(form.OptionImagesToShow(1)),
                                 in.Show(form.OptionImagesToShow(2))})),
       Stretch()});
  QLayout* const right = Column(
      {Group("Toolbar",
             Column({in.Show(form.OpenBothChk), in.Show(form.SaveBothChk),
                     in.Show(form.CheckFlattenToolbar(0)), Idle(in.Show(form.CheckFlattenToolbar(1))),
                     in.Show(form.CheckFlattenToolbar(2)), Idle(in.Show(form.CheckShowTooltips))})),
       Group("Other",
             Column({in.Show(form.CheckAggressive), in.Show(form.CheckIdentify),
                     Row({Words("DLY"), number(form.DLYText, "DLY"), Words("milliseconds"), Stretch()})})),
       Stretch()});
  return Row({left, right});
}

}  // namespace

QLayout* Page(Preferences& form, const FormLayout& in) {
  return Column({in.Show(form.SSTab1, {FileLocations(form, in), Colours(form, in), Apps(form, in),
                                       Favourites(form, in), Miscellaneous(form, in), Games(form, in)}),
                 Row({Stretch(), in.Show(form.Command6), in.Show(form.Command3)})});
}

}  // namespace tarvik::screen
