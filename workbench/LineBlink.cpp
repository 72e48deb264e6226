#include "workbench/LineBlink.h"

namespace tarvik {
namespace {

constexpr int kInterval = 200;  // milliseconds

}  // namespace

LineBlink::LineBlink(Documents& documents) : documents_(documents) { timer.Interval = kInterval; }

void LineBlink::HighlightLineAtIP() {
  Document& document = documents_.Active();
  Pane& pane = document.text;
  const std::string_view text = pane.Characters();
  if (text.empty()) return;
  document_ = &document;
  before_ = pane.Selection();
  const std::size_t breakBefore =
      before_.start == 0 ? std::string_view::npos : text.rfind('\n', before_.start - 1);
  const std::size_t start = breakBefore == std::string_view::npos ? 0 : breakBefore + 1;
  const std::size_t breakBehind = text.find('\n', before_.start);
  const std::size_t end = breakBehind == std::string_view::npos ? text.size() : breakBehind - 1;
  highlight_ = {start, end - start};
  pane.Select(highlight_);
}

void LineBlink::Start() {
  PutSelectionBack();
  HighlightLineAtIP();
  step_ = 0;
  timer.Enabled = true;
}

void LineBlink::Stop() {
  timer.Enabled = false;
  document_ = nullptr;
}

/// Restores the caret memory as well, since a key that goes up would store the highlight as the user's
/// selection. Does nothing when the user has moved the selection meanwhile.
void LineBlink::PutSelectionBack() {
  if (document_ && document_->text.Selection() == highlight_) {
    document_->text.Select(before_);
    document_->Caret = before_.start;
    document_->SelLength = before_.length;
  }
  document_ = nullptr;
}

void LineBlink::Step() {
  constexpr int kLastStep = 2;
  if (step_ == 1) {
    HighlightLineAtIP();
  } else {
    PutSelectionBack();
  }
  if (++step_ > kLastStep) timer.Enabled = false;
}

}  // namespace tarvik
