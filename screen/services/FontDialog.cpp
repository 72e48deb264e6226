#include "screen/services/FontDialog.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontInfo>

#include "screen/widgets/Arrangement.h"
#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

constexpr int kSmallest = 1;
constexpr QSize kListSize(260, 220);
constexpr QSize kSampleSize(420, 90);

QFont FontOf(const FontChoice& choice) {
  QFont font(ToScreen(choice.name));
  font.setPointSizeF(ToScreenSize(static_cast<float>(choice.size)));
  font.setBold(choice.bold);
  return font;
}

/// A name with characters that the settings file can't hold would come back as another.
bool CanBeKept(const QString& family) { return AsWritten(family) == family; }

}  // namespace

FontChoice AsShown(const FontChoice& font) {
  const QFont set = FontOf(font);
  return {FromScreen(QFontInfo(set).family()), set.pointSize(), font.bold};
}

FontDialog::FontDialog(const FontChoice& shown, bool fixedPitch, QWidget* parent)
    : QDialog(parent),
      shown_(shown),
      families_(new QListWidget),
      size_(new QSpinBox),
      bold_(new QCheckBox(tr("&Bold"))),
      sample_(new QLabel(tr("BTN S1 /P Fire_Gun  Rem 0123456789"))) {
  setWindowTitle(tr("Font"));
  size_->setRange(kSmallest, kLargestLetters);
  size_->setValue(shown.size);
  bold_->setChecked(shown.bold);
  ListFamilies(fixedPitch);
  LayOut();
  connect(families_, &QListWidget::itemSelectionChanged, this, [this] { ShowSample(); });
  connect(size_, &QSpinBox::valueChanged, this, [this] { ShowSample(); });
  connect(bold_, &QCheckBox::toggled, this, [this] { ShowSample(); });
  connect(families_, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
  ShowSample();
}

void FontDialog::ListFamilies(bool fixedPitch) {
  for (const QString& family : QFontDatabase::families()) {
    const bool offered = !QFontDatabase::isPrivateFamily(family) && CanBeKept(family) &&
                         (!fixedPitch || QFontDatabase::isFixedPitch(family));
    if (!offered) continue;
    families_->addItem(family);
    if (FromScreen(family) == shown_.name) families_->setCurrentRow(families_->count() - 1);
  }
  families_->setMinimumSize(kListSize);
  families_->setAccessibleName(tr("Font"));
  families_->scrollToItem(families_->currentItem(), QAbstractItemView::PositionAtCenter);
}

void FontDialog::LayOut() {
  sample_->setFrameShape(QFrame::StyledPanel);
  sample_->setAlignment(Qt::AlignCenter);
  sample_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // large letters don't widen the window
  sample_->setMinimumWidth(kSampleSize.width());
  sample_->setFixedHeight(kSampleSize.height());
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  QLayout* const look = Column({Fields({{"&Size:", size_}}), bold_, Stretch{}});
  setLayout(Column({Row({families_, look}), sample_, buttons}));
}

FontChoice FontDialog::Choice() const {
  const QList<QListWidgetItem*> family = families_->selectedItems();
  return {family.isEmpty() ? shown_.name : FromScreen(family.constFirst()->text()), size_->value(),
          bold_->isChecked()};
}

void FontDialog::ShowSample() { sample_->setFont(FontOf(Choice())); }

}  // namespace tarvik::screen
