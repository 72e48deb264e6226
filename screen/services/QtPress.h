// Kneeboards as the screen paints them: to files, to the printer and to the clipboard.
#pragma once

#include <optional>

#include "kneeboard/Press.h"
#include "screen/kneeboard/Fonts.h"
#include "screen/kneeboard/SheetFiles.h"
#include "screen/services/QtPrinter.h"

namespace tarvik::screen {

class QtPress : public kneeboard::Press {
 public:
  explicit QtPress(QtPrinter& printer) : printer_(printer) {}

  [[nodiscard]] const kneeboard::TextMeasure& Measure() const override;
  [[nodiscard]] const kneeboard::DrawingPlans& Plans() const override { return drawings_; }
  Outcome<> Write(const kneeboard::Job& job, const std::string& hostPath) override;
  Outcome<> Print(const kneeboard::Job& job) override;
  void Copy(const kneeboard::Job& job, std::size_t sheet) override;

 private:
  [[nodiscard]] PaintedSheets Painted(const kneeboard::Job& job) const;

  QtPrinter& printer_;
  DeviceDrawings drawings_;
  mutable std::optional<FontMeasure> measure_;  // fonts are looked up when the first kneeboard is laid out
};

}  // namespace tarvik::screen
