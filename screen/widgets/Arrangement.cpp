#include "screen/widgets/Arrangement.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>

namespace tarvik::screen {
namespace {

/// What puts a piece into a column or a row.
struct Filler {
  QBoxLayout* layout;

  void operator()(QWidget* widget) const { layout->addWidget(widget); }
  void operator()(QLayout* inner) const { layout->addLayout(inner); }
  void operator()(Stretch) const { layout->addStretch(); }
  void operator()(const Filling& filling) const {
    if (filling.widget) layout->addWidget(filling.widget, 1);
    if (filling.layout) layout->addLayout(filling.layout, 1);
  }
};

QBoxLayout* Fill(QBoxLayout* layout, const std::vector<Piece>& pieces) {
  for (const Piece& piece : pieces) std::visit(Filler{layout}, piece);
  return layout;
}

void Put(QGridLayout& grid, QWidget* cell, int row, int column) { grid.addWidget(cell, row, column); }
void Put(QGridLayout& grid, QLayout* cell, int row, int column) { grid.addLayout(cell, row, column); }

template <class Cell>
QGridLayout* GridOf(const std::vector<Cell*>& cells, int columns) {
  auto* const grid = new QGridLayout;
  int at = 0;
  for (Cell* const cell : cells) {
    if (cell) Put(*grid, cell, at / columns, at % columns);
    ++at;
  }
  return grid;
}

}  // namespace

QBoxLayout* Column(const std::vector<Piece>& pieces) { return Fill(new QVBoxLayout, pieces); }
QBoxLayout* Row(const std::vector<Piece>& pieces) { return Fill(new QHBoxLayout, pieces); }

QGridLayout* Grid(const std::vector<QWidget*>& cells, int columns) { return GridOf(cells, columns); }
QGridLayout* Grid(const std::vector<QLayout*>& cells, int columns) { return GridOf(cells, columns); }

QLayout* Framed(const QMargins& margins, QLayout* layout) {
  layout->setContentsMargins(margins);
  return layout;
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
