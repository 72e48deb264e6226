// What the editor paints beside the text of its panes.
#include <gmock/gmock.h>

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

#include "screen/EditorPane.h"
#include "screen/ProgramOnScreen.h"
#include "text/Contrast.h"

namespace tarvik::screen {
namespace {

constexpr const char* kFile =
    "BTN S1 Fire\r\nBTN S2 /I Gear /O Flaps\r\nRem Fire\r\nBTN TG1 RAW (#1C #2D)\r\nBTN S3 fire\r\n";

class EditorPaneTest : public testing::Test, public ProgramOnScreen {
 protected:
  EditorPaneTest() {
    files().Put("c:\\my\\a.b50", kFile);
    application.workbench.files.OpenWithoutDialog("c:\\my\\a.b50");
    application.editor().OpenPreviouslySavedFiles("c:\\my\\a.b50");
    view.setFocus();
    QApplication::setActiveWindow(view.window());
    QApplication::processEvents();
  }

  /// The place of a character in the whole widget.
  [[nodiscard]] QPoint PlaceOf(std::size_t position) const {
    return view.viewport()->mapTo(&view, view.CaretAt(position).center());
  }
  [[nodiscard]] std::size_t Find(std::string_view text) const { return pane.Characters().find(text); }
  [[nodiscard]] QColor ColourAt(const QPoint& place) const { return view.grab().toImage().pixelColor(place); }
  /// Behind the end of a line, where nothing is but the background.
  [[nodiscard]] QColor ColourBehindLine(std::size_t position) const {
    return ColourAt({view.width() - 60, PlaceOf(position).y()});
  }
  /// At the top of a character, between whose letters and their frame nothing else is.
  [[nodiscard]] QColor ColourAbove(std::string_view text) const {
    const QRect caret = view.CaretAt(Find(text) + 1);
    return ColourAt(view.viewport()->mapTo(&view, QPoint(caret.center().x(), caret.top() + 1)));
  }
  [[nodiscard]] QColor Background() const { return view.palette().color(QPalette::Base); }
  /// Whether a bar of a changed line stands in the margin at the line of the position.
  [[nodiscard]] bool HasBar(std::size_t position) const {
    return ColourAt({view.viewport()->x() - 2, PlaceOf(position).y()}).saturation() > 200;
  }
  void Press(QEvent::Type type, const QPoint& place) {
    QWidget& margin = *view.childAt(place);
    const QPointF local = margin.mapFrom(&view, place);
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, local, margin.mapToGlobal(local), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&margin, &event);
  }
  void Wheel(Qt::KeyboardModifiers keys, int turned) {
    const QPointF place(20, 20);
    QWheelEvent wheel(place, view.viewport()->mapToGlobal(place), {}, {0, turned}, Qt::NoButton, keys,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
  }

  Settings& settings = application.workbench.settings;
  Pane& pane = application.workbench.documents.joystickText;
  EditorPane& view = ProgramOnScreen::Find<EditorPane>(pane);
};

TEST_F(EditorPaneTest, NumbersTakeRoomBesideTheTextWhileTheyAreOn) {
  const int with = view.viewport()->x();
  settings.LineNumbers = 0;
  EXPECT_LT(view.viewport()->x(), with);
  settings.LineNumbers = 1;
  EXPECT_EQ(view.viewport()->x(), with);
}

TEST_F(EditorPaneTest, NumbersHaveRoomInALongFileAndALargeFont) {
  const int narrow = view.viewport()->x();
  pane.SetContent(RichText(WithPaneLineBreaks(std::string(20'000, '\n'))));
  const int wide = view.viewport()->x();
  EXPECT_GT(wide, narrow);
  settings.Zoom = 200;
  EXPECT_GT(view.viewport()->x(), wide);
}

TEST_F(EditorPaneTest, AClickOnANumberSelectsTheLineAndDraggingSeveral) {
  const QPoint second(4, PlaceOf(Find("BTN S2")).y());
  Press(QEvent::MouseButtonPress, second);
  EXPECT_EQ(pane.SelText.Get(), "BTN S2 /I Gear /O Flaps\r\n");
  Press(QEvent::MouseMove, {4, PlaceOf(Find("Rem")).y()});
  EXPECT_EQ(pane.SelText.Get(), "BTN S2 /I Gear /O Flaps\r\nRem Fire\r\n");
  Press(QEvent::MouseMove, {4, PlaceOf(0).y()});
  EXPECT_EQ(pane.SelText.Get(), "BTN S1 Fire\r\nBTN S2 /I Gear /O Flaps\r\n");
  Press(QEvent::MouseButtonRelease, {4, PlaceOf(0).y()});
  EXPECT_EQ(application.workbench.documents.joystick.SelLength, pane.SelLength.Get());
}

/// The caret stands in the line, and the view stays also at its lower edge.
TEST_F(EditorPaneTest, AClickOnTheLowestNumberScrollsNothing) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += "line " + TextOf(i) + "\r\n";
  pane.SetContent(RichText(text));
  QApplication::processEvents();
  view.verticalScrollBar()->setValue(20);
  const int lowest = view.viewport()->height() / view.cursorRect().height() - 1 + 20;
  const QPoint place(4, PlaceOf(Find("line " + TextOf(lowest) + "\r")).y());
  Press(QEvent::MouseButtonPress, place);
  Press(QEvent::MouseButtonRelease, place);
  QApplication::processEvents();
  EXPECT_EQ(pane.SelText.Get(), "line " + TextOf(lowest) + "\r\n");
  EXPECT_EQ(view.verticalScrollBar()->value(), 20);
  EXPECT_EQ(view.textCursor().blockNumber(), lowest);
}

TEST_F(EditorPaneTest, TheLineOfTheCaretIsTintedWhereTheFocusIs) {
  pane.SelStart = Find("BTN S2");
  EXPECT_NE(ColourBehindLine(Find("BTN S2")), Background());
  EXPECT_EQ(ColourBehindLine(Find("Rem")), Background());
  settings.CurrentLine = 0;
  EXPECT_EQ(ColourBehindLine(Find("BTN S2")), Background());
  settings.CurrentLine = 1;
  view.clearFocus();
  EXPECT_EQ(ColourBehindLine(Find("BTN S2")), Background());
}

TEST_F(EditorPaneTest, OtherPlacesOfTheWordAreMarkedInBothFiles) {
  Pane& macros = application.workbench.documents.macroText;
  macros.SetContent(RichText("Fire = SPC\r\n"));
  settings.CurrentLine = 0;
  pane.SelStart = Find("Fire") + 2;
  EXPECT_EQ(ColourAbove("Fire"), Background());  // the word itself
  EXPECT_NE(ColourAbove("fire"), Background());
  EXPECT_EQ(ColourAbove("Flaps"), Background());
  application.editor().mnuViewTileVertically_Click();
  QApplication::processEvents();
  const auto& other = ProgramOnScreen::Find<EditorPane>(macros);
  const QRect caret = other.CaretAt(1);
  const QPoint place = other.viewport()->mapTo(&other, QPoint(caret.center().x(), caret.top() + 1));
  view.setFocus();
  pane.SelStart = Find("Fire") + 1;
  EXPECT_NE(const_cast<EditorPane&>(other).grab().toImage().pixelColor(place), Background());
  settings.OtherPlaces = 0;
  EXPECT_EQ(ColourAbove("fire"), Background());
}

TEST_F(EditorPaneTest, ARemarkIsNoWordThatIsLookedFor) {
  pane.SelText = std::string("Rem a\r\nRem b\r\n");
  settings.CurrentLine = 0;
  pane.SelStart = 1;
  EXPECT_EQ(ColourAbove("Rem b"), Background());
}

TEST_F(EditorPaneTest, BracketsThatBelongTogetherAreFramedTheWordOfRawIncluded) {
  settings.CurrentLine = 0;
  pane.SelStart = Find("#1C");
  EXPECT_NE(ColourAbove("RAW"), Background());
  EXPECT_NE(ColourAbove("AW ("), Background());
  EXPECT_EQ(ColourAbove("#2D"), Background());
  settings.MatchingBrackets = 0;
  EXPECT_EQ(ColourAbove("AW ("), Background());
}

TEST_F(EditorPaneTest, AChangedLineHasABarUntilItIsSaved) {
  EXPECT_FALSE(HasBar(0));
  pane.SelStart = 0;
  pane.SelText = std::string("x");
  EXPECT_TRUE(HasBar(0));
  EXPECT_FALSE(HasBar(Find("Rem")));
  settings.ChangedLines = 0;
  EXPECT_FALSE(HasBar(0));
  settings.ChangedLines = 1;
  application.editor().mnuFileSave_Click();
  EXPECT_FALSE(HasBar(0));
}

TEST_F(EditorPaneTest, AChangedLineThatIsUndoneHasNone) {
  pane.SelStart = 0;
  QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&view, &key);
  ASSERT_TRUE(HasBar(0));
  application.editor().mnuEditUndo_Click();
  EXPECT_FALSE(HasBar(0));
}

TEST_F(EditorPaneTest, ZoomEnlargesWhatIsShownAndNotTheFontOfTheText) {
  const qreal size = view.font().pointSizeF();
  const float own = pane.SelFontSize;
  const qreal tab = view.tabStopDistance();
  settings.Zoom = 150;
  EXPECT_DOUBLE_EQ(view.font().pointSizeF(), size * 1.5);
  EXPECT_DOUBLE_EQ(view.tabStopDistance(), tab * 1.5);
  EXPECT_EQ(pane.SelFontSize, own);
  settings.Zoom = -7;
  EXPECT_DOUBLE_EQ(view.font().pointSizeF(), size * 0.5);
}

TEST_F(EditorPaneTest, TheWheelWithCtrlZoomsByWholeSteps) {
  Wheel(Qt::ControlModifier, 120);
  EXPECT_EQ(settings.Zoom, 110);
  for (int i = 0; i < 4; ++i) Wheel(Qt::ControlModifier, -60);
  EXPECT_EQ(settings.Zoom, 90);
  Wheel(Qt::NoModifier, 120);
  EXPECT_EQ(settings.Zoom, 90);
}

TEST_F(EditorPaneTest, FixedPitchIsForTheEyesAlone) {
  const std::string name = pane.SelFontName;
  settings.FixedPitch = 1;
  const QFontMetricsF letters(view.font());
  EXPECT_DOUBLE_EQ(letters.horizontalAdvance(u'i'), letters.horizontalAdvance(u'W'));
  EXPECT_EQ(pane.SelFontName.Get(), name);
  EXPECT_DOUBLE_EQ(view.tabStopDistance(), 8 * QFontMetricsF(view.font()).horizontalAdvance(u' '));
}

TEST_F(EditorPaneTest, BlackCanBeReadOnADarkBackgroundAndStaysBlackInTheText) {
  EXPECT_EQ(view.InkOf(kBlack), QColor(Qt::black));
  pane.BackColor = Rgb(20, 20, 30);
  EXPECT_GT(view.InkOf(kBlack).lightness(), 200);
  EXPECT_EQ(pane.Content().colours.At(Find("Fire")), kBlack);
  bool light = false;
  const QImage seen = view.grab().toImage();
  const QRect letter = view.CaretAt(Find("Fire")).adjusted(0, 0, 8, 0).translated(view.viewport()->pos());
  for (int x = letter.left(); x < letter.right(); ++x) {
    for (int y = letter.top(); y < letter.bottom(); ++y) light |= seen.pixelColor(x, y).lightness() > 150;
  }
  EXPECT_TRUE(light);
}

TEST_F(EditorPaneTest, ColoursAsOneTypesLookLikeThoseOfTheColouredTextAndAreNotInIt) {
  const ColourRuns black(pane.Characters().size(), kBlack);
  const auto shown = [this] { return view.grab().toImage(); };
  const QImage coloured = shown();
  const ColourRuns colours = pane.Content().colours;
  pane.Recolour(0, black);
  EXPECT_NE(shown(), coloured);
  settings.ColourAsYouType = 1;
  EXPECT_EQ(shown(), coloured);
  EXPECT_EQ(pane.Content().colours, black);
  const Colour ofUser = Rgb(255, 0, 255);
  pane.Recolour(Find("Gear"), ColourRuns(4, ofUser));
  const QImage withOwn = shown();
  EXPECT_NE(withOwn, coloured);
  pane.Recolour(0, colours);
  pane.Recolour(Find("Gear"), ColourRuns(4, ofUser));
  EXPECT_EQ(shown(), withOwn);
}

TEST_F(EditorPaneTest, WhatIsTypedBeforeColouredTextIsShownAsColouringWillHaveIt) {
  application.workbench.highlighter.Apply(application.workbench.documents.joystick);
  settings.ColourAsYouType = 1;
  settings.CurrentLine = 0;
  pane.SelStart = Find("BTN");
  QTest::keyClicks(&view, "USE TQS");
  pane.ReplaceSelection(RichText("\r\n"));
  application.workbench.liveColours.Renew();
  pane.SelStart = 0;
  const QImage typed = view.grab().toImage();
  application.workbench.highlighter.Apply(application.workbench.documents.joystick);
  pane.SelStart = 0;
  EXPECT_EQ(view.grab().toImage(), typed);
  EXPECT_EQ(pane.Content().colours.At(Find("USE")), settings.MiscellaneousColour.Get());
}

TEST_F(EditorPaneTest, ColoursAsOneTypesComeWithTheKey) {
  pane.Recolour(0, ColourRuns(pane.Characters().size(), kBlack));
  settings.ColourAsYouType = 1;
  pane.Select({Find("fire"), 0});
  QTest::keyClicks(&view, "Rem ");
  settings.CurrentLine = 0;
  const QImage typed = view.grab().toImage();
  pane.Recolour(Find("Rem fire"), ColourRuns(8, settings.RemStatements));
  EXPECT_EQ(view.grab().toImage(), typed);
}

TEST_F(EditorPaneTest, NothingThatIsPaintedIsInTheText) {
  const std::string before = pane.TextRTF;
  for (Property<int>* const option : {&settings.LineNumbers, &settings.CurrentLine, &settings.OtherPlaces,
                                      &settings.MatchingBrackets, &settings.ChangedLines}) {
    *option = 0;
  }
  settings.FixedPitch = 1;
  settings.Zoom = 200;
  EXPECT_EQ(pane.TextRTF.Get(), before);
}

TEST_F(EditorPaneTest, WhatIsOnShowStaysWhenLinesComeOrGoAboveIt) {
  std::string text;
  for (int i = 0; i < 500; ++i) text += "line " + TextOf(i) + "\r\n";
  pane.SetContent(RichText(text));
  QApplication::processEvents();
  pane.SelStart = text.find("line 220");
  QApplication::processEvents();
  view.verticalScrollBar()->setValue(200);
  const int before = view.cursorRect().top();
  pane.ApplyEdit({0, {}, RichText("new\r\nnew\r\nnew\r\n")});
  pane.SelStart = pane.Characters().find("line 220");
  QApplication::processEvents();
  EXPECT_EQ(view.cursorRect().top(), before);
}

class TiledTest : public EditorPaneTest {
 protected:
  TiledTest() {
    application.editor().mnuViewTileVertically_Click();
    QApplication::processEvents();
  }

  /// A part of a widget, by what it is called when it is read out; null where it is not to be seen.
  static QWidget* PartOf(const QWidget& whole, const char* name) {
    for (QWidget* const part : whole.findChildren<QWidget*>()) {
      if (part->isVisible() && part->accessibleName() == QLatin1String(name)) return part;
    }
    return nullptr;
  }
  static QColor LineOf(QWidget& head) {
    return head.grab().toImage().pixelColor(head.width() / 2, head.height() - 1);
  }

  EditorPane& other = ProgramOnScreen::Find<EditorPane>(application.workbench.documents.macroText);
};

TEST_F(TiledTest, AHeadNamesEachFileAndMarksWhatIsNotSaved) {
  EXPECT_TRUE(PartOf(view, "a.b50"));
  EXPECT_TRUE(PartOf(other, "untitled.m50"));
  QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
  QApplication::sendEvent(&view, &key);
  EXPECT_TRUE(PartOf(view, "a.b50*"));
  application.editor().mnuViewTileVertically_Click();
  EXPECT_FALSE(PartOf(view, "a.b50*"));
}

TEST_F(TiledTest, TheHeadOfTheFileOnTopHasALineAndAClickOnTheOtherPutsThatThere) {
  QWidget& head = *PartOf(view, "a.b50");
  QWidget& otherHead = *PartOf(other, "untitled.m50");
  const QColor highlight = view.palette().color(QPalette::Active, QPalette::Highlight);
  EXPECT_EQ(LineOf(head), highlight);
  EXPECT_NE(LineOf(otherHead), highlight);
  QTest::mouseClick(&otherHead, Qt::LeftButton);
  EXPECT_EQ(application.editor().TabStrip1.SelectedIndex(), 2);
  EXPECT_EQ(LineOf(otherHead), highlight);
  EXPECT_NE(LineOf(head), highlight);
}

TEST_F(TiledTest, TheNumbersStandBesideTheirLinesBelowTheHead) {
  Press(QEvent::MouseButtonPress, {4, PlaceOf(Find("BTN S2")).y()});
  EXPECT_EQ(pane.SelText.Get(), "BTN S2 /I Gear /O Flaps\r\n");
}

TEST_F(TiledTest, TheEdgeBetweenThemCanBeDragged) {
  QWidget& edge = *PartOf(*view.parentWidget(), "Edge between the files");
  const int before = view.width();
  const QPointF place(-80, 10);
  QMouseEvent move(QEvent::MouseMove, place, edge.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&edge, &move);
  EXPECT_NEAR(view.width(), before - 80, 5);
  EXPECT_LE(view.geometry().right(), edge.geometry().right());
  QTest::mouseDClick(&edge, Qt::LeftButton);
  EXPECT_NEAR(view.width(), before, 1);
}

TEST_F(TiledTest, TheEdgeBetweenThemCanBeMovedByKeys) {
  QWidget& edge = *PartOf(*view.parentWidget(), "Edge between the files");
  const int before = view.width();
  QTest::keyClick(&edge, Qt::Key_Left);
  EXPECT_NEAR(view.width(), before - 16, 1);
  QTest::keyClick(&edge, Qt::Key_Right);
  QTest::keyClick(&edge, Qt::Key_Right);
  EXPECT_NEAR(view.width(), before + 16, 2);
  QTest::keyClick(&edge, Qt::Key_Home);
  EXPECT_NEAR(view.width(), before, 1);
  EXPECT_EQ(settings.TileShare, 500);
}

}  // namespace
}  // namespace tarvik::screen
