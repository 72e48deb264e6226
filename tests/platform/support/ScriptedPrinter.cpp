#include "support/ScriptedPrinter.h"

#include <algorithm>

namespace tarvik {
namespace {

const Failure kGone{error::kPrinter, "Printer error", 0};

}  // namespace

Outcome<> ScriptedPrinter::Call() {
  if (onScreen_) return Done{};
  if (callsLeft == 0) return kGone;
  --callsLeft;
  return Done{};
}

void ScriptedPrinter::StartPage(int number) {
  page_ = number;
  record.push_back("--- page " + std::to_string(number) +
                   (chosen_.empty() || onScreen_ ? "" : " on " + chosen_));
}

Outcome<> ScriptedPrinter::SetUp() {
  if (choice == "cancel") return Failure{error::kDialogCancelled, "Cancel was selected.", 0};
  if (choice == "fails") return kGone;
  chosen_ = choice;
  return Done{};
}

void ScriptedPrinter::Preview(const std::string& title, const PrintDocumentOn& print) {
  record.push_back("--- preview of " + title);
  onScreen_ = true;
  print(PagesGo::OnScreen);
  onScreen_ = false;
  if (printsFromPreview) print(PagesGo::OnPaper);
}

Outcome<> ScriptedPrinter::Print(const std::string& line, Weight weight) {
  if (auto call = Call(); !call) return call;
  if (page_ == 0) StartPage(1);
  record.push_back(std::string(weight == Weight::Bold ? "print bold \"" : "print \"") + line + "\"");
  return Done{};
}

Outcome<Paper> ScriptedPrinter::Sheet() {
  if (auto call = Call(); !call) return call.failure();
  return Paper{12240, 15840, 360, 240};
}

Outcome<std::size_t> ScriptedPrinter::FormatRange(const FormattedText& text, std::size_t from,
                                                  const PrintArea& area) {
  if (auto call = Call(); !call) return call.failure();
  record.push_back("render");
  for (const int side : {area.left, area.top, area.right, area.bottom}) {
    record.back() += " " + std::to_string(side);
  }
  for (std::size_t line = 0; line < linesPerPage && from < text.text.size(); ++line) {
    const std::size_t end = std::min(text.text.find("\r\n", from), text.text.size());
    record.emplace_back(text.text.substr(from, end - from));
    from = std::min(end + 2, text.text.size());
  }
  return from;
}

Outcome<> ScriptedPrinter::NewPage() {
  if (auto call = Call(); !call) return call;
  StartPage(page_ + 1);
  return Done{};
}

Outcome<> ScriptedPrinter::EndDocument() {
  page_ = 0;
  if (auto call = Call(); !call) return call;
  record.emplace_back("--- end");
  return Done{};
}

}  // namespace tarvik
