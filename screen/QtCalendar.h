// Today's date in the form that the desktop's regional settings give it.
#pragma once

#include <QDate>
#include <QLocale>

#include "platform/Platform.h"
#include "screen/Text.h"

namespace tarvik::screen {

class QtCalendar : public Calendar {
 public:
  [[nodiscard]] std::string ShortDate() const override { return Today(QLocale::ShortFormat); }
  [[nodiscard]] std::string LongDate() const override { return Today(QLocale::LongFormat); }

 private:
  static std::string Today(QLocale::FormatType format) {
    return FromScreen(QLocale::system().toString(QDate::currentDate(), format));
  }
};

}  // namespace tarvik::screen
