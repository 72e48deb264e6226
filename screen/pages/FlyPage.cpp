// The page of the window that plays the files for real.
#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

constexpr int kWidth = 520;
constexpr int kSticksHeight = 90;

/// Words that go on below, as long as they are.
QWidget* Told(const FormLayout& in, Label& label) {
  QLabel* const told = Wrapped(in.Show(label));
  told->setAutoFillBackground(false);
  return told;
}

}  // namespace

QLayout* Page(Fly& form, const FormLayout& in) {
  QWidget* const state = Told(in, form.State);
  QFont strong = state->font();
  strong.setBold(true);
  state->setFont(strong);
  state->setMinimumWidth(kWidth);
  QWidget* const sticks = in.Show(form.Sticks);
  sticks->setFixedHeight(kSticksHeight);
  sticks->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return Column({state, Told(in, form.Way), Row({Filling(Told(in, form.Mend)), in.Show(form.CopyMend)}),
                 Above("Sticks", sticks), Row({in.Show(form.MapSticks), Stretch()}),
                 Above("Keys that are down", Told(in, form.KeysDown)), Stretch(),
                 Row({in.Show(form.Start), in.Show(form.TryIt), Stretch(), in.Show(form.HelpButton),
                      in.Show(form.Done)})});
}

}  // namespace tarvik::screen
