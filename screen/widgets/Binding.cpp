#include "screen/widgets/Binding.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <cmath>
#include <memory>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/Icons.h"
#include "screen/windows/WindowFocus.h"

namespace tarvik::screen {
namespace {

// Numbers of the tab strip's images.
constexpr int kFileImage = 9;
constexpr int kProtectedImage = 6;

/// No timer shows anything more often than the screen does, 60 times a second.
constexpr int kScreenPace = 17;  // milliseconds

/// A user's text as a menu shows it: letter by letter, and short enough for the screen. What is cut stands
/// whole in the tool tip.
void ShowUsersText(const std::string& text, QAction& action) {
  const int widest = QGuiApplication::primaryScreen()->availableGeometry().width() / 2;
  const QString whole = ToScreen(text).replace(u'\t', u' ');
  QString shown = QFontMetrics(QApplication::font("QMenu")).elidedText(whole, Qt::ElideMiddle, widest);
  action.setToolTip(shown == whole ? QString() : whole);
  action.setText(shown.replace(u'&', QLatin1String("&&")));
}

Qt::CursorShape CursorOf(int mousePointer) {
  switch (mousePointer) {
    case pointer::kWestEast:
      return Qt::SizeHorCursor;
    case pointer::kHourglass:
      return Qt::WaitCursor;
    case pointer::kWhatsThis:
      return Qt::WhatsThisCursor;
    default:
      return Qt::ArrowCursor;
  }
}

int ButtonNumber(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0) +
         (buttons & Qt::MiddleButton ? 4 : 0);
}

/// Stands behind the caption of a tab with unsaved work, as desktops have it in the titles of windows.
const QLatin1String kUnsavedMark("*");

QString Escaped(QString text) { return text.replace(u'&', QLatin1String("&&")); }

/// A button that can be checked no more drops its check without being painted anew, so the check goes first.
void ShowChecked(QAbstractButton& widget, bool checked) {
  if (checked) widget.setCheckable(true);
  widget.setChecked(checked);
  widget.setCheckable(checked);
}

/// Hands a widget's events on without taking them. A widget whose form has gone still has some: the focus
/// comes back to it when a menu closes.
class Watcher : public QObject {
 public:
  Watcher(QWidget& widget, Bindings& bindings, std::function<void(QEvent&)> watch)
      : QObject(&widget),
        watch_(std::move(watch)),
        released_(bindings.Released.Connect([this] { watch_ = nullptr; })) {
    widget.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (watch_) watch_(*event);
    return false;
  }

 private:
  std::function<void(QEvent&)> watch_;
  Connection released_;
};

/// Lets the button hear that its tool tip is about to be shown.
template <class Button>
void WatchPointer(Button& button, QWidget& widget, Bindings& bindings) {
  new Watcher(widget, bindings, [&button](QEvent& event) {
    if (event.type() == QEvent::ToolTip) button.Pointed();
  });
}

/// Takes the text of a box and what is selected in it to the line and back. It ends with the line.
class TypedText : public QObject {
 public:
  TypedText(TextBox& box, QLineEdit& line) : QObject(&line), box_(box), line_(line) {
    connect(&line, &QLineEdit::cursorPositionChanged, this, &TypedText::TakeSelection);
    connect(&line, &QLineEdit::selectionChanged, this, &TypedText::TakeSelection);
    connect(&line, &QLineEdit::textEdited, this,
            [this] { box_.SetText(FromScreen(line_.text()), PlaceOf(line_.cursorPosition())); });
  }

  void ShowText() {
    const QString text = ToScreen(box_.Text.Get());
    if (text == line_.text()) return;
    {
      const QScopedValueRollback rollback(busy_, true);
      line_.setText(text);
    }
    ShowSelection();
  }

