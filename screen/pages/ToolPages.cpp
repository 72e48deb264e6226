// The pages of the tools' windows, as layouts that name the controls of their forms.
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "screen/pages/KeyboardView.h"
#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"
#include "tools/blocks/TextBlocks.h"
#include "tools/favourites/Favourites.h"
#include "tools/find/FindAndReplace.h"
#include "tools/find/RenameForm.h"
#include "tools/pimlet/RAWform.h"
#include "tools/preferences/DrivesForm.h"
#include "tools/programs/Games.h"
#include "tools/programs/ProgramWait.h"
#include "tools/recovery/CompareTexts.h"
#include "tools/recovery/EarlierVersions.h"
#include "tools/recovery/UnsavedTexts.h"
#include "tools/templates/TemplateForm.h"
#include "tools/testing/JoyPlot.h"
#include "tools/testing/KeyTestForm.h"
#include "tools/viewers/LogForm.h"
#include "tools/viewers/Tips.h"
#include "tools/viewers/ViewImage.h"

namespace tarvik::screen {
namespace {

QLayout* FindPage(FindAndReplace& form, const FormLayout& in) {
  return Column({Fields({{"Text to find:", in.Show(form.ComboTextFind)}}),
                 Row({in.Show(form.OptionJoystickF), in.Show(form.OptionMacroF), Stretch()}),
                 in.Show(form.MatchCaseF), in.Show(form.WholeWordF), in.Show(form.Check6), Stretch(),
                 Row({Stretch(), in.Show(form.Command1), in.Show(form.Command2)})});
}

QLayout* ReplacePage(FindAndReplace& form, const FormLayout& in) {
  return Column({Fields({{"Find what:", in.Show(form.ComboTextReplaceFind)},
                         {"Replace with:", in.Show(form.ComboTextReplaceWith)}}),
                 Row({in.Show(form.OptionJoystickR), in.Show(form.OptionMacroR), Stretch()}),
                 in.Show(form.MatchCaseR), in.Show(form.WholeWordR), in.Show(form.Check7), Stretch(),
                 Row({Stretch(), in.Show(form.Command3), in.Show(form.Command5), in.Show(form.Command6),
                      in.Show(form.Command4)})});
}

QLayout* GotoPage(FindAndReplace& form, const FormLayout& in) {
  return Column({Fields({{"Line number:", in.Show(form.LineToFind)}}), in.Show(form.Check8), Stretch(),
                 Row({Stretch(), in.Show(form.Command7), in.Show(form.Command8)})});
}

QLayout* Page(FindAndReplace& form, const FormLayout& in) {
  return Column({in.Show(form.SSTab1, {FindPage(form, in), ReplacePage(form, in), GotoPage(form, in)}),
                 Row({in.Show(form.Command10), Stretch(), in.Show(form.Command9)})});
}

QLayout* Page(Title& form, const FormLayout& in) {
  QWidget* const comments = in.Show(form.RichTextBox1);
  comments->setMinimumSize(440, 120);
  return Column({Fields({{"File name", in.Show(form.Text1)},
                         {"The game it's for", in.Show(form.Text2)},
                         {"Your name", in.Show(form.Text3)},
                         {"Last modified", in.Show(form.Text4)},
                         {"Hardware supported", in.Show(form.Text5)}}),
                 Above("Comments (eg. your e-mail address, layout rationale etc.)", comments),
                 Row({Stretch(), in.Show(form.Command1), in.Show(form.Command2)})});
}

QLayout* Page(Heading& form, const FormLayout& in) {
  return Column({Above("Select a heading or type a new one", in.Show(form.Combo1)), Stretch(),
                 Row({Stretch(), in.Show(form.Command1(0)), in.Show(form.Command1(1))})});
}

QLayout* Page(SingleTextForm& form, const FormLayout& in) {
  QWidget* const text = Named(in.Show(form.RichTextBox1), QStringLiteral("Text"));
  text->setMinimumWidth(360);
  return Column({text, in.Show(form.CheckAddCR), Words("Note: This is ignored by Pimlet"), Stretch(),
                 Row({Stretch(), in.Show(form.Command1), in.Show(form.Command2)})});
}

/// A button with a picture, which is read out by a name of its own: several share their tool tip.
QWidget* WithIcon(QWidget* button, const char* icon, const QString& name) {
  static_cast<QPushButton*>(button)->setIcon(Icon(icon));
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return Named(button, name);
}

/// A box with what a key is or sends, and the buttons that add it to the line and copy it.
struct ReadOut {
  const char* label;
  TextBox& box;
  CommandButton& add;
  CommandButton& copy;
  bool codes;
};

QLayout* ReadOuts(std::initializer_list<ReadOut> readOuts, const FormLayout& in) {
  std::vector<QWidget*> cells;
  for (const ReadOut& readOut : readOuts) {
    QWidget* const box = in.Show(readOut.box);
    QLabel* const label = LabelOf(readOut.label, box);
    QLabel* const opens = readOut.codes ? Words("RAW(") : nullptr;
    if (opens) opens->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cells.insert(cells.end(),
                 {label, opens, box, readOut.codes ? Words(")") : nullptr,
                  WithIcon(in.Show(readOut.add), "add", QLatin1String("Add: ") + label->text()),
                  WithIcon(in.Show(readOut.copy), "copy", QLatin1String("Copy: ") + label->text())});
  }
  auto* const grid = Grid(cells, 6);
  grid->setColumnStretch(2, 1);
  return grid;
}

QLayout* Page(RAWform& form, const FormLayout& in) {
  constexpr int kLinesOfText = 3;
  const QString line = QStringLiteral("Combined selection");
  auto* const toggles =
      Row({in.Show(form.ToggleButton1), in.Show(form.ToggleButton2), in.Show(form.ToggleButton3),
           in.Show(form.ToggleButton4), Stretch(), in.Show(form.CheckUseSHFUK), in.Show(form.Command11)});
  QWidget* const keyboard = new KeyboardView(form, in.bindings());
  auto* const readOuts =
      ReadOuts({{"Thrustmaster syntax", form.SyntaxText, form.Command5, form.Command9(4), false},
                {"Raw Make code", form.RMakeText, form.Command10(0), form.Command9(0), true},
                {"Raw Break code", form.RBreakText, form.Command10(1), form.Command9(1), true},
                {"Combined Raw Codes", form.RCombinedText, form.Command10(2), form.Command9(2), true}},
               in);
  std::vector<Piece> pieces;
  for (const int i : {0, 1, 2, 3, 4, 5, 6, 8}) {
    QWidget* const button = in.Show(form.Command3(i));
    button->setMinimumWidth(1);
    pieces.emplace_back(button);
  }
  pieces.insert(pieces.end(), {in.Show(form.Command6), in.Show(form.Command7)});
  QWidget* const text = in.Show(form.TotalCombinedText);
  text->setFixedHeight(kLinesOfText * text->fontMetrics().lineSpacing());
  return Column(
      {toggles, keyboard, readOuts, Row(pieces),
       Row({Above("Combined selection", text),
            Column({Stretch(), WithIcon(in.Show(form.Command9(3)), "copy", QStringLiteral("Copy: ") + line),
                    WithIcon(in.Show(form.Command4), "clear", QStringLiteral("Clear: ") + line)})}),
       Row({in.Show(form.CommandINS(0)), in.Show(form.CommandINS(1)), in.Show(form.CheckAddCRPimlet),
            Stretch(), in.Show(form.Command3(7))}),
       Row({in.Show(form.Check1), in.Show(form.Command14(0)), in.Show(form.Command14(1)), Stretch(),
            in.Show(form.Command2)})});
}

QLayout* LogColumn(Pane& log, const char* title, const FormLayout& in) {
  QWidget* const view = in.Show(log);
  view->setMinimumSize(130, 150);
  // The end of the log, which came last, is in sight.
  auto* const bar = Require(qobject_cast<QPlainTextEdit*>(view), log, "view").verticalScrollBar();
  QObject::connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int last) { bar->setValue(last); });
  return Above(title, view);
}

