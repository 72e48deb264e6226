// Text on its way between the program's code page and the screen. Every view and dialog uses it, and the
// panes rely on every byte having one character of its own.
#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "text/CodePage.h"
#include "text/RichText.h"

namespace tarvik::screen {

/// The character that stands for a byte on screen: that of the code page, and the control picture of its
/// number for a control character other than the tab. No two bytes share one.
[[nodiscard]] QChar ToScreen(char byte);
[[nodiscard]] char FromScreen(QChar character);

/// CR LF becomes one line feed.
[[nodiscard]] QString ToScreen(std::string_view text);
/// Letters and their accents are composed; line and paragraph ends become CR LF; each character that the code
/// page lacks becomes one "?".
[[nodiscard]] Converted ConvertedFromScreen(QStringView text);
[[nodiscard]] std::string FromScreen(QStringView text);
/// Text for other programs and from them: with the characters themselves, control characters too, and line
/// feeds.
[[nodiscard]] QString AsText(std::string_view text);
[[nodiscard]] Converted ConvertedFromText(QString text);
[[nodiscard]] std::string FromText(const QString& text);
/// The text as it would come back: without what the code page lacks.
[[nodiscard]] QString AsWritten(QStringView text);

/// The largest letters that are shown, in points: far beyond it painting stands still.
inline constexpr int kLargestLetters = 512;
/// A font size that letters can be shown and printed in, in points: the stored one may be any number.
[[nodiscard]] qreal ToScreenSize(float points);

[[nodiscard]] QColor ToScreenColour(Colour colour);
[[nodiscard]] Colour FromScreenColour(const QColor& colour);

}  // namespace tarvik::screen
