#include "screen/EditorView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>

#include "screen/MumWindow.h"
#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

constexpr int kTabHeight = 23;

/// Four dots below each other where something can be dragged.
void PaintGrip(QPainter& painter, const QPoint& centre, const QPalette& palette) {
  for (const int dot : {-6, -2, 2, 6}) {
    painter.fillRect(centre.x(), centre.y() + dot, 2, 2, palette.color(QPalette::Mid));
  }
}

/// The macro frame, with a line along the edge that can be dragged.
class FrameView : public QWidget {
 public:
  FrameView(Frame& frame, Bindings& bindings, QWidget* parent) : QWidget(parent), frame_(frame) {
    bindings.BindControl(frame, *this);
    bindings.Place(frame, *this, Unit::Pixel);
    bindings.BindMouse(frame, *this);
    bindings.Bind(frame.Caption, [this] { setAccessibleName(ToScreen(frame_.Caption.Get())); });
  }

 protected:
  void mouseDoubleClickEvent(QMouseEvent*) override { frame_.DblClick(); }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    PaintGrip(painter, {width() - kFrameGrip / 2 - 1, height() / 2}, palette());
  }

 private:
  Frame& frame_;
};

/// The edge between the two files in the tiled view, which can be dragged; a double click puts it in the
/// middle.
class SplitterView : public QWidget {
 public:
  static constexpr int kWidth = 6;

  SplitterView(Editor& editor, QWidget* parent) : QWidget(parent), editor_(editor) {
    setCursor(Qt::SplitHCursor);
    setToolTip(tr("Drag to give one file more room; a double click shares it evenly"));
    setAccessibleName(tr("Edge between the files"));
    setFocusPolicy(Qt::TabFocus);
  }

 protected:
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons() & Qt::LeftButton) {
      editor_.TileTo(Pixels{static_cast<float>(mapToParent(event->position()).x())});
    }
  }
  void mouseReleaseEvent(QMouseEvent*) override { editor_.KeepTiles(); }
  void mouseDoubleClickEvent(QMouseEvent*) override { editor_.TileEvenly(); }
  void keyPressEvent(QKeyEvent* event) override {
    constexpr int kStep = 16;
    switch (event->key()) {
      case Qt::Key_Left:
        return Shift(-kStep);
      case Qt::Key_Right:
        return Shift(kStep);
      case Qt::Key_Home:
        return editor_.TileEvenly();
      default:
        QWidget::keyPressEvent(event);
    }
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Window));
    PaintGrip(painter, {width() / 2 - 1, height() / 2}, palette());
  }

 private:
  void Shift(int pixels) {
    editor_.TileTo(Pixels{geometry().left() + kWidth / 2 + 1 + pixels});
    editor_.KeepTiles();
  }

  Editor& editor_;
};

}  // namespace

EditorView::EditorView(Editor& editor, Workbench& workbench, Clock clock)
    : FormView(editor), editor_(editor) {
  setObjectName(QStringLiteral("Editor"));
  setBackgroundRole(QPalette::Window);
  setAutoFillBackground(true);
  menus_ = MakeMenus(editor.menus, bindings_);
  popUps_ = MakeMenus(editor.popUps, bindings_);
  FollowArrays(editor.menus, bindings_);
  FollowArrays(editor.popUps, bindings_);
  MakeMacroFrame(workbench.settings);
  MakeTabs();
  notice_ = new NoticeView(editor.notice, bindings_, this);
  find_ = new FindView(editor.find, bindings_, this);
  problems_ = new ProblemView(editor.problems, bindings_, this);
  explain_ = new ExplainView(editor.explain, bindings_, this);
  MakePanes(workbench);
  MakeSuggestions();
  MakeWelcome();
  OrderFocus();
  bindings_.Shows(editor, *this);
  bindings_.Bind(editor.Caption, [this] { setWindowTitle(ToScreen(editor_.Caption.Get())); });
  for (const auto* const menus : {&menus_, &popUps_}) PopUpOnDemand(*menus, editor, *this, bindings_);
  if (clock == Clock::Scripted) return;
  for (Timer* timer : {&editor.Timer1, &editor.TimerBlinkLine, &editor.explain.pause.timer,
                       &editor.outline.pause.timer, &editor.suggestions.pause.timer})
    bindings_.Bind(*timer, *new QTimer(this));
}