QWidget* JoystickPicture(KeyTestForm& form, const FormLayout& in) {
  auto* const area = new QWidget;
  const auto bar = [&](Frame& frame, Label& label) {
    QWidget* const border = in.Place(frame, in.Show(frame), area);
    Named(in.Place(label, in.Show(label), border), ToScreen(label.ToolTipText.Get()));
  };
  QWidget* const picture = in.Place(form.PictureJoystick, in.Show(form.PictureJoystick), area);
  Named(picture, QStringLiteral("Stick"))->setFocusPolicy(Qt::NoFocus);
  bar(form.FrameTHR, form.LabelTHR);
  bar(form.FrameRDDR, form.LabelRDDR);
  area->setFixedSize(area->childrenRect().size());
  return area;
}

/// The keyboard's part grows with the window. Nothing but the log of the keys' names can have the focus.
QLayout* Page(KeyTestForm& form, const FormLayout& in) {
  QLayout* const logs =
      Row({LogColumn(form.RTFKeysText, "Keys", in), LogColumn(form.RTFKeysDownText, "Down", in),
           LogColumn(form.RTFKeysUpText, "Up", in)});
  QLayout* const modifiers = Row({in.ShowLamp(form.LabelSHIFT), in.ShowLamp(form.LabelCTRL),
                                  in.ShowLamp(form.LabelALT), in.ShowLamp(form.LabelNUMLOCK)});
  QLayout* const buttons =
      Row({in.ShowLamp(form.JoyButtonAnalogue(0)), in.ShowLamp(form.JoyButtonAnalogue(1)),
           in.ShowLamp(form.JoyButtonAnalogue(2)), in.ShowLamp(form.JoyButtonAnalogue(3))});
  QWidget* const exit = in.Show(form.Command1);
  exit->setFocusPolicy(Qt::NoFocus);
  QWidget* const status = in.Show(form.status);
  status->setAutoFillBackground(false);
  QWidget* const keyboard = Group("Keyboard events", Column({logs, modifiers}));
  keyboard->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  QWidget* const stick = Group("Joystick", Column({JoystickPicture(form, in), buttons, status, Stretch()}));
  return Column({Row({keyboard, stick}), Row({Stretch(), exit})});
}

