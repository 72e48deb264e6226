#include "screen/FormLayout.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>

#include "screen/PaneView.h"
#include "screen/PlotView.h"
#include "screen/Text.h"

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

/// Enter and Escape press these.
bool NeedsNone(const QString& caption) {
  return caption.isEmpty() || caption == QLatin1String("OK") || caption == QLatin1String("Cancel");
}

template <class Widget>
void GiveEach(QWidget& window, const QWidget* page, Mnemonics& mnemonics) {
  for (auto* const widget : window.findChildren<Widget*>()) {
    if (PageOf(widget) != page) continue;
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

QWidget* FormLayout::Show(ToggleLabel& label) const { return Shown<QPushButton>(bindings_, label); }
QWidget* FormLayout::Show(Label& label) const { return Shown<QLabel>(bindings_, label); }

QWidget* FormLayout::Show(PlotBox& box) const { return new PlotView(box, bindings_); }

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

QWidget* FormLayout::Place(Control& control, QWidget* shown, QWidget* area) const {
  shown->setParent(area);
  bindings_.Place(control, *shown, kTwips);
  return shown;
}

QWidget* FormLayout::Show(CommandButton& button) const {
  auto* const widget = new QPushButton;
  widget->setAutoDefault(true);
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

QWidget* FormLayout::Show(TabPages& pages, std::initializer_list<QLayout*> layouts) const {
  auto* const tabs = new QTabWidget;
  tabs->setAccessibleName(QStringLiteral("Pages"));
  auto caption = pages.Captions().begin();
  for (QLayout* const layout : layouts) {
    auto* const page = new QWidget;
    page->setLayout(layout);
    tabs->addTab(page, ToScreen(*caption++));
  }
  bindings_.Bind(pages, *tabs);
  return tabs;
}

QLayout* Column(std::initializer_list<Piece> pieces) { return Fill(new QVBoxLayout, pieces); }
QLayout* Row(std::initializer_list<Piece> pieces) { return Fill(new QHBoxLayout, pieces); }

QWidget* Named(QWidget* control, const QString& name) {
  control->setAccessibleName(name);
  const auto* const combo = qobject_cast<QComboBox*>(control);
  if (combo && combo->lineEdit()) combo->lineEdit()->setAccessibleName(name);
  return control;
}

QLayout* Fields(std::initializer_list<Field> fields) {
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
  GiveOn(window, nullptr, shared);
  for (const QStackedWidget* const stack : window.findChildren<QStackedWidget*>()) {
    for (int i = 0; i < stack->count(); ++i) {
      Mnemonics page = shared;
      GiveOn(window, stack->widget(i), page);
    }
  }
}

}  // namespace tarvik::screen
