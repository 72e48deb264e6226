// The running program: the shared values, the settings and the forms, which are made on first use. Nothing
// else is global, so that two programs can stand side by side.
#pragma once

#include <functional>
#include <memory>
#include <span>

#include "controls/Form.h"
#include "platform/Platform.h"
#include "workbench/PreviousFiles.h"
#include "workbench/Settings.h"
#include "workbench/Values.h"

namespace tarvik {

class Mum;
class Editor;

/// The tools that end with the frame before all others.
inline constexpr const char* kToolsOfMum[] = {"ColourSelector", "KeyTestForm", "ProgramWait"};

/// The files that the program was started with are opened once; an editor that is shown again begins anew.
enum class EditorBegins { Untitled, WithTheFilesOfTheStart };

class Application {
 public:
  explicit Application(Platform& platform);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  Platform& platform;
  Errors errors;
  Values values;
  ProfileFile profile;
  Settings settings;
  PreviousFiles lists;

  /// From process start to the work area. False: another instance runs, and this process is to end.
  bool Start();
  [[nodiscard]] Mum& mum() const { return *mum_; }
  /// The editor, visible while it is loaded. After it was closed alone it is a fresh one that nobody sees,
  /// until it is shown again: what a tool does to that one goes nowhere.
  [[nodiscard]] Editor& editor() const { return *editor_; }
  void ShowEditor(EditorBegins begins = EditorBegins::Untitled);
  /// The user drops files of the host on the program.
  void FilesDropped(const std::vector<std::string>& hostPaths);
  /// What a tool's close box does. False: the user keeps the tool.
  bool CloseTool(Form& form);
  /// Closes the editor alone; the frame stays. False: the user keeps the program running.
  bool CloseEditor();
  /// Closes the frame and so the program, once the editor and every tool have asked about unsaved work.
  /// False: the user keeps it running.
  bool CloseMum();
  [[nodiscard]] bool Ended() const { return ended_; }

  /// The form of a tool, which is made and loaded when it is asked for first.
  template <class F>
  F& Tool() {
    if (F* const tool = LoadedTool<F>()) return *tool;
    auto made = std::make_unique<F>(*this);
    F& form = *made;
    LoadTool(std::move(made));
    return form;
  }
  /// The form of a tool while it is loaded, or null.
  template <class F>
  [[nodiscard]] F* LoadedTool() const {
    for (const auto& tool : tools_) {
      if (auto* const found = dynamic_cast<F*>(tool.get())) return found;
    }
    return nullptr;
  }
  /// For whatever shows the forms: the user is at this form now. It hears of it, and so does the tool that
  /// was left for the editor or the frame.
  void Activated(Form& form);

  /// Shows a tool's form and returns when it is hidden or unloaded; other forms take no input till then.
  void ShowModal(Form& form);
  /// Lets the program go on inside the handler that calls it, as long as `open` says so.
  void WaitWhile(const std::function<bool()>& open);
  /// Ends a tool's form. A handler of that form touches it no more afterwards.
  void Unload(Form& form);

  /// Ends those that are loaded of the tools of these names.
  void UnloadTools(std::span<const char* const> names);

  /// Every form that is loaded, the frame first.
  [[nodiscard]] std::vector<Form*> Forms() const;
  /// "Editor", "Mum", ...: the form that is loaded under this name, or null.
  [[nodiscard]] Form* FindForm(std::string_view name) const;
  /// A process-wide value or a setting by its name, or null.
  [[nodiscard]] PropertyBase* FindValue(std::string_view name) const;

  /// For whatever shows the forms.
  Signal<Form&> Loaded;
  Signal<Form&> Unloading;
  Signal<> HasEnded;

  /// Another program changed what is on the clipboard.
  Signal<> ClipboardChanged;

 private:
  void LoadTool(std::unique_ptr<Form> form);
  [[nodiscard]] bool EditorIsLoaded() const;

  std::unique_ptr<Mum> mum_;
  std::unique_ptr<Editor> editor_;
  std::vector<std::unique_ptr<Form>> tools_;
  std::vector<std::unique_ptr<Form>> unloaded_;  // their handlers may still run
  std::vector<Connection> shown_;
  Form* active_ = nullptr;
  int waits_ = 0;  // handlers that stand still, each inside the one before
  bool ended_ = false;
};

}  // namespace tarvik