/// The inside of a form that places its controls itself.
class Inside : public QWidget {
 public:
  explicit Inside(Form& form) : form_(form) { setMinimumSize(160, 160); }
  [[nodiscard]] QSize sizeHint() const override {
    return {ToPixels(form_.ScaleWidth, Unit::Twip), ToPixels(form_.ScaleHeight, Unit::Twip)};
  }

 protected:
  void resizeEvent(QResizeEvent*) override {
    form_.ScaleWidth = InTwips(Pixels{width()}).count;
    form_.ScaleHeight = InTwips(Pixels{height()}).count;
    form_.Resize();
  }

 private:
  Form& form_;
};

/// A window with nothing in it but a picture, which its form places.
QLayout* PicturePage(Form& form, Control& picture, QWidget* shown, const QString& name,
                     const FormLayout& in) {
  auto* const inside = new Inside(form);
  Named(in.Place(picture, shown, inside), name);
  inside->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  return Framed({}, Column({inside}));
}

QLayout* Page(ProgramWait& form, const FormLayout& in) {
  constexpr int kWidth = 460;
  QWidget* const text = in.ShowPath(form.Label1);
  text->setMinimumWidth(kWidth);
  return Column({text, Stretch(), Row({Stretch(), in.Show(form.Command1)})});
}

QLayout* Page(EnterFavouritename& form, const FormLayout& in) {
  return Column({Fields({{"Name:", in.Show(form.Text1)},
                         {Words("Joystick file:"), in.ShowPath(form.Label1)},
                         {Words("Macro file:"), in.ShowPath(form.Label2)}}),
                 Stretch(), Row({Stretch(), in.Show(form.Command1), in.Show(form.Command2)})});
}

QLayout* Page(EnterGameName& form, const FormLayout& in) {
  struct FieldRow {
    const char* label;
    TextBox& box;
    CommandButton* choose;
    CommandButton* help;
  };
  std::vector<QWidget*> cells;
  for (const FieldRow& field : {FieldRow{"Name of Game", form.Text1, nullptr, nullptr},
                                {"Game path and name", form.Text2, &form.Command1(0), &form.Command5},
                                {"Working directory", form.Text3, &form.Command2, &form.Command6},
                                {"Associated joystick file", form.Text4, &form.Command1(1), nullptr}}) {
    QWidget* const box = in.Show(field.box);
    box->setMinimumWidth(300);
    QLabel* const label = LabelOf(field.label, box);
    QWidget* const choose = field.choose ? in.Show(*field.choose) : nullptr;
    // Two of them have the same caption.
    if (choose) Named(choose, ToScreen(field.choose->Caption.Get()) + QLatin1String(": ") + label->text());
    QWidget* const help = field.help ? in.Show(*field.help) : nullptr;
    if (help) WithIcon(help, "help", QLatin1String("Help: ") + label->text());
    cells.insert(cells.end(), {label, box, choose, help});
  }
  auto* const grid = Grid(cells, 4);
  grid->setColumnStretch(1, 1);
  return Column({grid, in.Show(form.Check1), in.Show(form.CheckFly),
                 Words("Note: you can edit these later in Preferences"), Stretch(),
                 Row({Stretch(), in.Show(form.Command3), in.Show(form.Command4)})});
}

