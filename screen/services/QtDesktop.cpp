#include "screen/services/QtDesktop.h"

#include <QClipboard>
#include <QDate>
#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QMimeData>
#include <QPalette>
#include <QProcess>
#include <QStandardPaths>
#include <QTime>
#include <QUrl>

#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

/// The names that programs give to RTF; the first one found is read, all are written.
constexpr const char* kRtfTypes[] = {"text/rtf", "application/rtf", "text/richtext"};

const QMimeData& Content() {
  static const QMimeData nothing;
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  return data ? *data : nothing;
}

QByteArray RtfIn(const QMimeData& data) {
  for (const char* const type : kRtfTypes) {
    if (QByteArray rtf = data.data(QLatin1String(type)); !rtf.isEmpty()) return rtf;
  }
  return {};
}

}  // namespace

// The clipboard.

/// What is there is looked at once for every change: the owner may be slow to answer.
QtClipboard::QtClipboard() {
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
    Look();
    if (changed) changed();
  });
  Look();
}

void QtClipboard::Look() {
  const QMimeData& data = Content();
  hasText_ = data.hasText();
  for (const char* const type : kRtfTypes) hasText_ = hasText_ || data.hasFormat(QLatin1String(type));
}

void QtClipboard::Put(const std::string& text, const std::string& rtf) {
  auto* const data = new QMimeData;
  if (!text.empty()) data->setText(AsText(text));
  for (const char* const type : kRtfTypes) {
    if (!rtf.empty()) data->setData(QLatin1String(type), QByteArray::fromStdString(rtf));
  }
  hasText_ = !text.empty() || !rtf.empty();
  QGuiApplication::clipboard()->setMimeData(data);
}

Converted QtClipboard::Text() { return ConvertedFromText(Content().text()); }

std::string QtClipboard::Rtf() { return RtfIn(Content()).toStdString(); }

// The desktop and the calendar.

Outcome<> QtDesktop::Open(const std::string& path) {
  const auto host = drives_.ToHost(path);
  const bool opened =
      host && QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(host->c_str())));
  if (!opened) return Failure{error::kFileNotFound, "File not found", 0};
  return Done{};
}

bool QtDesktop::IsDark() const {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

Outcome<> QtDesktop::ShowSystemInformation() {
  struct Program {
    const char* name;
    QStringList arguments;
  };
  // A desktop's own page on the machine comes before the tools that any desktop may have.
  const Program programs[] = {
      {"kinfocenter", {}},
      {"gnome-control-center", {QStringLiteral("info-overview")}},
      {"cinnamon-settings", {QStringLiteral("info")}},
      {"hardinfo2", {}},
      {"hardinfo", {}},
      {"mate-system-monitor", {QStringLiteral("--show-system-tab")}},
      {"lxqt-about", {}},
      {"xfce4-about", {}},
  };
  for (const Program& program : programs) {
    const QString path = QStandardPaths::findExecutable(QString::fromLatin1(program.name));
    if (!path.isEmpty() && QProcess::startDetached(path, program.arguments)) return Done{};
  }
  return Failure{error::kFileNotFound, "File not found", 0};
}

std::string QtCalendar::ShortDate() const {
  return FromScreen(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

std::string QtCalendar::LongDate() const {
  return FromScreen(QLocale::system().toString(QDate::currentDate(), QLocale::LongFormat));
}

std::string QtCalendar::TimeOfDay() const {
  return QTime::currentTime().toString(QStringLiteral("hh:mm:ss")).toStdString();
}

std::string QtCalendar::Stamp() const {
  return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss")).toStdString();
}

// The help.

QtHelp::~QtHelp() { delete window_; }

/// A help window that is asked for again comes back from being minimised.
HelpWindow& QtHelp::Window(const std::string& file) {
  const auto text = files_.Read(file);
  if (!window_) window_ = new HelpWindow;
  window_->Open(HelpFile(text ? *text : std::string()), look ? look() : FileLook());
  if (window_->isMinimized()) window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  return *window_;
}

void QtHelp::ShowKeyword(const std::string& file, const std::string& keyword) {
  Window(file).ShowKeyword(keyword);
}
void QtHelp::ShowContext(const std::string& file, int context) { Window(file).ShowContext(context); }

}  // namespace tarvik::screen
