// The choice of a text colour on screen: a small window under the toolbar's swatch.
#pragma once

#include <QFrame>

#include "app/ColourSelector.h"
#include "screen/FormView.h"

namespace tarvik::screen {

class ColourSelectorView : public QFrame, public FormView {
 public:
  /// `swatch` is where it opens.
  ColourSelectorView(ColourSelector& selector, QWidget& swatch);

  void CloseByUser() override { close(); }

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QPoint PlaceToOpen() const;

  ColourSelector& selector_;
  QWidget& swatch_;
};

}  // namespace tarvik::screen