  void ShowSelection() {
    if (busy_) return;
    const QScopedValueRollback rollback(busy_, true);
    const std::string text = box_.Text;
    const auto shown = [&text](std::size_t position) {
      return static_cast<int>(ToScreen(std::string_view(text).substr(0, position)).size());
    };
    const int from = shown(box_.SelStart);
    const int to = shown(box_.SelStart + box_.SelLength);
    line_.setCursorPosition(from);
    if (to > from) line_.setSelection(from, to - from);
  }

 private:
  [[nodiscard]] std::size_t PlaceOf(int position) const {
    return FromScreen(line_.text().left(position)).size();
  }

  /// The toolkit drops the selection of a line that the focus leaves; the box keeps it for what is inserted
  /// next.
  void TakeSelection() {
    if (busy_ || !line_.hasFocus()) return;
    const QScopedValueRollback rollback(busy_, true);
    box_.SelStart = PlaceOf(line_.hasSelectedText() ? line_.selectionStart() : line_.cursorPosition());
    box_.SelLength = FromScreen(line_.selectedText()).size();
  }

  TextBox& box_;
  QLineEdit& line_;
  bool busy_ = false;  // one of the two is taking over from the other
};

}  // namespace

int ToPixels(float value, Unit unit) {
  return static_cast<int>(std::lround(unit == Unit::Twip ? InPixels({value}).count : value));
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? shift::kShift : 0) +
         (modifiers & Qt::ControlModifier ? shift::kCtrl : 0) +
         (modifiers & Qt::AltModifier ? shift::kAlt : 0);
}

Mouse ToMouse(const QMouseEvent& event) {
  const bool moving = event.type() == QEvent::MouseMove;
  return {ButtonNumber(moving ? event.buttons() : event.button()), ShiftState(event.modifiers()),
          InTwips(Pixels{static_cast<float>(event.position().x())}),
          InTwips(Pixels{static_cast<float>(event.position().y())})};
}

void Bindings::Bind(PropertyBase& property, std::function<void()> show) {
  show();
  connections_.push_back(property.Changed.Connect(std::move(show)));
}

void Bindings::Shows(const Component& component, QObject& shown) {
  shown.setObjectName(ToScreen(component.FullName()));
  shown_[&component] = &shown;
}

void Bindings::Forget(const Component& component) { shown_.erase(&component); }

void Bindings::Release() {
  // A menu that is open is pointed at and chosen from until it is through.
  for (const auto& [component, shown] : shown_) {
    if (auto* const action = qobject_cast<QAction*>(shown)) action->disconnect();
  }
  shown_.clear();
  connections_.clear();
  Released();
}

QObject* Bindings::Find(const Component& component) const {
  const auto found = shown_.find(&component);
  return found == shown_.end() ? nullptr : found->second;
}

void Bindings::BindControl(Control& control, QWidget& widget) {
  Shows(control, widget);
  Bind(control.Visible, [&] {
    // Otherwise the toolkit hands the focus to whatever comes next.
    if (!control.Visible && widget.hasFocus()) widget.clearFocus();
    // Without a place yet it would come up as a window of its own; it shows with its parent.
    if (widget.parentWidget() || !control.Visible) widget.setVisible(control.Visible);
  });
  Bind(control.Enabled, [&] { widget.setEnabled(control.Enabled); });
  Bind(control.ToolTipText, [&] { widget.setToolTip(ToScreen(control.ToolTipText.Get())); });
  Bind(control.MousePointer, [&] { widget.setCursor(CursorOf(control.MousePointer)); });
  if (widget.focusPolicy() == Qt::NoFocus) return;
  new Watcher(widget, *this, [this, &control](QEvent& event) {
    if (event.type() != QEvent::FocusIn) return;
    const QScopedValueRollback rollback(takingFocus_, true);
    control.SetFocus();
  });
  Form& form = *control.OwnForm();
  Keep(form.ActiveControlChanged.Connect([this, &form, &control, &widget] {
    if (form.ActiveControl() != &control || (takingFocus_ && widget.hasFocus())) return;
    if (!widget.hasFocus()) widget.setFocus();
    AskForWindow(widget);
  }));
}