QLayout* Page(JoyPlot& form, const FormLayout& in) {
  return PicturePage(form, form.PicJoy, in.Show(form.PicJoy), QStringLiteral("Plot"), in);
}

QLayout* Page(DrivesForm& form, const FormLayout& in) {
  QWidget* const about = in.Show(form.Label1);
  about->setAutoFillBackground(false);
  QWidget* const drives = Named(in.Show(form.List1), QStringLiteral("Drives"));
  drives->setMinimumSize(420, 240);
  return Column({about, Row({drives, Column({in.Show(form.Command1), in.Show(form.Command2), Stretch()})}),
                 Row({Stretch(), in.Show(form.Command4), in.Show(form.Command3)})});
}

QLayout* Page(TemplateForm& form, const FormLayout& in) {
  QWidget* const text = Named(in.Show(form.TemplateText), QStringLiteral("Template"));
  Require(qobject_cast<QPlainTextEdit*>(text), form, "TemplateText")
      .setTabChangesFocus(false);  // as in the files
  text->setMinimumSize(480, 320);
  text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  QWidget* const name = in.Show(form.Text1);
  std::vector<Piece> choices;
  choices.reserve(std::size(kColourChoices));
  for (int i = 0; i < static_cast<int>(std::size(kColourChoices)); ++i) {
    choices.emplace_back(in.ShowSwatch(form.swatches("ColourLabel" + TextOf(i + 1))));
  }
  return Column({Row({LabelOf("File name", name), name}), text,
                 Row({in.Show(form.Label1), Spaced(Row(choices), 2), Stretch(), in.Show(form.ToggleButton1)}),
                 Row({in.Show(form.Command1(0)), in.Show(form.Command1(1)), in.Show(form.Command1(2)),
                      in.Show(form.Command2), Stretch(), in.Show(form.CmndPrint)})});
}

/// However long the tip is, the window keeps its size.
QLayout* Page(frmTip& form, const FormLayout& in) {
  QLabel* const tip = Wrapped(in.Show(form.lblTipText));
  tip->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  tip->setMargin(8);
  auto* const area = new QScrollArea;
  area->setWidget(tip);
  area->setWidgetResizable(true);
  area->setMinimumSize(420, 120);
  area->setFocusPolicy(Qt::NoFocus);
  return Column({AsTitle(in.Show(form.Label1)), area, in.Show(form.chkLoadTipsAtStartup),
                 Row({in.Show(form.cmdNextTip), Stretch(), in.Show(form.cmdOK)})});
}

