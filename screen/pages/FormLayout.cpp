#include "screen/pages/FormLayout.h"

#include <qdrawutil.h>

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <map>

#include "controls/ImageBox.h"
#include "controls/PlotBox.h"
#include "panes/Pane.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/FilteredList.h"
#include "screen/widgets/ImageView.h"
#include "screen/widgets/PaneView.h"
#include "screen/widgets/PathLabel.h"
#include "screen/widgets/PlotView.h"

namespace tarvik::screen {
namespace {

/// The Enter key presses it while it has the focus; the window's default button is chosen by the form alone.
class Button : public QPushButton {
 public:
  Button() { setAutoDefault(false); }

  /// The words have air on both sides.
  [[nodiscard]] QSize sizeHint() const override {
    constexpr int kAir = 12;
    const int icon = this->icon().isNull() ? 0 : iconSize().width();
    const int words = fontMetrics().horizontalAdvance(QString(text()).remove(u'&'));
    return QPushButton::sizeHint().expandedTo({words + icon + (words > 0 ? 2 * kAir : 0), 0});
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter) return click();
    QPushButton::keyPressEvent(event);
  }
  /// What is on lies deeper, which is seen without its tint as well.
  void paintEvent(QPaintEvent* event) override {
    QPushButton::paintEvent(event);
    if (!isChecked()) return;
    QPainter painter(this);
    qDrawShadePanel(&painter, rect().adjusted(1, 1, -1, -1), palette(), true, 2);
  }
};

/// A frame without a caption, whose border begins where the caption's middle would be.
class BorderView : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr int kAbove = 6;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, kAbove, -1, -1));
  }
};

// How each kind of control is shown.

template <class Widget>
QWidget* ShowOn(auto& control, Bindings& bindings) {
  auto* const widget = new Widget;
  bindings.Bind(control, *widget);
  return widget;
}

QWidget* ShowEntry(EntryBox& box, Bindings& bindings) {
  auto* const widget = new QComboBox;
  widget->setEditable(true);
  widget->setInsertPolicy(QComboBox::NoInsert);
  widget->setCompleter(nullptr);  // it would put another text in the place of what is typed
  widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  widget->setMinimumContentsLength(28);
  bindings.Bind(box, *widget);
  return widget;
}

QWidget* ShowButton(CommandButton& button, Bindings& bindings) {
  auto* const widget = new Button;
  bindings.Bind(button, *widget);
  bindings.Bind(button.Default, [widget, &button] { widget->setDefault(button.Default); });
  return widget;
}

QWidget* ShowSlider(Slider& slider, Bindings& bindings) {
  auto* const widget = new QSlider(Qt::Horizontal);
  bindings.Bind(slider, *widget);
  return widget;
}

QWidget* ShowList(ListBox& list, Bindings& bindings) {
  auto* const view = new ListStack(bindings, ToScreen(list.FullName()), Ticks::None);
  view->Add(list);
  return view;
}

QWidget* ShowPane(Pane& pane, Bindings& bindings) {
  auto* const view = new PaneView(pane, bindings, nullptr);
  view->setFrameShape(QFrame::StyledPanel);
  view->setTabChangesFocus(true);
  return view;
}

QWidget* ShowPlot(PlotBox& box, Bindings& bindings) { return new PlotView(box, bindings); }
QWidget* ShowImage(ImageBox& box, Bindings& bindings) { return new ImageView(box, bindings); }

QWidget* ShowFrame(Frame& frame, Bindings& bindings) {
  auto* const view = new BorderView;
  bindings.BindControl(frame, *view);
  return view;
}

/// Shows a control of its kind; null for any other.
using ShowKind = QWidget* (*)(Control& control, Bindings& bindings);

template <class Kind, QWidget* (*show)(Kind&, Bindings&)>
QWidget* Only(Control& control, Bindings& bindings) {
  auto* const own = dynamic_cast<Kind*>(&control);
  return own ? show(*own, bindings) : nullptr;
}

/// The kinds of controls that a page can show. One that is made from another stands in front of it.
constexpr ShowKind kKinds[] = {
    Only<EntryBox, ShowEntry>,
    Only<TextBox, ShowOn<QLineEdit>>,
    Only<CheckBox, ShowOn<QCheckBox>>,
    Only<OptionButton, ShowOn<QRadioButton>>,
    Only<CommandButton, ShowButton>,
    Only<ToggleLabel, ShowOn<Button>>,
    Only<Label, ShowOn<QLabel>>,
    Only<ComboBox, ShowOn<QComboBox>>,
    Only<Slider, ShowSlider>,
    Only<ListBox, ShowList>,
    Only<Pane, ShowPane>,
    Only<PlotBox, ShowPlot>,
    Only<ImageBox, ShowImage>,
    Only<Frame, ShowFrame>,
};

/// Keeps the letters that are taken, and gives one more.
class Mnemonics {
 public:
  void Take(const QString& caption) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    if (!key.isEmpty()) taken_ += QChar(key[0].key()).toUpper();
  }

  /// A letter that begins a word, else any; a null character where all are taken.
  QChar Give(const QString& caption) {
    for (const bool begins : {true, false}) {
      for (qsizetype i = 0; i < caption.size(); ++i) {
        const QChar letter = caption[i].toUpper();
        if (begins && i > 0 && caption[i - 1] != u' ') continue;
        if (!letter.isLetter() || taken_.contains(letter)) continue;
        taken_ += letter;
        return caption[i];
      }
    }
    return {};
  }

 private:
  QString taken_;
};

