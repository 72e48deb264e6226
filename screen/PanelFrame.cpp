#include "screen/PanelFrame.h"

#include <QKeyEvent>

namespace tarvik::screen {

PanelFrame::PanelFrame(Frame& frame, Bindings& bindings, std::function<void()> escape, QWidget* parent)
    : QFrame(parent), escape_(std::move(escape)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  bindings.BindControl(frame, *this);
  bindings.Place(frame, *this, Unit::Pixel);
}

void PanelFrame::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return escape_();
  QFrame::keyPressEvent(event);
}

}  // namespace tarvik::screen
