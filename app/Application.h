// The running program: the workbench, and the forms around it, which are made on first use. Nothing else is
// global, so that two programs can stand side by side.
#pragma once

#include <functional>
#include <memory>
#include <span>

#include "app/Tools.h"

namespace tarvik {

class Mum;
class Editor;

/// The files that the program was started with are opened once; an editor that is shown again begins anew.
enum class EditorBegins { Untitled, WithTheFilesOfTheStart };

class Application : public Shell {
 public:
  Application(const Platform& services, kneeboard::Press& press);
  ~Application() override;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  Workbench workbench;

  /// Starts the program, up to its work area. False: another instance runs, and this process is to end.
  bool Start();
  [[nodiscard]] Mum& mum() const { return *mum_; }
  /// The editor, visible while it is loaded. After it was closed alone it is a fresh one that nobody sees,
  /// until it is shown again.
  [[nodiscard]] Editor& editor() const { return *editor_; }
  void ShowEditor(EditorBegins begins = EditorBegins::Untitled);
  /// The user drops files of the host on the program.
  void FilesDropped(const std::vector<std::string>& hostPaths);
  /// Closes the editor alone; the frame stays. False: the user keeps the program running.
  bool CloseEditor();
  /// Closes the frame and so the program, once the editor and every tool have asked about unsaved work.
  /// False: the user keeps it running.
  bool CloseMum();

  /// Whatever shows the forms calls this when the user has come to a form. The form hears of it, and so does
  /// the tool that was left for the editor or the frame.
  void Activated(Form& form);

  // What the tools ask of their shell.
  void Show(ToolId tool) override;
  void ShowPreferences(page::Preferences page) override;
  [[nodiscard]] MenuItem& Command(std::string_view entry) override;
  void ForwardKey(Key& key) override;
  [[nodiscard]] Form& Frame() override;
  void HideToolbar() override;
  [[nodiscard]] kneeboard::Press& Press() override { return press_; }
  void ShowModal(Form& form) override;
  void WaitWhile(const std::function<bool()>& open) override;
  void Unload(Form& form) override;
  bool CloseTool(Form& form) override;
  bool CloseProgram() override { return CloseMum(); }
  [[nodiscard]] bool Ended() const override { return ended_; }

  /// Ends the loaded tools that by the table of the tools end with this.
  void UnloadTools(EndsWith end);

  /// Every form that is loaded, the frame first.
  [[nodiscard]] std::vector<Form*> Forms() const override;
  /// "Editor", "Mum", ...: the form that is loaded under this name, or null.
  [[nodiscard]] Form* FindForm(std::string_view name) const;
  /// A process-wide value or a setting by its name, or null.
  [[nodiscard]] PropertyBase* FindValue(std::string_view name) const;

  /// These tell whatever shows the forms which of them come and go.
  Signal<Form&> Loaded;
  Signal<Form&> Unloading;
  Signal<> HasEnded;

 protected:
  void Load(std::unique_ptr<Form> form) override;

 private:
  [[nodiscard]] bool EditorIsLoaded() const;

  std::unique_ptr<Mum> mum_;
  std::unique_ptr<Editor> editor_;
  std::vector<std::unique_ptr<Form>> tools_;
  std::vector<std::unique_ptr<Form>> unloaded_;  // their handlers may still run
  std::vector<Connection> shown_;
  Form* active_ = nullptr;
  int waits_ = 0;  // handlers that stand still, each inside the one before
  kneeboard::Press& press_;
  bool ended_ = false;
};

}  // namespace tarvik
