// The page of the Composer's window.
#include <algorithm>

#include "language/PicturedControls.h"
#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/DeviceView.h"

namespace tarvik::screen {
namespace {

constexpr int kSideWidth = 350;
constexpr int kNumberWidth = 64;
constexpr int kKeysWidth = 300;
constexpr int kInsertWidth = 100;

QWidget* Narrow(QWidget* box) {
  box->setFixedWidth(kNumberWidth);
  return box;
}

QLabel* Note(const char* text) {
  QLabel* const label = Words(text);
  label->setWordWrap(true);
  return label;
}

/// The members of an array, so many to a row.
template <class T>
QLayout* Buttons(const FormLayout& in, const ControlArray<T>& array, int columns) {
  std::vector<QWidget*> cells;
  for (int i = 0; i < array.Count(); ++i) {
    cells.push_back(in.Show(array(i)));
    cells.back()->setMinimumWidth(40);
  }
  return Spaced(Grid(cells, columns), 4);
}

// The main page.

DeviceView::Assigned AssignedOn(const InsertOptions& form, tables::Picture picture) {
  const Assignments assignments = form.Assigned();
  DeviceView::Assigned assigned;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture) continue;
    const Label& label = form.LabelOf(row);
    for (const std::string& line : assignments.Of(row, label.Caption.Get())) {
      assigned[&label].push_back(ToScreen(line));
    }
  }
  return assigned;
}

bool IsLit(const InsertOptions& form, const Label& label) {
  if (!form.Following().IsOn()) return false;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (&form.LabelOf(row) != &label) continue;
    const std::vector<std::string> controls = ControlsOf(row, label.Caption.Get());
    return std::ranges::any_of(controls, [&](const auto& each) { return form.Following().Lights(each); });
  }
  return false;
}

QLayout* Picture(InsertOptions& form, const FormLayout& in, tables::Picture picture, const char* drawing) {
  auto* const view = new DeviceView(QString::fromLatin1(drawing), in.bindings());
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture == picture) view->Add(form.LabelOf(row), ToScreen(std::string(row.place)));
  }
  view->AskForLit([&form](const Label& label) { return IsLit(form, label); });
  in.bindings().Keep(form.Following().Changed.Connect([view] { view->Relight(); }));
  view->AskForAssigned([&form, picture] { return AssignedOn(form, picture); });
  in.bindings().Keep(form.AssignedChanged.Connect([view] { view->ForgetAssigned(); }));
  return Column({view});
}

QLayout* Macros(InsertOptions& form, const FormLayout& in) {
  QWidget* const list = in.ShowMacros(form.macros);
  list->setMinimumHeight(62);
  return Column({in.Show(form.Combo1), list, in.Show(form.CheckCopyTicks), in.Show(form.CheckAddCR)});
}

QLayout* MainPage(InsertOptions& form, const FormLayout& in) {
  QWidget* const hardware =
      in.Show(form.SSTabHardware, {Picture(form, in, tables::Picture::Stick, "stick-flcs.svg"),
                                   Picture(form, in, tables::Picture::PlainStick, "stick-fcs.svg"),
                                   Picture(form, in, tables::Picture::Tqs, "throttle-tqs.svg"),
                                   Picture(form, in, tables::Picture::Wcs, "throttle-wcs.svg")});
  QWidget* const delay = Named(Narrow(in.Show(form.boxes("DLYText"))), QStringLiteral("Delay"));
  QWidget* const repeat = Named(Narrow(in.Show(form.boxes("TextRPT"))), QStringLiteral("Repeat"));
  QWidget* const blanks = Named(Narrow(in.Show(form.boxes("Text1(8)"))), QStringLiteral("Number of spaces"));
  QWidget* const rem = Named(in.Show(form.RemTextBox), QStringLiteral("Note"));
  auto* const side = new QWidget;
  side->setFixedWidth(kSideWidth);
  side->setLayout(Framed(
      {},
      Column({Group("Macros", Macros(form, in)), Group("Slash modifiers", Buttons(in, form.SlashButton, 6)),
              Group("Delay, Repeat", Row({in.Show(form.DlyRptButtons(0)), delay, Words("ms"), Stretch(),
                                          in.Show(form.DlyRptButtons(1)), repeat, Words("times")})),
              Group("Notes  (Rem)",
                    Column({rem, Row({Stretch(), in.Show(form.CommandREM), in.Show(form.Command10)})})),
              Row({in.Show(form.Command7(0)), Stretch(), in.Show(form.Command7(1)), blanks}),
              in.Show(form.CheckAlwaysInsert), in.Show(form.HighlightStatement)})));
  return Row({Filling(hardware), side});
}

