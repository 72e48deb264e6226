#include "screen/widgets/Arrangement.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>

namespace tarvik::screen {
namespace {

QLayout* Fill(QBoxLayout* layout, const std::vector<Piece>& pieces) {
  for (const Piece& piece : pieces) {
    if (auto* const* const widget = std::get_if<QWidget*>(&piece)) {
      layout->addWidget(*widget);
    } else if (auto* const* const inner = std::get_if<QLayout*>(&piece)) {
      layout->addLayout(*inner);
    } else {
      layout->addStretch();
    }
  }
  return layout;
}

}  // namespace

QLayout* Column(const std::vector<Piece>& pieces) { return Fill(new QVBoxLayout, pieces); }
QLayout* Row(const std::vector<Piece>& pieces) { return Fill(new QHBoxLayout, pieces); }

QGridLayout* Grid(const std::vector<QWidget*>& cells, int columns) {
  auto* const grid = new QGridLayout;
  int at = 0;
  for (QWidget* const cell : cells) {
    if (cell) grid->addWidget(cell, at / columns, at % columns);
    ++at;
  }
  return grid;
}

QWidget* Group(const char* title, QLayout* layout) {
  auto* const box = new QGroupBox(QString::fromUtf8(title));
  box->setLayout(layout);
  return box;
}

QWidget* Named(QWidget* control, const QString& name) {
  control->setAccessibleName(name);
  const auto* const combo = qobject_cast<QComboBox*>(control);
  if (combo && combo->lineEdit()) combo->lineEdit()->setAccessibleName(name);
  return control;
}

QLabel* Words(const char* text) { return new QLabel(QString::fromUtf8(text)); }

QLabel* LabelOf(const char* text, QWidget* control) {
  QLabel* const label = Words(text);
  const QString name = label->text();
  label->setBuddy(Named(control, name.endsWith(u':') ? name.chopped(1) : name));
  return label;
}

QWidget* AsTitle(QWidget* label) {
  QFont font = label->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * 1.25);
  label->setFont(font);
  return label;
}

QLabel* Wrapped(QWidget* shown) {
  auto* const label = qobject_cast<QLabel*>(shown);
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLayout* Fields(const std::vector<Field>& fields) {
  auto* const layout = new QFormLayout;
  layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  for (const Field& field : fields) layout->addRow(field.label, field.control);
  return layout;
}

QLayout* Above(const char* label, QWidget* control) { return Column({LabelOf(label, control), control}); }

}  // namespace tarvik::screen
