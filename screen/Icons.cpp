#include "screen/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include "screen/Text.h"

// A static library's resources are linked only when they are asked for, from outside any namespace.
static void InitialiseIcons() { Q_INIT_RESOURCE(icons); }

namespace tarvik::screen {
namespace {

constexpr const char* kInk = "#232629";  // what own drawings have for "text colour"
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

}  // namespace

void ChooseIconTheme() {
  const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
  if (QIcon::themeName() != QLatin1String("hicolor")) QIcon::setFallbackThemeName(QIcon::themeName());
  QIcon::setThemeName(QLatin1String(dark ? "breeze-dark" : "breeze"));
}

QIcon Icon(std::string_view name, const QColor& ink) {
  InitialiseIcons();
  const QString file = ToScreen(name);
  QFile own(QLatin1String(":/icons/") + file + QLatin1String(".svg"));
  if (!own.open(QIODevice::ReadOnly)) return QIcon::fromTheme(file);
  const QColor colour = ink.isValid() ? ink : QGuiApplication::palette().color(QPalette::WindowText);
  return Rendered(own.readAll().replace(kInk, colour.name().toLatin1()));
}

}  // namespace tarvik::screen
