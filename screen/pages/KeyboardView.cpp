#include "screen/pages/KeyboardView.h"

#include <QKeyEvent>
#include <QPainter>
#include <limits>

#include "screen/pages/FormLayout.h"
#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

constexpr double kUsualScale = 1 / 12.5;  // pixels to the twip
constexpr double kSmallestScale = 1 / 15.0;
constexpr int kFontHeight = 175;  // twips, as all below
constexpr int kSignHeight = 215;  // of a face with one character
constexpr int kGap = 14;          // around each cap
constexpr int kCorner = 50;
constexpr int kSide = 28;
constexpr int kFront = 70;  // more of the cap's side is seen below its face

constexpr QColor kHeld{0xFF, 0xC0, 0x80};

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

constexpr QSize Extent() {
  int width = 0;
  int height = 0;
  for (const KeyRow& row : kKeys) {
    width = std::max(width, row.place.left + row.place.width);
    height = std::max(height, row.place.top + row.place.height);
  }
  return {width, height};
}

QPoint Direction(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

QColor Mixed(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](float a, float b) { return static_cast<float>(a + (b - a) * part); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
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
  if (!isEnabled()) return kHeld;
  const QColor face = palette().color(QPalette::Button);
  if (isDown()) return Mixed(face, palette().color(QPalette::Highlight), 0.45);
  return underMouse() ? Mixed(face, palette().color(QPalette::Highlight), 0.15) : face;
}

void KeyCap::paintEvent(QPaintEvent*) {
  const double scale = keyboard_.Scale();
  const bool down = isDown() || !isEnabled();
  const QColor face = FaceColour();
  const QColor ink = isEnabled() ? palette().color(QPalette::ButtonText) : QColor(Qt::black);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);

  const double gap = kGap * scale;
  const QRectF cap = QRectF(rect()).adjusted(gap, gap, -gap, -gap);
  const bool focused = hasFocus();
  painter.setPen(focused ? QPen(palette().color(QPalette::Highlight), 2) : QPen(Mixed(face, ink, 0.45), 1));
  painter.setBrush(Mixed(face, Qt::black, 0.16));
  painter.drawRoundedRect(focused ? cap.adjusted(0.5, 0.5, -0.5, -0.5) : cap, kCorner * scale,
                          kCorner * scale);

  const double side = kSide * scale;
  const double above = down ? side * 2 : side;  // pressed, it sinks
  const QRectF top = cap.adjusted(side, above, -side, above - kFront * scale - side);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mixed(face, Qt::white, 0.12));
  painter.drawRoundedRect(top, kCorner * scale, kCorner * scale);

  QFont letters = font();
  letters.setPixelSize(
      static_cast<int>((text().size() > 1 && text()[0] != u'&' ? kFontHeight : kSignHeight) * scale));
  const int wide = QFontMetrics(letters).horizontalAdvance(text());
  if (wide > top.width()) letters.setStretch(static_cast<int>(100 * top.width() / wide));
  painter.setFont(letters);
  painter.setPen(ink);
  painter.drawText(top, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void KeyCap::keyPressEvent(QKeyEvent* event) {
  const QPoint direction = Direction(event->key());
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

double KeyboardView::Scale() const {
  const QSize extent = Extent();
  return std::min(static_cast<double>(width()) / extent.width(),
                  static_cast<double>(height()) / extent.height());
}

QSize KeyboardView::sizeHint() const { return Extent() * kUsualScale; }
QSize KeyboardView::minimumSizeHint() const { return Extent() * kSmallestScale; }

void KeyboardView::resizeEvent(QResizeEvent*) {
  const double scale = Scale();
  const double left = (width() - Extent().width() * scale) / 2;
  const double top = (height() - Extent().height() * scale) / 2;
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
