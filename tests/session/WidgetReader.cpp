#include "session/WidgetReader.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <functional>

#include "screen/EditorView.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/StatusBarView.h"
#include "screen/widgets/ToolbarView.h"
#include "tools/wizards/Wizard.h"

namespace tarvik::screen {
namespace {

using Shown = std::optional<std::string>;

Shown AsShown(const Shown& text) { return text; }
Shown AsShown(const QString& text) { return FromScreen(text); }
template <class Number>
requires std::is_arithmetic_v<Number> Shown AsShown(Number number) { return TextOf(number); }
Shown AsShown(Colour colour) { return TextOf(colour); }

/// How a property of a component is read off what shows it; nothing for other kinds than the row is for.
struct Row {
  std::string_view property;
  std::function<Shown(const Component&, const QObject&)> read;
};

/// A row for controls of the kind that are shown by such a widget. `read` takes the widget, or the control
/// and the widget.
template <class Kind, class Widget, class Read>
Row Of(std::string_view property, Read read) {
  return {property, [read](const Component& component, const QObject& shown) -> Shown {
            const auto* const control = dynamic_cast<const Kind*>(&component);
            const auto* const widget = dynamic_cast<const Widget*>(&shown);
            if (!control || !widget) return {};
            if constexpr (std::is_invocable_v<Read, const Widget&>) {
              return AsShown(std::invoke(read, *widget));
            } else {
              return AsShown(read(*control, *widget));
            }
          }};
}

// Words.

/// Without the mark of the mnemonic that the widget was given.
QString CaptionOn(const QWidget& widget, QString text) {
  return widget.property(kMnemonic).isValid() ? text.remove(u'&') : text;
}

/// The toolkit answers with the caption where there is no tool tip, and no menu shows that.
Shown TipOn(const MenuItem& item, const QAction& action) {
  const auto* const menu = qobject_cast<const QMenu*>(action.parent());
  const bool shows = menu && menu->toolTipsVisible() && !item.isUsersText;
  return AsShown(shows && action.toolTip() != QAction(action.text()).toolTip() ? action.toolTip()
                                                                               : QString());
}

/// A user's text in full: what the menu has no room for stands in the tool tip.
Shown EntryOn(const MenuItem& item, const QAction& action) {
  if (action.isSeparator()) return std::string(MenuItem::kDivider);
  if (!item.isUsersText) return AsShown(action.text());
  const QString text = action.text().replace(QLatin1String("&&"), QLatin1String("&"));
  return AsShown(action.toolTip().size() > text.size() ? action.toolTip() : text);
}

QString ItemsOf(const QComboBox& box) {
  QStringList items;
  for (int i = 0; i < box.count(); ++i) items += box.itemText(i);
  return items.join(u'\n');
}

/// The line in which the text of a box is typed.
const QLineEdit& LineOf(const QWidget& widget) {
  const auto* const combo = qobject_cast<const QComboBox*>(&widget);
  return combo ? *combo->lineEdit() : dynamic_cast<const QLineEdit&>(widget);
}

std::size_t StartIn(const QLineEdit& line) {
  const int start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
  return FromScreen(line.text().left(start)).size();
}

// Tabs. The component is the tab, the widget the whole strip.

constexpr QChar kUnsaved = u'*';

bool IsMarked(const Tab& tab, const QTabBar& bar) {
  return tab.Unsaved && bar.tabText(*tab.Index() - 1).endsWith(kUnsaved);
}

QString CaptionOfTab(const Tab& tab, const QTabBar& bar) {
  const QString text = bar.tabText(*tab.Index() - 1).replace(QLatin1String("&&"), QLatin1String("&"));
  return text.chopped(IsMarked(tab, bar) ? 1 : 0);
}

// Lists. The widget shows the one that is in front.

template <class Read>
Row OfFront(std::string_view property, Read read) {
  return Of<ListBox, ListStack>(property, [read](const ListBox& list, const ListStack& view) -> Shown {
    return view.Front() == &list ? AsShown(std::invoke(read, view)) : std::nullopt;
  });
}

QStringList LinesOf(const ListStack& view, Qt::ItemDataRole role, bool (*wanted)(const QModelIndex&)) {
  QStringList lines;
  for (int row = 0; row < view.model()->rowCount(); ++row) {
    const QModelIndex item = view.model()->index(row, 0);
    if (!wanted(item)) continue;
    const QVariant data = item.data(role);
    const auto colour = data.value<QColor>();
    lines +=
        role == Qt::DecorationRole ? QString::number(NumberOf(FromScreenColour(colour))) : data.toString();
  }
  return lines;
}

bool IsAny(const QModelIndex& /*item*/) { return true; }
bool IsTicked(const QModelIndex& item) { return item.data(Qt::CheckStateRole).toInt() == Qt::Checked; }
bool HasColour(const QModelIndex& item) { return item.data(Qt::DecorationRole).value<QColor>().isValid(); }

// Colours.

/// A colour of the system stands for whatever the desktop has there.
template <class Coloured>
Shown GroundOf(const Coloured& component, const QWidget& widget) {
  const QColor ground = widget.palette().color(widget.backgroundRole());
  const bool desktops = ground == QApplication::palette(&widget).color(widget.backgroundRole());
  if (desktops && IsOfDesktop(component.BackColor)) return component.BackColor.ToText();
  return TextOf(FromScreenColour(ground));
}

Colour ColourOfSwatch(const QPushButton& button) {
  constexpr int kSide = 16;
  return FromScreenColour(button.icon().pixmap(kSide).toImage().pixelColor(0, 0));
}

bool IsFlat(const ToolbarView& toolbar) {
  const QList<QToolButton*> buttons = toolbar.findChildren<QToolButton*>();
  return std::all_of(buttons.begin(), buttons.end(),
                     [](const QToolButton* button) { return button->autoRaise(); });
}

// Windows.

/// What stands in front of the desktop's mark for unsaved work, and what behind it. Two marks stand for the
/// characters themselves.
std::pair<QString, QString> AroundMark(QString title) {
  const QLatin1String mark("[*]");
  static constexpr QChar kStandIn(1);
  const QStringList parts = title.replace(mark + mark, kStandIn).split(mark);
  const auto plain = [mark](QString part) { return part.replace(kStandIn, mark); };
  return {plain(parts.value(0)), plain(parts.value(1))};
}

Shown CaptionOfWindow(const Form& form, const QWidget& window) {
  const QLatin1String between(" - ");
  const auto [before, behind] = AroundMark(window.windowTitle());
  const QString caption = behind.isEmpty() ? before : behind.mid(between.size());
  // Blanks at its ends are left out on screen.
  return caption == ToScreen(form.Caption.Get()).trimmed() ? form.Caption.ToText() : FromScreen(caption);
}

QString FileInTitle(const QWidget& window) {
  const auto [before, behind] = AroundMark(window.windowTitle());
  return behind.isEmpty() ? QString() : before;
}

int StateOf(const QWidget& window) { return window.isMinimized() ? 1 : window.isMaximized() ? 2 : 0; }

// Places.

using Side = Property<float> Control::*;

/// A control that its form places, in pixels where it lies on the editor itself, else in twips. A place
/// between two pixels is shown on the nearer one.
Shown PlaceOn(const Control& control, const QWidget& widget, Side side, int pixels) {
  const QWidget* const area = widget.parentWidget();
  if (!area || area->layout() || qobject_cast<const QTabBar*>(&widget)) return {};
  const Unit unit = dynamic_cast<const EditorView*>(area) ? Unit::Pixel : Unit::Twip;
  const Property<float>& wanted = control.*side;
  if (pixels == ToPixels(wanted, unit)) return wanted.ToText();
  return unit == Unit::Twip ? TextOf(InTwips(Pixels{pixels})) : TextOf(pixels);
}

template <class Measured>
Row OfPlace(std::string_view property, Side side, Measured measured) {
  return Of<Control, QWidget>(property, [side, measured](const Control& control, const QWidget& widget) {
    return PlaceOn(control, widget, side, std::invoke(measured, widget));
  });
}

/// The first row that knows the component and its widget tells.
const std::vector<Row>& Rows() {
  static const std::vector<Row> rows = {
      Of<MenuItem, QAction>("Caption", EntryOn),
      Of<MenuItem, QAction>("ToolTipText", TipOn),
      Of<MenuItem, QAction>("Enabled", &QAction::isEnabled),
      Of<MenuItem, QAction>("Visible", &QAction::isVisible),
      Of<MenuItem, QAction>("Checked", &QAction::isChecked),

      Of<ToolbarButton, QToolButton>("ToolTipText", &QWidget::toolTip),
      Of<ToolbarButton, QToolButton>("Enabled", &QWidget::isEnabled),
      Of<Toolbar, ToolbarView>("Flat", IsFlat),

      Of<Panel, PanelView>("Text", &QWidget::accessibleName),
      Of<Panel, PanelView>("ToolTipText", &QWidget::toolTip),
      Of<Panel, PanelView>("Enabled", &QWidget::isEnabled),

      Of<ComboBox, QComboBox>("ListIndex", &QComboBox::currentIndex),
      Of<ComboBox, QComboBox>("Text", &QComboBox::currentText),
      Of<Control, QComboBox>("Items", ItemsOf),

      Of<TextBox, QWidget>("Text", [](const QWidget& box) { return LineOf(box).text(); }),
      Of<TextBox, QWidget>("SelStart", [](const QWidget& box) { return StartIn(LineOf(box)); }),
      Of<TextBox, QWidget>("SelLength",
                           [](const QWidget& box) { return FromScreen(LineOf(box).selectedText()).size(); }),

      Of<CheckBox, QAbstractButton>("Value", [](const auto& box) { return box.isChecked() ? 1 : 0; }),
      Of<OptionButton, QAbstractButton>("Value", &QAbstractButton::isChecked),

      Of<TabPages, QTabWidget>("Tab", &QTabWidget::currentIndex),
      Of<TabPages::Page, QTabWidget>(
          "Caption", [](const auto& page, const QTabWidget& tabs) { return tabs.tabText(*page.Index()); }),
      Of<TabPages::Page, QTabWidget>(
          "Visible",
          [](const auto& page, const QTabWidget& tabs) { return tabs.isTabVisible(*page.Index()); }),

      Of<TabStrip, QTabBar>("SelectedItem", [](const auto& bar) { return bar.currentIndex() + 1; }),
      Of<Tab, QTabBar>("Caption", CaptionOfTab),
      Of<Tab, QTabBar>("Unsaved", IsMarked),
      Of<Tab, QTabBar>("ToolTipText",
                       [](const Tab& tab, const QTabBar& bar) { return bar.tabToolTip(*tab.Index() - 1); }),
      Of<Tab, QTabBar>("Selected", [](const Tab& tab,
                                      const QTabBar& bar) { return bar.currentIndex() == *tab.Index() - 1; }),

      Of<ProgressBar, QProgressBar>("Min", &QProgressBar::minimum),
      Of<ProgressBar, QProgressBar>("Max", &QProgressBar::maximum),
      Of<ProgressBar, QProgressBar>("Value", &QProgressBar::value),

      OfFront("Items", [](const auto& view) { return LinesOf(view, Qt::DisplayRole, IsAny).join(u'\n'); }),
      OfFront("Ticked",
              [](const auto& view) { return LinesOf(view, Qt::DisplayRole, IsTicked).join(u'\n'); }),
      OfFront("Swatches",
              [](const auto& view) { return LinesOf(view, Qt::DecorationRole, HasColour).join(u'\n'); }),
      OfFront("ListCount", [](const auto& view) { return view.model()->rowCount(); }),
      OfFront("ListIndex", [](const auto& view) { return view.currentIndex().row(); }),
      OfFront("ToolTipText", &QWidget::toolTip),
      // It may be shown behind another one.
      Of<ListBox, ListStack>(
          "Visible",
          [](const ListBox& list, const auto& view) { return list.Visible || view.Front() == &list; }),

      Of<Pane, PaneView>("Text", [](const PaneView& view) { return view.document()->toRawText(); }),
      Of<Pane, PaneView>("SelText", [](const PaneView& view) { return view.textCursor().selectedText(); }),
      Of<Pane, PaneView>(
          "SelStart", [](const auto& view) { return view.PanePosition(view.textCursor().selectionStart()); }),
      Of<Pane, PaneView>("SelLength",
                         [](const PaneView& view) {
                           const QTextCursor cursor = view.textCursor();
                           return view.PanePosition(cursor.selectionEnd()) -
                                  view.PanePosition(cursor.selectionStart());
                         }),
      Of<Pane, PaneView>("BackColor", GroundOf<Pane>),
      Of<Pane, PaneView>("RightMargin",
                         [](const Pane& pane, const PaneView& view) {
                           const bool wraps = view.lineWrapMode() != QPlainTextEdit::NoWrap;
                           return wraps ? "0" : pane.RightMargin.ToText();
                         }),
      Of<Pane, PaneView>("Overtype", &QPlainTextEdit::overwriteMode),
      Of<Pane, PaneView>("Locked", &QPlainTextEdit::isReadOnly),

      Of<Label, QLabel>("BackColor", GroundOf<Label>),
      Of<ToggleLabel, QAbstractButton>("BackColor", GroundOf<Label>),
      Of<Label, QPushButton>("BackColor", ColourOfSwatch),
      Of<Label, QAbstractButton>("BorderStyle",
                                 [](const auto& button) { return button.isChecked() ? 1 : 0; }),

      Of<Control, QAbstractButton>("Caption",
                                   [](const auto& shown) { return CaptionOn(shown, shown.text()); }),
      Of<Control, QLabel>("Caption", [](const auto& shown) { return CaptionOn(shown, shown.text()); }),
      Of<Frame, QWidget>("Caption",
                         [](const QWidget& frame) {
                           const QString name = frame.accessibleName();
                           return name.isEmpty() ? Shown() : FromScreen(name);
                         }),

      Of<Wizard, QDialog>(
          "Page",
          [](const auto& window) { return window.template findChild<QStackedWidget*>()->currentIndex(); }),
      Of<Form, QWidget>("Caption", CaptionOfWindow),
      Of<Form, QWidget>("FileOnShow", FileInTitle),
      Of<Form, QWidget>("Unsaved", &QWidget::isWindowModified),
      Of<Form, QWidget>("Visible", &QWidget::isVisible),
      Of<Form, QDialog>("WindowState", StateOf),
      Of<Form, QMainWindow>("WindowState",
                            [](const Form& form, const QMainWindow& window) {
                              return window.isVisible() ? TextOf(StateOf(window)) : form.WindowState.ToText();
                            }),

      Of<Control, QWidget>("Visible", [](const QWidget& widget) { return !widget.isHidden(); }),
      Of<Control, QWidget>("Enabled", &QWidget::isEnabled),
      Of<Control, QWidget>("ToolTipText", &QWidget::toolTip),
      OfPlace("Left", &Control::Left, &QWidget::x),
      OfPlace("Top", &Control::Top, &QWidget::y),
      OfPlace("Width", &Control::Width, &QWidget::width),
      OfPlace("Height", &Control::Height, &QWidget::height),
  };
  return rows;
}

/// A tab has no widget of its own.
const QObject* WidgetOf(const Screen& screen, const Component& component) {
  const bool isTab = dynamic_cast<const Tab*>(&component) || dynamic_cast<const TabPages::Page*>(&component);
  return screen.Find(isTab ? *component.Parent() : component);
}

}  // namespace

std::optional<std::string> ReadOff(const Screen& screen, const Component& component,
                                   std::string_view property) {
  const QObject* const widget = WidgetOf(screen, component);
  if (!widget) return {};
  for (const Row& row : Rows()) {
    if (row.property != property) continue;
    if (Shown text = row.read(component, *widget)) return text;
  }
  return {};
}

}  // namespace tarvik::screen
