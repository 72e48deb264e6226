// The one table of the tools: what each is called, how it is shown, and what it ends with.
#pragma once

#include <span>

#include "workbench/Shell.h"

namespace tarvik {

/// What a tool ends with, if the user has not ended it before: the editor, the frame before all other tools,
/// or the program.
enum class EndsWith { Editor, Frame, Program };

struct ToolRow {
  ToolId id;
  const char* form;
  EndsWith end;
  Form& (*load)(Shell& shell);                   ///< the form, made when it is asked for first
  void (*show)(Workbench& bench, Shell& shell);  ///< null: only another tool shows it
};

/// The tools in the order in which they end.
[[nodiscard]] std::span<const ToolRow> Tools();

}  // namespace tarvik
