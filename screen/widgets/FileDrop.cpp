#include "screen/widgets/FileDrop.h"

#include <QApplication>
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

}  // namespace tarvik::screen
