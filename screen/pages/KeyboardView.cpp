#include "screen/pages/KeyboardView.h"

#include <QKeyEvent>
#include <QPainter>
#include <limits>

#include "screen/pages/FormLayout.h"
#include "screen/pages/KeyFaces.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/Keys.h"

namespace tarvik::screen {
namespace {

// Pixels to the twip.
constexpr double kUsualScale = 1 / 12.5;
constexpr double kSmallestScale = 1 / 15.0;

struct SpokenKey {
  int key;
  const char* name;
};

// The names of keys whose face is short, or is found on two of them.
constexpr SpokenKey kSpokenKeys[] = {
    {58, "Left Shift"},   {59, "Right Shift"},   {60, "Left Control"}, {61, "Right Control"},
    {62, "Left Alt"},     {63, "Right Alt"},     {65, "Keypad Enter"}, {66, "Keypad point"},
    {67, "Keypad plus"},  {68, "Keypad minus"},  {69, "Keypad times"}, {70, "Keypad divide"},
    {83, "Escape"},       {84, "Insert"},        {86, "Page up"},      {87, "Delete"},
    {89, "Page down"},    {91, "Caps Lock"},     {93, "Num Lock"},     {94, "Up arrow"},
    {95, "Down arrow"},   {96, "Left arrow"},    {97, "Right arrow"},  {98, "Scroll Lock"},
    {99, "Pause, Break"}, {100, "Print Screen"}, {101, "Backspace"},
};
constexpr int kFirstKeypadDigit = 10;
constexpr int kLastKeypadDigit = 19;

struct SpokenSign {
  char sign;
  const char* name;
};

constexpr SpokenSign kSpokenSigns[] = {
    {'!', "Exclamation mark"},
    {'@', "At sign"},
    {'#', "Hash"},
    {'$', "Dollar"},
    {'%', "Percent"},
    {'^', "Caret"},
    {'&', "Ampersand"},
    {'*', "Asterisk"},
    {'(', "Left bracket"},
    {')', "Right bracket"},
    {'`', "Grave accent"},
    {'~', "Tilde"},
    {'-', "Minus"},
    {'_', "Underscore"},
    {'=', "Equals"},
    {'+', "Plus"},
    {'\\', "Backslash"},
    {'|', "Vertical bar"},
    {'[', "Left square bracket"},
    {']', "Right square bracket"},
    {'{', "Left brace"},
    {'}', "Right brace"},
    {';', "Semicolon"},
    {':', "Colon"},
    {'\'', "Apostrophe"},
    {'"', "Quotation mark"},
    {',', "Comma"},
    {'<', "Less than"},
    {'.', "Point"},
    {'>', "Greater than"},
    {'/', "Slash"},
    {'?', "Question mark"},
};

QString Spoken(int key, const QString& face) {
  for (const SpokenKey& spoken : kSpokenKeys) {
    if (spoken.key == key) return QString::fromLatin1(spoken.name);
  }
  if (key >= kFirstKeypadDigit && key <= kLastKeypadDigit) return QStringLiteral("Keypad ") + face;
  for (const SpokenSign& spoken : kSpokenSigns) {
    if (face.startsWith(QLatin1Char(spoken.sign))) return QString::fromLatin1(spoken.name);
  }
  return face;
}

}  // namespace

// One key.

KeyCap::KeyCap(const KeyRow& row, KeyboardView& keyboard)
    : QAbstractButton(&keyboard), row_(row), keyboard_(keyboard) {
  setFocusPolicy(Qt::ClickFocus);
  setProperty(kNoMnemonic, true);
}

void KeyCap::SayFace() { setAccessibleName(Spoken(row_.key, text())); }

/// A key that cannot be pressed is held by its toggle.
QColor KeyCap::FaceColour() const {
  if (!isEnabled()) return kHeldKey;
  const QColor face = palette().color(QPalette::Button);
  if (isDown()) return Mixed(face, palette().color(QPalette::Highlight), 0.45);
  return underMouse() ? Mixed(face, palette().color(QPalette::Highlight), 0.15) : face;
}

void KeyCap::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink = isEnabled() ? palette().color(QPalette::ButtonText) : QColor(Qt::black);
  PaintKey(painter, QRectF(rect()), keyboard_.Scale(), text(),
           {palette(), font(), FaceColour(), ink, isDown() || !isEnabled(), hasFocus()});
}

void KeyCap::keyPressEvent(QKeyEvent* event) {
  const QPoint direction = WayOf(event->key());
  if (!direction.isNull()) {
    keyboard_.Go(*this, direction);
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void KeyCap::focusInEvent(QFocusEvent* event) {
  keyboard_.MakeStop(*this);
  QAbstractButton::focusInEvent(event);
}

void KeyCap::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled() && focusPolicy() == Qt::StrongFocus) {
    keyboard_.LeaveStop();
  }
}

void KeyCap::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void KeyCap::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

// The keyboard.

KeyboardView::KeyboardView(RAWform& form, Bindings& bindings) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  for (const KeyRow& row : kKeys) {
    auto* const cap = new KeyCap(row, *this);
    caps_.push_back(cap);
    bindings.Bind(form.Command1(row.key), *cap);
    bindings.Bind(form.Command1(row.key).Caption, [cap] { cap->SayFace(); });
  }
  LeaveStop();
}

double KeyboardView::Scale() const { return KeyScaleIn(size()); }

QSize KeyboardView::sizeHint() const { return KeyboardExtent() * kUsualScale; }
QSize KeyboardView::minimumSizeHint() const { return KeyboardExtent() * kSmallestScale; }

void KeyboardView::resizeEvent(QResizeEvent*) {
  const double scale = Scale();
  const double left = (width() - KeyboardExtent().width() * scale) / 2;
  const double top = (height() - KeyboardExtent().height() * scale) / 2;
  for (KeyCap* const cap : caps_) {
    const Place& place = cap->row().place;
    cap->setGeometry(
        QRectF(left + place.left * scale, top + place.top * scale, place.width * scale, place.height * scale)
            .toRect());
  }
}

void KeyboardView::MakeStop(KeyCap& cap) {
  if (stop_) stop_->setFocusPolicy(Qt::ClickFocus);
  stop_ = &cap;
  cap.setFocusPolicy(Qt::StrongFocus);
}

void KeyboardView::LeaveStop() {
  const auto first =
      std::find_if(caps_.begin(), caps_.end(), [](const KeyCap* cap) { return cap->isEnabled(); });
  if (first != caps_.end()) MakeStop(**first);
}

/// The nearest key whose middle lies that way. The distance aside counts more than the distance ahead.
void KeyboardView::Go(const KeyCap& from, QPoint direction) {
  constexpr int kAside = 3;
  KeyCap* nearest = nullptr;
  int least = std::numeric_limits<int>::max();
  for (KeyCap* const cap : caps_) {
    const QPoint way = cap->geometry().center() - from.geometry().center();
    const int ahead = QPoint::dotProduct(way, direction);
    if (!cap->isEnabled() || ahead <= 0) continue;
    const int aside = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
    if (aside > ahead || ahead + aside * kAside >= least) continue;
    least = ahead + aside * kAside;
    nearest = cap;
  }
  if (nearest) nearest->setFocus(Qt::TabFocusReason);
}

}  // namespace tarvik::screen
