#include "screen/widgets/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <map>
#include <tuple>
#include <utility>

#include "screen/widgets/Conversions.h"

// A static library's resources are linked only when they are asked for, from outside any namespace.
static void InitialiseIcons() { Q_INIT_RESOURCE(icons); }

namespace tarvik::screen {
namespace {

// What the drawings have for the palette's text colour, and for the one colour beside it.
constexpr const char* kInk = "#232629";
constexpr const char* kAccent = "#1a66c2";
constexpr QColor kAccentOnDark(0x6c, 0xb6, 0xff);
constexpr qreal kFaded = 0.35;

// An own drawing, which is rendered at the sizes that are asked for and at no other.
class Drawing : public QIconEngine {
 public:
  explicit Drawing(QByteArray svg) : svg_(std::move(svg)) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
    painter->drawPixmap(area, pixmap(area.size() * painter->device()->devicePixelRatioF(), mode, state));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    const auto [kept, isNew] = rendered_.try_emplace({size.width(), size.height(), mode});
    if (isNew) kept->second = Rendered(size, mode);
    return kept->second;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new Drawing(*this); }

 private:
  [[nodiscard]] QPixmap Rendered(const QSize& size, QIcon::Mode mode) const {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(svg_).render(&painter);
    painter.end();
    if (mode == QIcon::Normal) return pixmap;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
  }

  QByteArray svg_;
  std::map<std::tuple<int, int, QIcon::Mode>, QPixmap> rendered_;
};

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor AccentOn(const QPalette& palette) { return IsDark(palette) ? kAccentOnDark : QColor(kAccent); }

/// The desktop's, but for the pictures of what cannot be used, which fade, and for the rows of lists, which
/// are all of one height.
class OwnStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                              const QStyleOption* option) const override {
    if (mode != QIcon::Disabled) return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    QPixmap faded(pixmap.size());
    faded.setDevicePixelRatio(pixmap.devicePixelRatio());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(kFaded);
    painter.drawPixmap(0, 0, pixmap);
    return faded;
  }
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    constexpr int kRowAir = 5;
    QSize needed = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ItemViewItem)
      needed.setHeight(std::max(needed.height(), option->fontMetrics.height() + kRowAir));
    return needed;
  }
};

}  // namespace

void ChooseIconTheme() {
  QApplication::setStyle(new OwnStyle(QApplication::style()->name()));
  if (QIcon::themeName() != QLatin1String("hicolor")) QIcon::setFallbackThemeName(QIcon::themeName());
  QIcon::setThemeName(QLatin1String(IsDark(QApplication::palette()) ? "breeze-dark" : "breeze"));
}

QIcon Icon(std::string_view name, const QColor& ink) {
  InitialiseIcons();
  QFile drawing(QLatin1String(":/icons/") + ToScreen(name) + QLatin1String(".svg"));
  if (!drawing.open(QIODevice::ReadOnly)) return {};
  const QPalette palette = QApplication::palette();
  const QColor text = ink.isValid() ? ink : palette.color(QPalette::WindowText);
  const QColor accent = ink.isValid() ? ink : AccentOn(palette);
  return QIcon(new Drawing(
      drawing.readAll().replace(kInk, text.name().toLatin1()).replace(kAccent, accent.name().toLatin1())));
}

}  // namespace tarvik::screen
