#include "screen/widgets/Metafile.h"

#ifdef TARVIK_WMF
#include <libwmf/api.h>
#include <libwmf/svg.h>
#include <locale.h>

#include <QByteArray>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "text/CodePage.h"

namespace tarvik::screen {
namespace {

constexpr unsigned long kOptions =
    WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;

struct Destroy {
  void operator()(wmfAPI* api) const { wmf_api_destroy(api); }
};

/// While it lives the library writes its numbers as a drawing needs them, and not as the user's language has
/// them.
class PlainNumbers {
 public:
  PlainNumbers() : plain_(newlocale(LC_NUMERIC_MASK, "C", nullptr)), before_(uselocale(plain_)) {}
  ~PlainNumbers() {
    uselocale(before_);
    if (plain_) freelocale(plain_);
  }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  locale_t plain_;
  locale_t before_;
};

/// What is drawn, without the frame around it; its units are as long as they are high.
std::string Played(wmfAPI* api, wmfD_Rect& box, int side) {
  const QSizeF drawn(double{box.BR.x} - double{box.TL.x}, double{box.BR.y} - double{box.TL.y});
  if (drawn.isEmpty() || !std::isfinite(drawn.width() + drawn.height())) return {};
  const QSize size = drawn.scaled(side, side, Qt::KeepAspectRatio).toSize().expandedTo({1, 1});
  wmf_svg_t& svg = *WMF_SVG_GetData(api);
  svg.out = wmf_stream_create(api, nullptr);
  if (!svg.out) return {};
  svg.bbox = box;
  svg.width = static_cast<unsigned>(size.width());
  svg.height = static_cast<unsigned>(size.height());
  svg.flags |= WMF_SVG_INLINE_IMAGES;
  const bool whole = wmf_play(api, 0, &box) == wmf_E_None;
  char* text = nullptr;
  unsigned long length = 0;
  wmf_stream_destroy(api, svg.out, &text, &length);  // the text goes with `api`
  return whole && text ? std::string(text, length) : std::string();
}

std::string Drawn(std::string bytes, int side) {
  const PlainNumbers plain;
  wmfAPI* made = nullptr;
  wmfAPI_Options options{};
  options.function = wmf_svg_function;
  const bool ready = wmf_api_create(&made, kOptions, &options) == wmf_E_None;
  const std::unique_ptr<wmfAPI, Destroy> api(made);
  if (!ready) return {};
  auto* const begin = reinterpret_cast<unsigned char*>(bytes.data());
  wmfD_Rect box{};
  if (wmf_mem_open(api.get(), begin, static_cast<long>(bytes.size())) != wmf_E_None) return {};
  if (wmf_scan(api.get(), 0, &box) != wmf_E_None) return {};
  return Played(api.get(), box, side);
}

/// What the library writes is in the code page, names pictures by a prefix that it does not declare, and
/// places them twice.
QByteArray AsSvg(const std::string& drawn) {
  static const QRegularExpression twice(QStringLiteral("transform=\"[^\"]*\"(\\s*xlink:)"));
  return QString::fromStdString(ToUtf8(drawn))
      .replace(QStringLiteral("xmlns:sodipodi="),
               QStringLiteral("xmlns:xlink=\"http://www.w3.org/1999/xlink\" xmlns:sodipodi="))
      .replace(twice, QStringLiteral("\\1"))
      .toUtf8();
}

}  // namespace

QImage MetafileIn(std::string_view bytes, int side) {
  if (!bytes.starts_with("\xD7\xCD\xC6\x9A") && !bytes.starts_with(std::string_view("\x01\0\x09\0", 4)))
    return {};
  QSvgRenderer drawing(AsSvg(Drawn(std::string(bytes), side)));
  const QSize size = drawing.defaultSize();
  if (!drawing.isValid() || size.isEmpty() || std::max(size.width(), size.height()) > side) return {};
  drawing.setViewBox(QRect(QPoint(), size));
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  drawing.render(&painter);
  return picture;
}

}  // namespace tarvik::screen

#else

namespace tarvik::screen {

QImage MetafileIn(std::string_view /*bytes*/, int /*side*/) { return {}; }

}  // namespace tarvik::screen

#endif
