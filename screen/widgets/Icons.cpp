#include "screen/widgets/Icons.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QSvgRenderer>

#include "screen/widgets/Conversions.h"

// A static library's resources are linked only when they are asked for, from outside any namespace.
static void InitialiseIcons() { Q_INIT_RESOURCE(icons); }

namespace tarvik::screen {
namespace {

constexpr const char* kInk = "#232629";  // what own drawings have for "text colour"
constexpr qreal kFaded = 0.35;
constexpr int kSizes[] = {16, 22, 32, 44, 48, 64, 128, 256};

QIcon Rendered(const QByteArray& svg) {
  QSvgRenderer renderer(svg);
  QIcon icon;
  for (const int size : kSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

class FadingStyle : public QProxyStyle {
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
};

}  // namespace

void ChooseIconTheme() {
  QApplication::setStyle(new FadingStyle(QApplication::style()->name()));
  const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
  if (QIcon::themeName() != QLatin1String("hicolor")) QIcon::setFallbackThemeName(QIcon::themeName());
  QIcon::setThemeName(QLatin1String(dark ? "breeze-dark" : "breeze"));
}

QIcon Icon(std::string_view name, const QColor& ink) {
  InitialiseIcons();
  const QString file = ToScreen(name);
  QFile own(QLatin1String(":/icons/") + file + QLatin1String(".svg"));
  if (!own.open(QIODevice::ReadOnly)) return QIcon::fromTheme(file);
  const QColor colour = ink.isValid() ? ink : QApplication::palette().color(QPalette::WindowText);
  return Rendered(own.readAll().replace(kInk, colour.name().toLatin1()));
}

}  // namespace tarvik::screen