QLayout* Page(frmAbout& form, const FormLayout& in) {
  auto* const picture = new QLabel;
  constexpr int kPicture = 64;
  picture->setPixmap(Icon("tarvik").pixmap(kPicture));
  auto* const name = AsTitle(Words("Tarvik"));
  QLabel* const description = Wrapped(in.Show(form.lblDescription));
  description->setMinimumWidth(380);
  QLabel* const version = Wrapped(in.Show(form.lblVersion));
  QLabel* const licence = Wrapped(in.Show(form.lblLicence));
  QLabel* const libraries = Wrapped(in.Show(form.lblLibraries));
  for (QLabel* const label : {version, description, licence, libraries}) {
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  QLayout* const words = Column({name, version, description, licence, libraries, Stretch()});
  return Column({Row({Column({picture, Stretch()}), words}),
                 Row({in.Show(form.cmdSysInfo), in.Show(form.cmdLog), in.Show(form.cmdCopy), Stretch(),
                      in.Show(form.cmdOK)})});
}

QLayout* Page(LogForm& form, const FormLayout& in) {
  QWidget* const lines = Named(in.Show(form.List1), QStringLiteral("Log"));
  lines->setMinimumSize(560, 240);
  return Column(
      {Wrapped(in.Show(form.Label1)), lines, Row({in.Show(form.cmdCopy), Stretch(), in.Show(form.cmdOK)})});
}

QLayout* Panes(SideBySide& texts, const char* before, const char* after, const FormLayout& in) {
  QWidget* const panes[] = {in.Show(texts.before), in.Show(texts.after)};
  for (QWidget* const pane : panes) pane->setMinimumSize(180, 120);
  return Row({Above(before, panes[0]), Above(after, panes[1])});
}

QLayout* Page(CompareTexts& form, const FormLayout& in) {
  return Column({Wrapped(in.Show(form.Explanation)), Panes(form.texts, "In the file", "In the editor", in),
                 Row({in.Show(form.NextDifference), Stretch(), in.Show(form.Done)})});
}

QWidget* ListAbovePanes(ListBox& list, const char* name, const FormLayout& in) {
  QWidget* const lines = Named(in.Show(list), QLatin1String(name));
  lines->setMinimumHeight(48);
  lines->setMaximumHeight(120);
  return lines;
}

QLayout* Page(UnsavedTexts& form, const FormLayout& in) {
  return Column({Wrapped(in.Show(form.Explanation)), ListAbovePanes(form.Texts, "Texts", in),
                 Panes(form.texts, "In the file now", "Not saved", in),
                 Row({in.Show(form.NextDifference), Stretch(), in.Show(form.BringBack),
                      in.Show(form.KeepBoth), in.Show(form.ThrowAway), in.Show(form.Later)})});
}

QLayout* Page(EarlierVersions& form, const FormLayout& in) {
  return Column({Wrapped(in.Show(form.Explanation)), ListAbovePanes(form.Versions, "Versions", in),
                 Panes(form.texts, "Earlier version", "In the editor", in),
                 Row({in.Show(form.NextDifference), Stretch(), in.Show(form.RestoreLines),
                      in.Show(form.RestoreAll), in.Show(form.Done)})});
}

QLayout* Page(RenameForm& form, const FormLayout& in) {
  QWidget* const places = Named(in.Show(form.Places), QStringLiteral("Places"));
  places->setMinimumSize(440, 180);
  return Column({Fields({{"New name", in.Show(form.NewName)}}), Wrapped(in.Show(form.Why)),
                 in.Show(form.Found), places, in.Show(form.InRemarks),
                 Row({Stretch(), in.Show(form.Rename), in.Show(form.Cancelled)})});
}

QLayout* Page(ViewImage& form, const FormLayout& in) {
  return PicturePage(form, form.Image1, in.Show(form.Image1), QStringLiteral("Picture"), in);
}

QLayout* Page(SelectPictureForm& form, const FormLayout& in) {
  constexpr int kListWidth = 200;
  constexpr int kPreview = 220;
  QWidget* const folders = in.Show(form.Dir1);
  QWidget* const pictures = in.Show(form.File1);
  for (QWidget* const list : {folders, pictures}) list->setMinimumSize(kListWidth, kPreview);
  QWidget* const preview = Named(in.Show(form.ImagePreview), QStringLiteral("Preview"));
  preview->setMinimumSize(kPreview, kPreview);
  preview->setFocusPolicy(Qt::NoFocus);
  return Column({Row({Column({Above("Drive", in.Show(form.Drive1)), Above("Folders", folders)}),
                      Above("Pictures", pictures), preview}),
                 in.ShowPath(form.Label1), Row({Stretch(), in.Show(form.Command2), in.Show(form.Command1)})});
}

template <class F>
MakePage PageFor(Form& form) {
  auto* const own = dynamic_cast<F*>(&form);
  if (!own) return {};
  return [own](const FormLayout& in) { return Page(*own, in); };
}

/// The page of whichever of these the form is.
template <class... F>
MakePage PageAmong(Form& form) {
  MakePage page;
  ((page = PageFor<F>(form)) || ...);
  return page;
}

}  // namespace

MakePage PageOf(Form& form) {
  return PageAmong<FindAndReplace, InsertOptions, Preferences, DrivesForm, StickForm, Wizard, Speedy, Title,
                   Heading, SingleTextForm, RAWform, KeyTestForm, JoyPlot, ProgramWait, EnterFavouritename,
                   EnterGameName, TemplateForm, frmTip, frmAbout, LogForm, CompareTexts, UnsavedTexts,
                   EarlierVersions, RenameForm, KneeboardForm, Fly, TryOut, ViewImage, SelectPictureForm>(
      form);
}

}  // namespace tarvik::screen
