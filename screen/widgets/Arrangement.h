// The words in which a window is laid out: columns, rows, grids and fields of widgets.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <variant>
#include <vector>

namespace tarvik::screen {

/// One thing in a column or row: a widget, a layout, or room that stretches.
struct Stretch {};
/// What takes all the room that the others of its column or row leave.
struct Filling {
  explicit Filling(QWidget* shown) : widget(shown) {}
  explicit Filling(QLayout* inner) : layout(inner) {}

  QWidget* widget = nullptr;
  QLayout* layout = nullptr;
};
using Piece = std::variant<QWidget*, QLayout*, Stretch, Filling>;

[[nodiscard]] QBoxLayout* Column(const std::vector<Piece>& pieces);
[[nodiscard]] QBoxLayout* Row(const std::vector<Piece>& pieces);

/// Cells in rows of so many columns; a null is an empty cell.
[[nodiscard]] QGridLayout* Grid(const std::vector<QWidget*>& cells, int columns);
[[nodiscard]] QGridLayout* Grid(const std::vector<QLayout*>& cells, int columns);

/// The layout, with as much between its pieces.
template <class Layout>
[[nodiscard]] Layout* Spaced(Layout* layout, int pixels) {
  layout->setSpacing(pixels);
  return layout;
}
/// The layout, with as much around its pieces.
[[nodiscard]] QLayout* Framed(const QMargins& margins, QLayout* layout);

/// A box with a title around it.
[[nodiscard]] QWidget* Group(const char* title, QLayout* layout);

/// The control, which is to be read out under the name.
QWidget* Named(QWidget* control, const QString& name);

/// Words by themselves.
[[nodiscard]] QLabel* Words(const char* text);
/// A label whose mnemonic leads to the control, which is read out under the same name without its colon.
[[nodiscard]] QLabel* LabelOf(const char* text, QWidget* control);

/// A label with a title's letters.
QWidget* AsTitle(QWidget* label);
/// A label whose text is a paragraph, word for word.
QLabel* Wrapped(QWidget* label);

/// A control with its label, on the left of it.
struct Field {
  /// As `LabelOf`.
  Field(const char* words, QWidget* named) : label(LabelOf(words, named)), control(named) {}
  /// A label that is there, of a control that nobody needs to go to or that says by itself what it is.
  Field(QLabel* beside, QWidget* shown) : label(beside), control(shown) {}

  QLabel* label;
  QWidget* control;
};
[[nodiscard]] QLayout* Fields(const std::vector<Field>& fields);
/// The same with the label above the control.
[[nodiscard]] QLayout* Above(const char* label, QWidget* control);

}  // namespace tarvik::screen
