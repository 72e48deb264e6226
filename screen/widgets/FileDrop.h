// Files that the user drags here from a file manager: the frame takes them, and no box takes them for text.
#pragma once

#include <QMimeData>
#include <QObject>
#include <QWidget>
#include <string>
#include <vector>

namespace tarvik::screen {

/// The host's paths of the files that are dragged; none where it is something else.
[[nodiscard]] std::vector<std::string> FilesIn(const QMimeData& data);
/// Nothing can be dropped behind a modal window.
[[nodiscard]] bool TakesDrops(const QWidget& widget);

/// Refuses what must not be dropped, for every widget of the program. A box that took a file would hold its
/// address, and might let the file manager believe that the file itself has moved. One stands beside the
/// screen.
class DropGuard : public QObject {
 public:
  DropGuard();
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tarvik::screen