QWidget* PageOf(QWidget* widget) {
  while (widget && !qobject_cast<QStackedWidget*>(widget->parentWidget())) widget = widget->parentWidget();
  return widget;
}

/// Enter and Escape press OK and Cancel, and a code such as "/U" is no word with a letter to spare.
bool NeedsNone(const QString& caption) {
  return caption == caption.toUpper() || caption.size() == 1 || caption == QLatin1String("Cancel");
}

template <class Widget>
QList<Widget*> On(QWidget& window, const QWidget* page) {
  QList<Widget*> found = window.findChildren<Widget*>();
  found.removeIf(
      [page](Widget* widget) { return PageOf(widget) != page || widget->property(kNoMnemonic).toBool(); });
  return found;
}

template <class Widget>
void TakeEach(QWidget& window, const QWidget* page, Mnemonics& mnemonics) {
  for (const auto* const widget : On<Widget>(window, page)) mnemonics.Take(widget->text());
}

template <class Widget>
void GiveEach(QWidget& window, const QWidget* page, Mnemonics& mnemonics) {
  for (auto* const widget : On<Widget>(window, page)) {
    const QString caption = widget->text();
    if (caption.contains(u'&') || NeedsNone(caption)) continue;
    if constexpr (std::is_same_v<Widget, QLabel>) {
      if (!widget->buddy()) continue;
    }
    const QChar letter = mnemonics.Give(caption);
    if (letter.isNull()) continue;
    widget->setProperty(kMnemonic, letter);
    widget->setText(WithMnemonic(caption, *widget));
  }
}

/// What has a letter of its own keeps it, and all others take what is left.
void GiveOn(QWidget& window, const QWidget* page, Mnemonics& mnemonics) {
  TakeEach<QLabel>(window, page, mnemonics);
  TakeEach<QAbstractButton>(window, page, mnemonics);
  GiveEach<QLabel>(window, page, mnemonics);
  GiveEach<QAbstractButton>(window, page, mnemonics);
}

}  // namespace

QWidget* FormLayout::Show(Control& control) const {
  QWidget* shown = nullptr;
  for (const ShowKind show : kKinds) {
    if (!shown) shown = show(control, bindings_);
  }
  if (!shown) qFatal("no view shows a control such as %s", control.FullName().c_str());
  return shown;
}

QWidget* FormLayout::ShowPath(Label& label) const {
  QWidget* const path = ShowOn<PathLabel>(label, bindings_);
  path->setAutoFillBackground(false);
  return path;
}

QWidget* FormLayout::ShowLamp(ToggleLabel& lamp) const {
  auto* const label = new QLabel;
  bindings_.Bind(static_cast<Label&>(lamp), *label);
  label->setFrameShape(QFrame::StyledPanel);
  label->setAlignment(Qt::AlignCenter);
  label->setMargin(2);
  return label;
}

QWidget* FormLayout::ShowSwatch(Label& swatch) const {
  constexpr int kSide = 16;
  auto* const button = new Button;
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  button->setProperty(kNoMnemonic, true);
  bindings_.Bind(swatch, static_cast<QAbstractButton&>(*button));
  button->setAccessibleName(button->toolTip());
  bindings_.Bind(swatch.BackColor, [button, &swatch] {
    QPixmap colour(kSide, kSide);
    colour.fill(ToScreenColour(swatch.BackColor.Get()));
    button->setIcon(colour);
  });
  return button;
}

QWidget* FormLayout::Place(Control& control, QWidget* shown, QWidget* area) const {
  shown->setParent(area);
  bindings_.Place(control, *shown, Unit::Twip);
  return shown;
}

QWidget* FormLayout::Show(ControlArray<ListBox>& lists, const char* name) const {
  auto* const view = new ListStack(bindings_, QString::fromUtf8(name), Ticks::None);
  view->Add(lists);
  return view;
}

QWidget* FormLayout::ShowMacros(MacroListPanel& panel) const {
  auto* const view = new FilteredList(bindings_, QStringLiteral("Macros"), Ticks::Offered);
  view->list().Add(panel.List1);
  view->FollowLine(panel.FilterLines);
  return view;
}

QWidget* FormLayout::Show(TabPages& pages, const std::vector<QLayout*>& layouts) const {
  auto* const tabs = new QTabWidget;
  tabs->setAccessibleName(QStringLiteral("Pages"));
  for (QLayout* const layout : layouts) {
    auto* const page = new QWidget;
    page->setLayout(layout);
    tabs->addTab(page, QString());
  }
  bindings_.Bind(pages, *tabs);
  return tabs;
}

void GiveMnemonics(QWidget& window) {
  Mnemonics shared;
  for (const QTabBar* const tabs : window.findChildren<QTabBar*>()) {
    for (int i = 0; i < tabs->count(); ++i) shared.Take(tabs->tabText(i));
  }
  for (const QMenuBar* const bar : window.findChildren<QMenuBar*>()) {
    for (const QAction* const menu : bar->actions()) shared.Take(menu->text());
  }
  std::map<const QWidget*, Mnemonics> given;  // by page, those of the pages around it included
  GiveOn(window, nullptr, given[nullptr] = shared);
  for (QStackedWidget* const stack : window.findChildren<QStackedWidget*>()) {
    for (int i = 0; i < stack->count(); ++i) {
      const QWidget* const page = stack->widget(i);
      GiveOn(window, page, given[page] = given[PageOf(stack)]);
    }
  }
}

}  // namespace tarvik::screen