void Bindings::BindMouse(Control& control, QWidget& widget) {
  widget.setMouseTracking(true);
  new Watcher(widget, *this, [&control](QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress)
      control.MouseDown(ToMouse(static_cast<QMouseEvent&>(event)));
    if (event.type() == QEvent::MouseMove) control.MouseMove(ToMouse(static_cast<QMouseEvent&>(event)));
    if (event.type() == QEvent::MouseButtonRelease)
      control.MouseUp(ToMouse(static_cast<QMouseEvent&>(event)));
  });
}

void Bindings::Place(Control& control, QWidget& widget, Unit unit) {
  const auto place = [&control, &widget, unit] {
    widget.setGeometry(ToPixels(control.Left, unit), ToPixels(control.Top, unit),
                       ToPixels(control.Width, unit), ToPixels(control.Height, unit));
  };
  for (Property<float>* const side : {&control.Left, &control.Top, &control.Width, &control.Height}) {
    Bind(*side, place);
  }
}

void Bindings::Bind(MenuItem& item, QAction& action) {
  Shows(item, action);
  action.setShortcut(QKeySequence(ToScreen(item.Shortcut.Get())));
  Bind(item.Caption, [&] {
    if (item.isUsersText) return ShowUsersText(item.Caption, action);
    action.setSeparator(item.Caption.Get() == MenuItem::kDivider);
    action.setText(action.isSeparator() ? QString() : ToScreen(item.Caption.Get()));
  });
  Bind(item.ToolTipText, [&] {
    if (!item.isUsersText) action.setToolTip(ToScreen(item.ToolTipText.Get()));
  });
  QObject::connect(&action, &QAction::hovered, &action, [&item] { item.Pointed(); });
  Bind(item.Enabled, [&] { action.setEnabled(item.Enabled); });
  Bind(item.Visible, [&] { action.setVisible(item.Visible); });
  const auto showCheck = [&] {
    action.setCheckable(item.Checked);
    action.setChecked(item.Checked);
    // The check mark stands where the picture would, and some styles show but one of them.
    action.setIcon(item.Checked ? QIcon() : Icon(item.Image.Get()));
  };
  Bind(item.Checked, showCheck);
  Bind(item.Image, showCheck);
  QObject::connect(&action, &QAction::triggered, &action, [&item, showCheck] {
    item.Click();
    showCheck();  // the toolkit has turned the check mark over by itself
  });
}

QString WithMnemonic(QString caption, const QWidget& widget) {
  const QVariant letter = widget.property(kMnemonic);
  const qsizetype at = letter.isValid() ? caption.indexOf(letter.toChar(), 0, Qt::CaseInsensitive) : -1;
  return at < 0 ? caption : caption.insert(at, u'&');
}

template <class Captioned, class Widget>
void Bindings::BindCaption(Captioned& control, Widget& widget) {
  Bind(control.Caption, [&] { widget.setText(WithMnemonic(ToScreen(control.Caption.Get()), widget)); });
}

void Bindings::Bind(CommandButton& button, QAbstractButton& widget) {
  BindControl(button, widget);
  BindCaption(button, widget);
  WatchPointer(button, widget, *this);
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&] { button.Click(); });
}

void Bindings::Bind(ToolbarButton& button, QToolButton& widget) {
  Shows(button, widget);
  Bind(button.ToolTipText, [&] {
    widget.setToolTip(ToScreen(button.ToolTipText.Get()));
    widget.setAccessibleName(widget.toolTip());
  });
  WatchPointer(button, widget, *this);
  Bind(button.Image, [&] { widget.setIcon(Icon(button.Image.Get())); });
  Bind(button.Enabled, [&] { widget.setEnabled(button.Enabled); });
  const auto showCheck = [&] { ShowChecked(widget, button.Checked); };
  Bind(button.Checked, showCheck);
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&button, showCheck] {
    button.Click();
    showCheck();  // the toolkit has turned it over by itself
  });
}

