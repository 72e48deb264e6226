// The pages of the tools' windows, as layouts that name the controls of their forms.
#include <QPlainTextEdit>

#include "language/FindAndReplace.h"
#include "output/TextBlocks.h"
#include "screen/ToolWindow.h"

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
                 Row({in.Show(form.Command10), Stretch()})});
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
  return Column({text, in.Show(form.CheckAddCR),
                 new QLabel(QStringLiteral("Note: This is ignored by Pimlet")), Stretch(),
                 Row({Stretch(), in.Show(form.Command1), in.Show(form.Command2)})});
}

template <class F>
ToolWindow::MakePage PageFor(Form& form) {
  auto* const own = dynamic_cast<F*>(&form);
  if (!own) return {};
  return [own](const FormLayout& in) { return Page(*own, in); };
}

}  // namespace

ToolWindow::MakePage PageOf(Form& form) {
  for (const auto& find : {PageFor<FindAndReplace>, PageFor<InsertOptions>, PageFor<Title>, PageFor<Heading>,
                           PageFor<SingleTextForm>}) {
    if (auto page = find(form)) return page;
  }
  return {};
}

}  // namespace tarvik::screen
