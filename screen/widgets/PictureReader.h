// Has pictures decoded by a process of its own while the window stays alive. The image views use it.
#pragma once

#include <QImage>
#include <QProcess>
#include <QTimer>
#include <chrono>
#include <functional>
#include <string_view>

namespace tarvik::screen {

class PictureReader {
 public:
  static constexpr std::chrono::seconds kPatience{10};

  /// `done` gets the picture: null for what is none, and for one that took longer than `patience` or too much
  /// memory.
  explicit PictureReader(std::function<void(QImage)> done, std::chrono::milliseconds patience = kPatience);
  ~PictureReader();
  PictureReader(const PictureReader&) = delete;
  PictureReader& operator=(const PictureReader&) = delete;

  /// Begins to read the picture in a file's bytes, and gives up one that is still being read.
  void Read(std::string_view bytes);
  [[nodiscard]] bool IsReading() const { return decoder_.state() != QProcess::NotRunning; }

 private:
  void Stop();
  /// Hands on the picture, which is null where there is none.
  void Finish(const QImage& picture);

  std::function<void(QImage)> done_;
  QProcess decoder_;
  QTimer deadline_;
};

}  // namespace tarvik::screen
