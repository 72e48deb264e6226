#include "screen/widgets/FileDrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QUrl>

namespace tarvik::screen {

std::vector<std::string> FilesIn(const QMimeData& data) {
  std::vector<std::string> files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(QFile::encodeName(url.toLocalFile()).toStdString());
  }
  return files;
}

bool TakesDrops(const QWidget& widget) {
  const QWidget* const modal = QApplication::activeModalWidget();
  return !modal || modal == widget.window();
}

namespace {

bool IsDrop(const QEvent& event) {
  return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
         event.type() == QEvent::Drop;
}

}  // namespace

DropGuard::DropGuard() { qApp->installEventFilter(this); }

/// What a widget refuses is offered to those that it lies in, up to its window.
bool DropGuard::eventFilter(QObject* watched, QEvent* event) {
  const auto* const widget = qobject_cast<QWidget*>(watched);
  if (!widget || !IsDrop(*event)) return false;
  const bool files = !FilesIn(*static_cast<QDropEvent&>(*event).mimeData()).empty();
  if (TakesDrops(*widget) && (widget->isWindow() || !files)) return false;
  event->ignore();
  return true;
}

}  // namespace tarvik::screen
