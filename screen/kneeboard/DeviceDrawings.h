// The drawings of the devices for paper: always the light ones, without their own labels.
#pragma once

#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <memory>

#include "kneeboard/Layout.h"

namespace tarvik::screen {

class DeviceDrawings : public kneeboard::DrawingPlans {
 public:
  DeviceDrawings();

  [[nodiscard]] const kneeboard::DrawingPlan* Find(const std::string& drawing) const override;

  /// Paints it into that place.
  void Paint(QPainter& painter, const kneeboard::Drawing& drawing, const QRectF& place, bool isGrey) const;

 private:
  using Key = std::pair<QByteArray, bool>;
  [[nodiscard]] QSvgRenderer& RendererOf(const kneeboard::Drawing& drawing, bool isGrey) const;

  // What was read once is kept: a window paints the same drawings again and again.
  mutable std::map<std::string, std::unique_ptr<kneeboard::DrawingPlan>> plans_;
  mutable std::map<Key, std::unique_ptr<QSvgRenderer>> renderers_;
};

}  // namespace tarvik::screen
