// How a failing expectation shows the toolkit's values.
#pragma once

#include <QColor>
#include <QDebug>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <ostream>

/// The toolkit's own words for a value.
template <class T>
void PrintInWords(const T& value, std::ostream* out) {
  QString words;
  QDebug(&words).nospace() << value;
  *out << words.toStdString();
}

inline void PrintTo(const QString& text, std::ostream* out) { PrintInWords(text, out); }
inline void PrintTo(const QStringList& texts, std::ostream* out) { PrintInWords(texts, out); }
inline void PrintTo(const QByteArray& bytes, std::ostream* out) { PrintInWords(bytes, out); }
inline void PrintTo(const QSize& size, std::ostream* out) { PrintInWords(size, out); }
inline void PrintTo(const QColor& colour, std::ostream* out) { PrintInWords(colour, out); }
inline void PrintTo(const QImage& image, std::ostream* out) { PrintInWords(image, out); }
inline void PrintTo(const QVariant& value, std::ostream* out) { PrintInWords(value, out); }
