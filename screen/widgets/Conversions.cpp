#include "screen/widgets/Conversions.h"

#include <algorithm>
#include <array>

#include "text/CodePage.h"

namespace tarvik::screen {
namespace {

constexpr char16_t kControlPictures = 0x2400;
constexpr char16_t kDeletePicture = 0x2421;
constexpr char kDelete = 0x7F;

char16_t Shown(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  if (byte == kDelete) return kDeletePicture;
  if (value < 0x20 && byte != '\t') return static_cast<char16_t>(kControlPictures + value);
  return static_cast<char16_t>(ToUnicode(byte));
}

const std::array<char16_t, 256>& ShownBytes() {
  static const auto table = [] {
    std::array<char16_t, 256> shown{};
    for (std::size_t i = 0; i < shown.size(); ++i) shown[i] = Shown(static_cast<char>(i));
    return shown;
  }();
  return table;
}

bool IsLineEnd(QChar character) {
  return character == u'\n' || character == QChar::ParagraphSeparator || character == QChar::LineSeparator;
}

/// No character below U+0300 changes.
QString ComposedText(QStringView text) {
  constexpr char16_t kFirstMark = 0x300;
  if (std::ranges::all_of(text, [](QChar c) { return c.unicode() < kFirstMark; })) return text.toString();
  return QString::fromStdString(Composed(text.toUtf8().toStdString()));
}

}  // namespace

QChar ToScreen(char byte) { return QChar(ShownBytes()[static_cast<unsigned char>(byte)]); }

char FromScreen(QChar character) {
  const char16_t code = character.unicode();
  if (code < 0x80) return static_cast<char>(code);
  if (code == kDeletePicture) return kDelete;
  if (code >= kControlPictures && code < kControlPictures + 0x20) {
    return static_cast<char>(code - kControlPictures);
  }
  return FromUnicode(code);
}

QString ToScreen(std::string_view text) {
  QString shown(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* out = shown.data();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool lineEnd = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    *out++ = lineEnd ? QChar(u'\n') : ToScreen(text[i]);
    if (lineEnd) ++i;
  }
  shown.truncate(out - shown.constData());
  return shown;
}

Converted ConvertedFromScreen(QStringView text) {
  const QString composed = ComposedText(text);
  Converted written;
  written.text.reserve(static_cast<std::size_t>(composed.size()));
  for (qsizetype i = 0; i < composed.size(); ++i) {
    const QChar character = composed[i];
    if (IsLineEnd(character)) {
      written.text += "\r\n";
      continue;
    }
    const bool isPair =
        character.isHighSurrogate() && i + 1 < composed.size() && composed[i + 1].isLowSurrogate();
    if (isPair) ++i;
    written.text += FromScreen(character);
    if (written.text.back() == '?' && character != u'?') ++written.lost;
  }
  return written;
}

std::string FromScreen(QStringView text) { return ConvertedFromScreen(text).text; }

QString AsText(std::string_view text) {
  QString shown = ToScreen(text);
  for (QChar& character : shown) {
    const char16_t code = character.unicode();
    if (code == kDeletePicture || (code >= kControlPictures && code < kControlPictures + 0x20)) {
      character = QLatin1Char(FromScreen(character));
    }
  }
  return shown;
}

Converted ConvertedFromText(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  return ConvertedFromScreen(text);
}

std::string FromText(const QString& text) { return ConvertedFromText(text).text; }

QString AsWritten(QStringView text) { return ToScreen(FromText(text.toString())); }

qreal ToScreenSize(float points) {
  constexpr qreal kOfNoSize = 10;
  return points < 1 ? kOfNoSize : std::min<qreal>(static_cast<qreal>(points), kLargestLetters);
}

QColor ToScreenColour(Colour colour) {
  return QColor::fromRgb(qRgb(static_cast<int>(RedOf(colour)), static_cast<int>(GreenOf(colour)),
                              static_cast<int>(BlueOf(colour))));
}

Colour FromScreenColour(const QColor& colour) {
  const auto part = [](int value) { return static_cast<unsigned>(value); };
  return Rgb(part(colour.red()), part(colour.green()), part(colour.blue()));
}

}  // namespace tarvik::screen
