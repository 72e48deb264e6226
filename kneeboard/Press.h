// Where kneeboards go: to the screen's own type and drawings, to files, to paper and to the clipboard. The
// window that shows one is handed it; the real one stands in screen/services, a scripted one in the tests.
#pragma once

#include "kneeboard/Layout.h"
#include "platform/Outcome.h"
#include "text/Colour.h"

namespace tarvik::kneeboard {

/// Whether a kneeboard is painted in colours, or for a printer that has none.
enum class Colouring : std::uint8_t { Colours, BlackAndWhite };

/// The user's own colours for some inks. They can be read on white paper.
struct UserInks {
  tarvik::Colour accent = kBlack;
  tarvik::Colour alarm = kBlack;
  tarvik::Colour dim = kBlack;

  friend bool operator==(const UserInks&, const UserInks&) = default;
};

/// What is painted.
struct Job {
  std::vector<Sheet> sheets = {};
  Colouring colouring = Colouring::Colours;
  std::optional<UserInks> inks = {};  ///< in the place of ours, where it is in colours
  std::string title = {};             ///< of the document, in UTF-8
  int dotsPerInch = 200;              ///< of pictures
};

/// Where each of so many sheets goes that are saved at a path: one PDF for all, and of pictures one for each,
/// which have numbers before the ending where they are several.
[[nodiscard]] std::vector<std::string> FilesOf(const std::string& path, std::size_t sheets);

class Press {
 public:
  Press() = default;
  Press(const Press&) = delete;
  Press& operator=(const Press&) = delete;
  virtual ~Press() = default;

  [[nodiscard]] virtual const TextMeasure& Measure() const = 0;
  [[nodiscard]] virtual const DrawingPlans& Plans() const = 0;

  /// Writes all sheets to a file of the host, in UTF-8, of the kind that its ending tells: a PDF, or those
  /// of FilesOf as SVG or PNG. Any other ending is a failure.
  virtual Outcome<> Write(const Job& job, const std::string& hostPath) = 0;
  /// Prints all sheets. Failure 32755 when the user cancels.
  virtual Outcome<> Print(const Job& job) = 0;
  /// Puts a sheet on the clipboard as a picture.
  virtual void Copy(const Job& job, std::size_t sheet) = 0;
};

}  // namespace tarvik::kneeboard