// The pages that build statements.

QLayout* StatementPage(InsertOptions& form, const FormLayout& in, const tables::TabRow& row) {
  std::vector<Field> fields;
  for (const tables::FieldRow& field : row.fields) {
    if (field.box.empty()) break;
    fields.push_back({field.label.data(), in.Show(form.boxes(field.box))});
    fields.back().control->setFixedWidth(field.box.starts_with("Text") ? kNumberWidth : kKeysWidth);
  }
  fields.push_back({"", in.Show(form.buttons(row.button))});
  fields.back().control->setFixedWidth(kInsertWidth);
  return Column({Fields(fields), Stretch()});
}

QLayout* DigitalThrottle(InsertOptions& form, const FormLayout& in) {
  return Column({Row({in.Show(form.Command1(5)), Stretch()}),
                 Note("The @digitalthrottle should be entered as a single line in your joystick file, but in "
                      "your macro file, should be of the format:  @digitalthrottle  = THR definition"),
                 Row({in.Show(form.Command1(6)), Stretch()}),
                 Note("The Minimum Throttle position. See the help file for more information."), Stretch()});
}

QWidget* Strip(InsertOptions& form, const FormLayout& in, int tab) {
  std::vector<QLayout*> pages;
  const auto* const row = std::find_if(std::begin(tables::kStatementTabs), std::end(tables::kStatementTabs),
                                       [tab](const auto& candidate) { return candidate.tab == tab; });
  pages.reserve(static_cast<std::size_t>(row->rows) + 1);
  for (int i = 0; i < row->rows; ++i) {
    pages.push_back(StatementPage(form, in, tables::kTabStatements[row->firstRow + i]));
  }
  if (tab == InsertOptions::kThrottle) pages.push_back(DigitalThrottle(form, in));
  return in.Show(form.StripOf(*row), pages);
}

QLayout* StatementTab(InsertOptions& form, const FormLayout& in, int tab, int addCr) {
  return Column({Strip(form, in, tab), in.Show(form.CheckMultiAddCR(addCr))});
}

QLayout* AxesPage(InsertOptions& form, const FormLayout& in) {
  return Column({Row({in.Show(form.ToggleButton1(0)), in.Show(form.ToggleButton1(1)),
                      in.Show(form.ToggleButton1(2)), Stretch()}),
                 Strip(form, in, InsertOptions::kAxes), in.Show(form.CheckMultiAddCR(3))});
}

QLayout* UsePage(InsertOptions& form, const FormLayout& in) {
  std::vector<QWidget*> uses;
  for (const int i : {0, 1, 7, 2, 3, 8, 4}) uses.push_back(in.Show(form.Command1(i)));
  QWidget* const types = in.Show(form.MouseList, "Mouse types");
  types->setMaximumSize(90, 150);
  constexpr const char* kMouseButtons[] = {"Left", "Middle", "Right"};
  std::vector<QWidget*> mouse;
  for (int i = 0; i < form.Label5.Count(); ++i) {
    mouse.insert(mouse.end(), {Words(kMouseButtons[i]), in.Show(form.Label5(i))});
  }
  QLayout* const options =
      Column({in.Show(form.Option1(0)), in.Show(form.Option1(1)), in.Show(form.Option1(2)), Stretch()});
  std::vector<QWidget*> values;
  for (int i = 0; i < form.Command2.Count(); ++i) {
    const tables::ValueRow& row = tables::kValues[i];
    QWidget* const box = in.Show(form.boxes(row.box));
    QLabel* const label = LabelOf(row.label.data(), box);
    QWidget* const insert = Named(in.Show(form.Command2(i)), QLatin1String("Insert ") + label->text());
    values.insert(values.end(), {label, box, insert});
  }
  return Column({Group("Use", Grid(uses, 3)),
                 Group("Mice type", Row({options, types, Column({Grid(mouse, 2), Stretch()}), Stretch(),
                                         Column({in.Show(form.Command9), Stretch()})})),
                 Group("Miscellaneous", Grid(values, 3)), Stretch(), in.Show(form.CheckMultiAddCR(4))});
}

// Templates.

QLayout* TemplatesPage(InsertOptions& form, const FormLayout& in) {
  QWidget* const list = Named(in.Show(form.Templates), QStringLiteral("Templates"));
  list->setFixedWidth(220);
  QWidget* const preview = Named(in.Show(form.TemplatesPreview), QStringLiteral("Preview"));
  return Column({Row({list, preview}), Row({in.Show(form.Command11(2)), Stretch(), in.Show(form.Command11(0)),
                                            in.Show(form.Command11(1))})});
}

