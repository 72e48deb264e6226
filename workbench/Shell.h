// What a tool asks for that is not its own: another tool, the frame, the editor's commands, the user's
// patience. The program is the one shell there is.
#pragma once

#include <functional>
#include <memory>

#include "controls/Form.h"
#include "controls/Menu.h"
#include "workbench/Workbench.h"

namespace tarvik::kneeboard {
class Press;
}

namespace tarvik {

/// The windows beside the frame and the editor.
enum class ToolId {
  Find,
  Composer,
  Heading,
  Pimlet,
  Title,
  Remark,
  Favourite,
  Game,
  Drives,
  Preferences,
  MacroWizard,
  JoystickWizard,
  JoystickAnalyser,
  Speedy,
  ColourSelector,
  KeyTest,
  ProgramWait,
  TemplateEditor,
  ImageViewer,
  PictureDialog,
  Tips,
  About,
  Log,
  UnsavedTexts,
  CompareTexts,
  EarlierVersions,
  Rename,
  Kneeboard,
  TryOut,
  Fly,
  Sticks,
};

/// The pages of the preferences.
namespace page {
enum Preferences { kFileLocations, kColours, kApps, kFavourites, kMiscellaneous, kGames };
}  // namespace page

class Shell {
 public:
  virtual ~Shell() = default;

  /// Shows a tool as its own menu entry does; returns when the user has ended it where it is modal. A tool
  /// that only another one shows does not show itself.
  virtual void Show(ToolId tool) = 0;
  /// Shows the preferences on one of their pages and waits.
  virtual void ShowPreferences(page::Preferences page) = 0;
  /// An entry of the editor's menus, to run it or to see whether it can be run.
  [[nodiscard]] virtual MenuItem& Command(std::string_view entry) = 0;
  /// Runs the entry of a key that a tool's window got: a function key, or a letter with Ctrl alone, which is
  /// then swallowed. The entry must be enabled.
  virtual void ForwardKey(Key& key) = 0;

  /// The frame window, which goes out of the way of other programs.
  [[nodiscard]] virtual Form& Frame() = 0;
  /// The editor's toolbar goes while the user is at a window of another kind, and comes back with him.
  virtual void HideToolbar() = 0;
  /// Where kneeboards are painted and printed.
  [[nodiscard]] virtual kneeboard::Press& Press() = 0;
  /// Every form that is loaded, the frame first.
  [[nodiscard]] virtual std::vector<Form*> Forms() const = 0;

  /// Shows a tool's form and returns when it is hidden or unloaded; other forms take no input till then.
  virtual void ShowModal(Form& form) = 0;
  /// Lets the program go on inside the handler that calls it, as long as `open` says so.
  virtual void WaitWhile(const std::function<bool()>& open) = 0;
  /// Ends a tool's form. A handler of that form touches it no more afterwards.
  virtual void Unload(Form& form) = 0;
  /// What a tool's close box does. False: the user keeps the tool.
  virtual bool CloseTool(Form& form) = 0;
  /// Closes the frame and so the program, once everything has asked about unsaved work. False: the user
  /// keeps it running.
  virtual bool CloseProgram() = 0;
  [[nodiscard]] virtual bool Ended() const = 0;

  /// The form of a tool, which is made and loaded when it is asked for first.
  template <class F>
  F& Tool() {
    if (F* const tool = LoadedTool<F>()) return *tool;
    auto made = std::make_unique<F>(bench_, *this);
    F& form = *made;
    Load(std::move(made));
    return form;
  }
  /// The form of a tool while it is loaded, or null.
  template <class F>
  [[nodiscard]] F* LoadedTool() const {
    for (Form* const form : Forms()) {
      if (auto* const found = dynamic_cast<F*>(form)) return found;
    }
    return nullptr;
  }

 protected:
  explicit Shell(Workbench& bench) : bench_(bench) {}

  virtual void Load(std::unique_ptr<Form> form) = 0;

 private:
  Workbench& bench_;
};

}  // namespace tarvik