void Bindings::Bind(Label& label, QLabel& widget) {
  BindControl(label, widget);
  BindCaption(label, widget);
  widget.setAutoFillBackground(true);
  BindBackColour(label, widget);
}

void Bindings::Bind(ToggleLabel& label, QAbstractButton& widget) {
  BindControl(label, widget);
  BindCaption(label, widget);
  BindBackColour(label, widget);
  widget.setCheckable(true);
  const auto show = [&] { widget.setChecked(label.On()); };
  Bind(label.BackColor, show);
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&label, show] {
    label.Click();
    show();  // the toolkit has turned it over by itself
  });
}

void Bindings::Bind(Label& label, QAbstractButton& widget) {
  BindControl(label, widget);
  BindCaption(label, widget);
  const auto show = [&] { ShowChecked(widget, label.BorderStyle == 1); };
  Bind(label.BorderStyle, show);
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&label, show] {
    label.Click();
    show();  // the toolkit has turned it over by itself
  });
}

/// A colour of the system is that of the desktop.
void Bindings::BindBackColour(Label& label, QWidget& widget) {
  Bind(label.BackColor, [&label, &widget] {
    QPalette palette = QApplication::palette(&widget);
    if (label.BackColor == ToggleLabel::kOn) palette.setColor(widget.foregroundRole(), Qt::black);
    const bool system = IsOfDesktop(label.BackColor);
    const QColor own = palette.color(widget.backgroundRole());
    palette.setColor(widget.backgroundRole(), system ? own : ToScreenColour(label.BackColor));
    widget.setPalette(palette);
  });
}

void Bindings::Bind(ComboBox& combo, QComboBox& widget) {
  BindControl(combo, widget);
  widget.setAccessibleName(widget.toolTip());
  const auto showItem = [&] { widget.setCurrentIndex(combo.ListIndex); };
  const auto showItems = [&combo, &widget, showItem] {
    widget.clear();
    for (const std::string& item : combo.List()) widget.addItem(ToScreen(item));
    showItem();
  };
  showItems();
  Keep(combo.ItemsChanged.Connect(showItems));
  Bind(combo.ListIndex, showItem);
  QObject::connect(&widget, &QComboBox::activated, &widget, [&](int index) { combo.Select(index); });
}

void Bindings::BindTab(Tab& tab, QTabBar& widget, int index) {
  widget.addTab(QString());
  const auto show = [&tab, &widget, index] {
    const QString caption = Escaped(ToScreen(tab.Caption.Get()));
    widget.setTabText(index, tab.Unsaved ? caption + kUnsavedMark : caption);
  };
  Bind(tab.Caption, show);
  Bind(tab.Unsaved, show);
  Bind(tab.ToolTipText,
       [&tab, &widget, index] { widget.setTabToolTip(index, ToScreen(tab.ToolTipText.Get())); });
  Bind(tab.Image, [&tab, &widget, index] {
    const char* const name = tab.Image == kProtectedImage ? "tab-protected" : "tab-file";
    const bool any = tab.Image == kProtectedImage || tab.Image == kFileImage;
    widget.setTabIcon(index, any ? Icon(name) : QIcon());
  });
}

void Bindings::BindText(TextBox& box, QLineEdit& line) {
  auto* const typed = new TypedText(box, line);
  const auto showSelection = [typed] { typed->ShowSelection(); };
  Bind(box.Text, [typed] { typed->ShowText(); });
  Bind(box.SelStart, showSelection);
  Bind(box.SelLength, showSelection);
  Bind(box.BackColor, [&] {
    QPalette palette = QApplication::palette(&line);
    if (box.BackColor != kWhite) {
      palette.setColor(QPalette::Base, ToScreenColour(box.BackColor.Get()));
      palette.setColor(QPalette::Text, Qt::black);
    }
    line.setPalette(palette);
  });
}

void Bindings::Bind(TextBox& box, QLineEdit& widget) {
  BindControl(box, widget);
  BindText(box, widget);
}

