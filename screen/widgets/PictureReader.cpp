#include "screen/widgets/PictureReader.h"

#include "screen/widgets/Picture.h"

namespace tarvik::screen {
namespace {

/// The program that runs, also after another version has taken its place on the disk.
constexpr const char* kThisProgram = "/proc/self/exe";

}  // namespace

PictureReader::PictureReader(std::function<void(QImage)> done, std::chrono::milliseconds patience)
    : done_(std::move(done)) {
  decoder_.setProgram(QString::fromLatin1(kThisProgram));
  decoder_.setArguments({QString::fromLatin1(kDecodeArgument)});
  decoder_.setStandardErrorFile(QProcess::nullDevice());
  deadline_.setSingleShot(true);
  deadline_.setInterval(patience);
  QObject::connect(&deadline_, &QTimer::timeout, &decoder_, &QProcess::kill);
  QObject::connect(&decoder_, &QProcess::finished, &decoder_, [this](int status, QProcess::ExitStatus how) {
    const bool whole = how == QProcess::NormalExit && status == 0;
    Finish(whole ? PictureOf(decoder_.readAllStandardOutput()) : QImage());
  });
  QObject::connect(&decoder_, &QProcess::errorOccurred, &decoder_, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) Finish({});
  });
}

PictureReader::~PictureReader() { Stop(); }

void PictureReader::Read(std::string_view bytes) {
  Stop();
  if (bytes.empty()) return Finish({});
  decoder_.start();
  decoder_.write(bytes.data(), static_cast<qint64>(bytes.size()));
  decoder_.closeWriteChannel();
  deadline_.start();
}

void PictureReader::Stop() {
  const QSignalBlocker quiet(decoder_);
  deadline_.stop();
  if (!IsReading()) return;
  decoder_.kill();
  decoder_.waitForFinished();
}

void PictureReader::Finish(const QImage& picture) {
  deadline_.stop();
  done_(picture);
}

}  // namespace tarvik::screen
