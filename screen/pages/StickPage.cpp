// The page of the window in which sticks are mapped: what there is on the left, and the drawings.
#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/DeviceView.h"
#include "tools/preferences/StickForm.h"

namespace tarvik::screen {
namespace {

constexpr int kListsWidth = 260;
constexpr QSize kSticks(kListsWidth, 70);
constexpr QSize kInputs(kListsWidth, 160);

DeviceView::Assigned MappedOn(const StickForm& form, tables::Picture picture) {
  DeviceView::Assigned mapped;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture) continue;
    for (const std::string& words : form.InputsFor(row))
      mapped[&form.LabelOf(row)].push_back(ToScreen(words));
  }
  return mapped;
}

QLayout* Drawing(StickForm& form, const FormLayout& in, tables::Picture picture, const char* drawing) {
  auto* const view = new DeviceView(QString::fromLatin1(drawing), in.bindings());
  view->SetHint(QStringLiteral("Click what the button or axis stands for"));
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture == picture) view->Add(form.LabelOf(row), ToScreen(std::string(row.place)));
  }
  view->AskForAssigned([&form, picture] { return MappedOn(form, picture); });
  in.bindings().Keep(form.MapChanged.Connect([view] { view->ForgetAssigned(); }));
  return Column({view});
}

}  // namespace

QLayout* Page(StickForm& form, const FormLayout& in) {
  QWidget* const about = Wrapped(in.Show(form.Label1));
  about->setAutoFillBackground(false);
  QWidget* const sticks = in.Show(form.Sticks);
  sticks->setMinimumSize(kSticks);
  sticks->setFixedHeight(kSticks.height());
  sticks->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  QWidget* const inputs = in.Show(form.Inputs);
  inputs->setMinimumSize(kInputs);
  inputs->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  auto* const side = new QWidget;
  side->setLayout(
      Framed({}, Column({about, Above("Sticks", sticks), Above("Buttons, hats and axes", inputs),
                         Fields({{"Part", in.Show(form.Way)}, {"Control", in.Show(form.Control)}}),
                         Row({in.Show(form.Assign), in.Show(form.Remove), Stretch()}),
                         Row({in.Show(form.Ready), in.Show(form.ClearAll), Stretch()})})));
  side->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  QWidget* const drawings =
      in.Show(form.SSTabHardware, {Drawing(form, in, tables::Picture::Stick, "stick-flcs.svg"),
                                   Drawing(form, in, tables::Picture::PlainStick, "stick-fcs.svg"),
                                   Drawing(form, in, tables::Picture::Tqs, "throttle-tqs.svg"),
                                   Drawing(form, in, tables::Picture::Wcs, "throttle-wcs.svg")});
  return Column({Filling(Row({side, Filling(drawings)})),
                 Row({Stretch(), in.Show(form.HelpButton), in.Show(form.Done)})});
}

}  // namespace tarvik::screen
