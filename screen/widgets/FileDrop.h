// Files that the user drags here from a file manager: the frame takes them, and no pane takes them for text.
#pragma once

#include <QMimeData>
#include <QWidget>
#include <string>
#include <vector>

namespace tarvik::screen {

/// The host's paths of the files that are dragged; none where it is something else.
[[nodiscard]] std::vector<std::string> FilesIn(const QMimeData& data);
/// Nothing can be dropped behind a modal window.
[[nodiscard]] bool TakesDrops(const QWidget& widget);

}  // namespace tarvik::screen
