// The choice of the files' font: the families, sizes and weights that a pane can show, and nothing beyond.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QSpinBox>

#include "platform/Platform.h"

namespace tarvik::screen {

class FontDialog : public QDialog {
 public:
  /// Begins with `shown`, which may be a font that is not offered.
  FontDialog(const FontChoice& shown, bool fixedPitch, QWidget* parent);

  /// What stands in it now.
  [[nodiscard]] FontChoice Choice() const;

 private:
  void ListFamilies(bool fixedPitch);
  void LayOut();
  void ShowSample();

  FontChoice shown_;
  QListWidget* families_;
  QSpinBox* size_;
  QCheckBox* bold_;
  QLabel* sample_;
};

/// The font that is on screen for one that is set: its family may not be installed, its size none for
/// letters.
[[nodiscard]] FontChoice AsShown(const FontChoice& font);

}  // namespace tarvik::screen