void EditorView::MakeMacroFrame(Settings& settings) {
  auto* const frame = new FrameView(editor_.FrameMacros, bindings_, this);
  auto* const categories = new QComboBox(frame);
  bindings_.Bind(editor_.Combo1, *categories);
  bindings_.Place(editor_.Combo1, *categories, Unit::Twip);
  macros_ = new FilteredList(bindings_, tr("Macros"), Ticks::Offered, frame);
  macros_->list().Add(editor_.List1);
  macros_->FollowLine(settings.FilterLines);
  macros_->Add(editor_.RenewMacros, "update-macros");
  bindings_.Place(editor_.List1(0), *macros_, Unit::Twip);
  MakeOutline(*frame, *categories, settings);
  for (int i = 0; i < Editor::kModifierButtons; ++i) {
    auto* const button = new QToolButton(frame);
    button->setFocusPolicy(Qt::TabFocus);
    bindings_.Bind(editor_.Command1(i), *button);
    bindings_.BindMouse(editor_.Command1(i), *button);
    bindings_.Place(editor_.Command1(i), *button, Unit::Twip);
  }
}

/// In the place of the lists and of the box above them, which go while it is there.
void EditorView::MakeOutline(QWidget& frame, QWidget& categories, Settings& settings) {
  OutlinePanel& panel = editor_.outline;
  lists_ = new QTabBar(&frame);
  lists_->setDrawBase(false);
  lists_->setDocumentMode(true);
  lists_->setAccessibleName(tr("Macros or outline"));
  bindings_.Bind(panel.tabs, *lists_);
  connect(lists_, &QTabBar::tabBarDoubleClicked, this, [this] { editor_.FrameMacros.DblClick(); });
  auto* const outline = new FilteredList(bindings_, tr("Outline"), Ticks::None, &frame);
  outline->list().Add(panel.list);
  outline->FollowLine(settings.FilterLines);
  bindings_.Place(panel.tabs, *lists_, Unit::Twip);
  bindings_.Place(panel.list, *outline, Unit::Twip);
  bindings_.Bind(panel.list.Visible, [this, outline, &panel, &categories] {
    outline->setVisible(panel.list.Visible);
    for (QWidget* const each : {&categories, static_cast<QWidget*>(macros_)}) {
      each->setVisible(!panel.list.Visible);
    }
  });
}

void EditorView::MakeTabs() {
  tabs_ = new QTabBar(this);
  tabs_->setExpanding(false);
  tabs_->setDrawBase(false);
  tabs_->setElideMode(Qt::ElideMiddle);
  tabs_->setAccessibleName(tr("Files"));
  TabStrip& strip = editor_.TabStrip1;
  bindings_.Bind(strip, *tabs_);
  for (PropertyBase* side :
       std::initializer_list<PropertyBase*>{&strip.Left, &strip.Top, &strip.Width, &strip.Height}) {
    bindings_.Bind(*side, [this] { PlaceTabs(); });
  }
  const auto turn = [this](int step) {
    const int count = editor_.TabStrip1.Count();
    editor_.TabStrip1.Select((editor_.TabStrip1.SelectedIndex() - 1 + step + count) % count + 1);
  };
  auto* const forward = new QShortcut(this);
  forward->setKeys({QKeySequence(Qt::CTRL | Qt::Key_Tab)});
  connect(forward, &QShortcut::activated, this, [turn] { turn(1); });
  auto* const back = new QShortcut(this);
  back->setKeys({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
                 QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab)});
  connect(back, &QShortcut::activated, this, [turn] { turn(-1); });
}

void EditorView::MakePanes(Workbench& workbench) {
  panes_[0] = new EditorPane(editor_, workbench, editor_.Joystick, bindings_, this);
  panes_[0]->setAccessibleName(tr("Joystick file"));
  panes_[1] = new EditorPane(editor_, workbench, editor_.Macro, bindings_, this);
  panes_[1]->setAccessibleName(tr("Macro file"));
  for (EditorPane* const pane : panes_) {
    pane->wordChanged = [this](const std::string& word) {
      for (EditorPane* const each : panes_) each->MarkWord(word);
    };
  }
  bindings_.Place(editor_.JoystickText, *panes_[0], Unit::Pixel);
  bindings_.Place(editor_.MacroText, *panes_[1], Unit::Pixel);
  splitter_ = new SplitterView(editor_, this);
  for (PropertyBase* const side : std::initializer_list<PropertyBase*>{
           &editor_.MacroText.Left, &editor_.MacroText.Top, &editor_.MacroText.Height,
           &editor_.mnuViewTileVertically.Checked}) {
    bindings_.Bind(*side, [this] { PlaceSplitter(); });
  }
  // On many keyboards the plus is above the equals sign.
  auto* const larger = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Equal), this);
  connect(larger, &QShortcut::activated, this, [this] { editor_.mnuViewZoomIn_Click(); });
}