// Logic.

QLayout* LogicLines(InsertOptions& form, const FormLayout& in, int first, int count) {
  std::vector<QWidget*> cells;
  for (int i = 0; i < count; ++i) {
    const QString name = QStringLiteral("Logic line %1").arg(first + i + 1);
    cells.insert(cells.end(), {Named(in.Show(form.OptionFlag(first + i)), name),
                               Named(in.Show(form.RichTexFlag(first + i)), name)});
  }
  auto* const grid = Grid(cells, 2);
  grid->setRowStretch(count, 1);
  return grid;
}

/// A token to insert: its label, what it is made from, and the button.
struct TokenRow {
  const char* label;
  std::initializer_list<QWidget*> parts;
  int button;
};

QLayout* Tokens(InsertOptions& form, const FormLayout& in, std::initializer_list<TokenRow> rows) {
  constexpr std::size_t kMostParts = 4;
  std::vector<QWidget*> cells;
  for (const TokenRow& row : rows) {
    cells.push_back(Words(row.label));
    cells.insert(cells.end(), row.parts);
    cells.insert(cells.end(), kMostParts - row.parts.size(), nullptr);
    const QString name = QLatin1String("Insert ") + QString::fromUtf8(row.label);
    cells.push_back(Named(in.Show(form.CMDFlagInsert(row.button)), name));
  }
  auto* const grid = Grid(cells, static_cast<int>(kMostParts) + 2);
  grid->setColumnStretch(static_cast<int>(kMostParts), 1);
  return grid;
}

QLayout* LogicPage(InsertOptions& form, const FormLayout& in) {
  const auto list = [&](int i, const char* name) {
    return Named(in.Show(form.FlagList(i)), QString::fromUtf8(name));
  };
  const auto box = [&](int i, const char* name) {
    return Named(Narrow(in.Show(form.TxtFlag(i))), QString::fromUtf8(name));
  };
  QLayout* const toolbox = Column({Buttons(in, form.CMDCompare, 5), Buttons(in, form.CMDFlagSlash, 6),
                                   Tokens(form, in,
                                          {{"Flag", {list(0, "Flag")}, 0},
                                           {"Hat", {list(1, "Hat"), list(5, "Position of the hat")}, 1},
                                           {"Button", {list(2, "Button")}, 2}}),
                                   Stretch()});
  QLayout* const misc = Column(
      {Tokens(form, in,
              {{"Pulse", {box(0, "Pulse on"), box(1, "Pulse off"), Words("ms")}, 3},
               {"Delay", {box(2, "Delay"), Words("ms")}, 4},
               {"Compare", {list(3, "Compare"), list(4, "Analogue"), box(3, "Per cent"), Words("%")}, 5},
               {"DLY", {box(4, "DLY"), Words("ms")}, 6},
               {"RPT", {box(5, "RPT"), Words("times")}, 7}}),
       Note("Don't understand logical programming? Read the An0002a.txt file. Press the button below to view "
            "it. If this doesn't help, write to your local politician asking that it be included in next "
            "year's school syllabus."),
       Row({Stretch(), in.Show(form.CMDFlagInsert(8))}), Stretch()});
  std::vector<QLayout*> pages;
  const int count = form.RichTexFlag.Count() / form.SSTabFlags.Count();
  pages.reserve(static_cast<std::size_t>(form.SSTabFlags.Count()));
  for (int i = 0; i < form.SSTabFlags.Count(); ++i) pages.push_back(LogicLines(form, in, i * count, count));
  return Column(
      {in.Show(form.SSTabFlags, pages),
       Row({in.Show(form.Command13(0)), in.Show(form.Command13(1)), Stretch(), in.Show(form.Command13(2))}),
       in.Show(form.SSTab7, {toolbox, misc})});
}

}  // namespace

QLayout* Page(InsertOptions& form, const FormLayout& in) {
  QWidget* const pages =
      in.Show(form.SSTab1, {MainPage(form, in), StatementTab(form, in, InsertOptions::kRange, 0),
                            StatementTab(form, in, InsertOptions::kAntenna, 1),
                            StatementTab(form, in, InsertOptions::kThrottle, 2), AxesPage(form, in),
                            UsePage(form, in), TemplatesPage(form, in), LogicPage(form, in)});
  return Column({pages, Row({in.Show(form.Command5(0)), in.Show(form.Command5(1)), in.Show(form.Command5(2)),
                             Stretch(), in.Show(form.Check1), in.Show(form.Check2FocusThang), Stretch(),
                             in.Show(form.Command14), in.Show(form.CommandHelp), in.Show(form.Command6)})});
}

}  // namespace tarvik::screen
