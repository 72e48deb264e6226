#include "tools/viewers/LogForm.h"

namespace tarvik {

LogForm::LogForm(Workbench& bench, Shell& shell) : ToolForm("LogForm", bench, shell) {
  Caption = "Log";
  Topmost = true;
  Label1.Caption =
      "Errors, programs that were started, and settings that could not be read. Nothing of what you have "
      "written is in it, and no name of your files.";
  Label1.BackColor = ToggleLabel::kOff;
  cmdCopy.ToolTipText = "Copies all lines to the clipboard";
  cmdOK.MakeDefault();
  cmdOK.Cancel = true;
  written_ = bench.log.Written.Connect([this](const std::string&) { ShowLines(); });
  ShowLines();
}

void LogForm::ShowLines() {
  const auto& lines = bench_.log.Lines();
  const int picked = List1.ListIndex;
  List1.FillInOrder({lines.begin(), lines.end()});
  List1.ListIndex = picked;
  cmdCopy.Enabled = !lines.empty();
}

void LogForm::cmdCopy_Click() {
  std::string text;
  for (const std::string& line : bench_.log.Lines()) text += line + "\r\n";
  bench_.platform.clipboard.Put(text, {});
}

}  // namespace tarvik
