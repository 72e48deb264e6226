#include "screen/pages/FormLayout.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <map>

#include "screen/widgets/DeviceView.h"
#include "screen/widgets/ImageView.h"
#include "screen/widgets/ListStack.h"
#include "screen/widgets/PaneView.h"
#include "screen/widgets/PathLabel.h"
#include "screen/widgets/PlotView.h"
#include "screen/widgets/Text.h"

namespace tarvik::screen {
namespace {

QLayout* Fill(QBoxLayout* layout, std::initializer_list<Piece> pieces) {
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

/// The Enter key presses it while it has the focus; the window's default button is chosen by the form alone.
class Button : public QPushButton {
 public:
  Button() { setAutoDefault(false); }

  /// With air on both sides of its words.
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
};

template <class Widget, class Component>
QWidget* Shown(Bindings& bindings, Component& component) {
  auto* const widget = new Widget;
  bindings.Bind(component, *widget);
  return widget;
}

/// The letters that are taken, and the giving of one more.
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

/// Enter and Escape press these two, and a code such as "/U" is no word with a letter to spare.
bool NeedsNone(const QString& caption) {
  return caption == caption.toUpper() || caption.size() == 1 || caption == QLatin1String("Cancel");
}

template <class Widget>
void GiveEach(QWidget& window, const QWidget* page, Mnemonics& mnemonics) {
  for (auto* const widget : window.findChildren<Widget*>()) {
    if (PageOf(widget) != page || widget->property(kNoMnemonic).toBool()) continue;
    mnemonics.Take(widget->text());
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

void GiveOn(QWidget& window, const QWidget* page, Mnemonics& mnemonics) {
  GiveEach<QLabel>(window, page, mnemonics);
  GiveEach<QAbstractButton>(window, page, mnemonics);
}

}  // namespace

QWidget* FormLayout::Show(TextBox& box) const { return Shown<QLineEdit>(bindings_, box); }
QWidget* FormLayout::Show(CheckBox& box) const { return Shown<QCheckBox>(bindings_, box); }
QWidget* FormLayout::Show(OptionButton& button) const { return Shown<QRadioButton>(bindings_, button); }

QWidget* FormLayout::Show(ToggleLabel& label) const { return Shown<Button>(bindings_, label); }
QWidget* FormLayout::Show(Label& label) const { return Shown<QLabel>(bindings_, label); }

QWidget* FormLayout::ShowPath(Label& label) const {
  QWidget* const path = Shown<PathLabel>(bindings_, label);
  path->setAutoFillBackground(false);
  return path;
}

QWidget* FormLayout::Show(PlotBox& box) const { return new PlotView(box, bindings_); }
QWidget* FormLayout::Show(ImageBox& box) const { return new ImageView(box, bindings_); }

QWidget* FormLayout::Show(Frame& frame) const {
  auto* const view = new BorderView;
  bindings_.BindControl(frame, *view);
  return view;
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
  bindings_.Place(control, *shown, kTwips);
  return shown;
}

QWidget* FormLayout::Show(CommandButton& button) const {
  auto* const widget = new Button;
  bindings_.Bind(button, *widget);
  bindings_.Bind(button.Default, [widget, &button] { widget->setDefault(button.Default); });
  return widget;
}

QWidget* FormLayout::Show(EntryBox& box) const {
  auto* const widget = new QComboBox;
  widget->setEditable(true);
  widget->setInsertPolicy(QComboBox::NoInsert);
  widget->setCompleter(nullptr);  // it would put another text in the place of what is typed
  widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  widget->setMinimumContentsLength(28);
  bindings_.Bind(box, *widget);
  return widget;
}

QWidget* FormLayout::Show(Pane& pane) const {
  auto* const view = new PaneView(pane, bindings_, nullptr);
  view->setFrameShape(QFrame::StyledPanel);
  view->setTabChangesFocus(true);
  return view;
}

QWidget* FormLayout::Show(ComboBox& box) const { return Shown<QComboBox>(bindings_, box); }

QWidget* FormLayout::Show(ListBox& list) const {
  auto* const view = new ListStack(bindings_, ToScreen(list.FullName()), false);
  view->Add(list);
  return view;
}

QWidget* FormLayout::Show(ControlArray<ListBox>& lists, const char* name, bool ticks) const {
  auto* const view = new ListStack(bindings_, QString::fromUtf8(name), ticks);
  view->Add(lists);
  return view;
}

QWidget* FormLayout::Show(const char* drawing, const std::vector<Label*>& labels) const {
  auto* const view = new DeviceView(QString::fromLatin1(drawing), bindings_);
  for (Label* const label : labels) view->Add(*label);
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

QLayout* Column(std::initializer_list<Piece> pieces) { return Fill(new QVBoxLayout, pieces); }
QLayout* Row(std::initializer_list<Piece> pieces) { return Fill(new QHBoxLayout, pieces); }

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
  for (const Field& field : fields) {
    layout->addRow(QString::fromUtf8(field.label), field.control);
    QString name = QString::fromUtf8(field.label);
    if (name.endsWith(u':')) name.chop(1);
    Named(field.control, name);
  }
  return layout;
}

QLayout* Above(const char* label, QWidget* control) {
  auto* const text = new QLabel(QString::fromUtf8(label));
  text->setBuddy(control);
  return Column({text, Named(control, text->text())});
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
