// The words in which a window's page is laid out: controls shown by their kind, in columns, rows, grids and
// fields.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <variant>

#include "screen/widgets/ListStack.h"

namespace tarvik::screen {

/// One thing in a column or row: a widget, a layout, or room that stretches.
struct Stretch {};
using Piece = std::variant<QWidget*, QLayout*, Stretch>;

/// Makes the widgets of a form's controls, each bound to its control.
class FormLayout {
 public:
  explicit FormLayout(Bindings& bindings) : bindings_(bindings) {}

  /// Shows a control by its kind.
  QWidget* Show(Control& control) const;
  /// A label whose text is a path, or has one in it.
  QWidget* ShowPath(Label& label) const;
  /// Lists that stand on one another.
  QWidget* Show(ControlArray<ListBox>& lists, const char* name) const;
  /// The same of macros, which are ticked, with a line that narrows them.
  QWidget* ShowMacros(ControlArray<ListBox>& lists, const char* name) const;
  /// A drawing of a device, with its labels.
  QWidget* Show(const char* drawing, const std::vector<Label*>& labels) const;
  /// A label that is pressed to take its colour.
  QWidget* ShowSwatch(Label& swatch) const;
  /// A label that only lights up.
  QWidget* ShowLamp(ToggleLabel& lamp) const;
  /// Lets a control that is shown stand in `area` where its own properties say, in twips.
  QWidget* Place(Control& control, QWidget* shown, QWidget* area) const;
  /// The pages in the order of the tabs.
  QWidget* Show(TabPages& pages, const std::vector<QLayout*>& layouts) const;

  /// The bindings of the form, for widgets that bind their controls themselves.
  [[nodiscard]] Bindings& bindings() const { return bindings_; }

 private:
  Bindings& bindings_;
};

[[nodiscard]] QLayout* Column(const std::vector<Piece>& pieces);
[[nodiscard]] QLayout* Row(const std::vector<Piece>& pieces);

/// Cells in rows of so many columns; a null is an empty cell.
[[nodiscard]] QGridLayout* Grid(const std::vector<QWidget*>& cells, int columns);

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

/// Gives each button, label and tab of a window that has no mnemonic one that no other on show has.
void GiveMnemonics(QWidget& window);

}  // namespace tarvik::screen