void EditorView::MakeSuggestions() {
  const auto place = [this](std::size_t position) {
    EditorPane& pane = *panes_[editor_.TabStrip1.SelectedIndex() - 1];
    pane.ensureCursorVisible();
    const QRect caret = pane.CaretAt(position);
    return QRect(pane.viewport()->mapTo(this, caret.topLeft()), caret.size());
  };
  new SuggestionView(editor_.suggestions, bindings_, place, this);
}

/// Over both files in the tiled view too.
void EditorView::MakeWelcome() {
  welcome_ = new WelcomeView(editor_.welcome, bindings_, this);
  TabStrip& strip = editor_.TabStrip1;
  Pane& pane = editor_.JoystickText;
  for (PropertyBase* const side :
       std::initializer_list<PropertyBase*>{&strip.Left, &strip.Width, &pane.Top, &pane.Height}) {
    bindings_.Bind(*side, [this, &strip, &pane] {
      welcome_->StandIn(
          {ToPixels(strip.Left), ToPixels(pane.Top), ToPixels(strip.Width), ToPixels(pane.Height)});
    });
  }
}

/// The Tab key goes as the eye does. The upper row of the modifier buttons ends with the last of their array.
void EditorView::OrderFocus() {
  const auto button = [this](int index) {
    return static_cast<QWidget*>(bindings_.Find(editor_.Command1(index)));
  };
  setTabOrder(button(modifier::kFirstLower - 1), button(modifier::kLastUpper));
  setTabOrder(button(modifier::kLastUpper), button(modifier::kFirstLower));
  setTabOrder(button(modifier::kLastLower), tabs_);
  QWidget* last = tabs_;
  for (QWidget* const next : notice_->buttons()) setTabOrder(std::exchange(last, next), next);
  // A text takes the Tab key itself: what one wants before there is any stands a Shift+Tab away.
  for (QWidget* const next : welcome_->parts()) setTabOrder(std::exchange(last, next), next);
  setTabOrder(last, panes_[0]);
  setTabOrder(panes_[0], splitter_);
  setTabOrder(splitter_, panes_[1]);
  last = panes_[1];
  for (const auto& parts : {find_->parts(), explain_->parts(), problems_->parts()}) {
    for (QWidget* const next : parts) setTabOrder(std::exchange(last, next), next);
  }
}

void EditorView::PlaceTabs() {
  const TabStrip& strip = editor_.TabStrip1;
  tabs_->setGeometry(ToPixels(strip.Left) + 2, ToPixels(strip.Top), ToPixels(strip.Width) - 4, kTabHeight);
  update();
}

/// Over the edges of both panes.
void EditorView::PlaceSplitter() {
  const Pane& right = editor_.MacroText;
  splitter_->setVisible(editor_.mnuViewTileVertically.Checked);
  splitter_->setGeometry(ToPixels(right.Left) - SplitterView::kWidth / 2 - 1, ToPixels(right.Top),
                         SplitterView::kWidth, ToPixels(right.Height));
  splitter_->raise();
}

void EditorView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  editor_.ScaleWidth = static_cast<float>(width());
  editor_.ScaleHeight = static_cast<float>(height());
  editor_.Resize();
}

void EditorView::paintEvent(QPaintEvent*) {
  const TabStrip& strip = editor_.TabStrip1;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(ToPixels(strip.Left) + 2, ToPixels(strip.Top) + kTabHeight - 1, ToPixels(strip.Width) - 5,
                   ToPixels(strip.Height) - kTabHeight);
}

/// The view is ended later, since one of its menu entries may still run.
void EditorView::Retire() {
  hide();
  bindings_.Release();
  deleteLater();
}

void EditorView::CloseByUser() { static_cast<MumWindow*>(window())->CloseChildByUser(); }

}  // namespace tarvik::screen