void Bindings::Bind(EntryBox& box, QComboBox& widget) {
  BindControl(box, widget);
  const auto showItems = [&] {
    const QString text = widget.currentText();
    widget.clear();
    for (const std::string& item : box.List()) widget.addItem(ToScreen(item));
    widget.setCurrentIndex(-1);
    widget.setEditText(text);
  };
  showItems();
  Keep(box.ItemsChanged.Connect(showItems));
  QObject::connect(&widget, &QComboBox::activated, &widget, [&](int index) { box.Pick(index); });
  BindText(box, *widget.lineEdit());
}

void Bindings::Bind(CheckBox& box, QAbstractButton& widget) {
  BindControl(box, widget);
  BindCaption(box, widget);
  Bind(box.Value, [&] { widget.setChecked(box.Value == 1); });
  QObject::connect(&widget, &QAbstractButton::clicked, &widget,
                   [&](bool checked) { box.Value = checked ? 1 : 0; });
}

void Bindings::Bind(OptionButton& button, QAbstractButton& widget) {
  BindControl(button, widget);
  BindCaption(button, widget);
  Bind(button.Value, [&] {
    // The toolkit keeps a mark that is the last one among the buttons beside it; the others may be
    // elsewhere.
    widget.setAutoExclusive(false);
    widget.setChecked(button.Value);
    widget.setAutoExclusive(true);
  });
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&] { button.Value = true; });
}

void Bindings::Bind(TabPages& pages, QTabWidget& widget) {
  BindControl(pages, widget);
  for (int i = 0; i < pages.Count(); ++i) {
    TabPages::Page& page = pages.Pages(i);
    Bind(page.Caption, [&page, &widget, i] { widget.setTabText(i, ToScreen(page.Caption.Get())); });
    Bind(page.Visible, [&page, &widget, i] { widget.setTabVisible(i, page.Visible); });
  }
  Bind(pages.Tab, [&] { widget.setCurrentIndex(pages.Tab); });
  QObject::connect(&widget, &QTabWidget::currentChanged, &widget, [&](int index) { pages.Tab = index; });
}

void Bindings::Bind(TabStrip& strip, QTabBar& widget) {
  BindControl(strip, widget);
  for (int i = 1; i <= strip.Count(); ++i) BindTab(strip.Tabs(i), widget, i - 1);
  Bind(strip.SelectedItem, [&] { widget.setCurrentIndex(strip.SelectedIndex() - 1); });
  QObject::connect(&widget, &QTabBar::currentChanged, &widget, [&](int index) { strip.Select(index + 1); });
}

void Bindings::Bind(ProgressBar& bar, QProgressBar& widget) {
  BindControl(bar, widget);
  Bind(bar.Min, [&] { widget.setMinimum(bar.Min); });
  Bind(bar.Max, [&] { widget.setMaximum(bar.Max); });
  Bind(bar.Value, [&] { widget.setValue(bar.Value); });
}

void Bindings::Bind(Slider& slider, QSlider& widget) {
  BindControl(slider, widget);
  Bind(slider.Max, [&] { widget.setMaximum(slider.Max); });
  Bind(slider.Value, [&] { widget.setValue(slider.Value); });
  QObject::connect(&widget, &QSlider::valueChanged, &widget, [&](int value) { slider.Value = value; });
}

void Bindings::Bind(Timer& timer, QTimer& clock) {
  Shows(timer, clock);
  const auto began = std::make_shared<QElapsedTimer>();
  const auto show = [&timer, &clock, began] {
    if (timer.Enabled && timer.Interval > 0) {
      clock.start(std::max(timer.Interval.Get(), kScreenPace));
      began->start();
    } else {
      clock.stop();
    }
  };
  Bind(timer.Interval, show);
  Bind(timer.Enabled, show);
  QObject::connect(&clock, &QTimer::timeout, &clock, [&timer, began] {
    timer.passed = static_cast<int>(began->restart());
    timer.Elapsed();
  });
}

}  // namespace tarvik::screen
