// What the user should know of a document and need not answer at once: lines for a bar above its text, with
// what can be done about each. A box would interrupt; the status bar would forget.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/Signal.h"
#include "workbench/Document.h"

namespace tarvik {

/// What a notice is about; the first of these that there is of a document is shown.
enum class Matter {
  OtherEncoding,
  SaveFailed,
  NotKept,
  FileChanged,
  VersionKept,
  NoVersion,
  TextsLeft,
  Flying,
  OffersDark,
  OffersColours,
  ErrorsInFiles
};

struct NoticeAction {
  std::string caption;
  std::function<void()> run;
};

struct Notice {
  std::string text;
  std::vector<NoticeAction> actions;
};

class Notices {
 public:
  /// In the place of an earlier one of this matter. No document: it concerns both.
  void Show(Matter matter, const Document* document, Notice notice) {
    notices_[{matter, document}] = std::move(notice);
    Changed();
  }
  void Remove(Matter matter, const Document* document) {
    if (notices_.erase({matter, document}) > 0) Changed();
  }
  [[nodiscard]] bool Has(Matter matter, const Document* document) const {
    return notices_.contains({matter, document});
  }
  /// The most urgent one of the document, or null.
  [[nodiscard]] const Notice* Of(const Document& document) const {
    for (const auto& [about, notice] : notices_) {
      if (!about.second || about.second == &document) return &notice;
    }
    return nullptr;
  }

  Signal<> Changed;

 private:
  std::map<std::pair<Matter, const Document*>, Notice> notices_;
};

}  // namespace tarvik
