// The running program: the shared values, the settings and the forms, which are made on first use. Nothing
// else is global, so that two programs can stand side by side.
#pragma once

#include <memory>

#include "app/Settings.h"
#include "app/Values.h"
#include "controls/Form.h"
#include "platform/Platform.h"

namespace tarvik {

class Mum;
class Editor;
class ColourSelector;

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

  /// From process start to the work area. False: another instance runs, and this process is to end.
  bool Start();
  [[nodiscard]] Mum& mum() const { return *mum_; }
  /// The editor, or null after it was closed.
  [[nodiscard]] Editor* editor() const { return editor_.get(); }
  void ShowEditor();
  /// Closes the editor alone; the frame stays. False: the user keeps the program running.
  bool CloseEditor();
  /// Closes the frame and so the program. False: the user keeps it running.
  bool CloseMum();
  [[nodiscard]] ColourSelector& colourSelector();
  [[nodiscard]] bool Ended() const { return ended_; }

  /// "Editor", "Mum", ...: the form that is loaded under this name, or null.
  [[nodiscard]] Form* FindForm(std::string_view name) const;
  /// A process-wide value or a setting by its name, or null.
  [[nodiscard]] PropertyBase* FindValue(std::string_view name) const;

  /// For whatever shows the forms.
  Signal<Form&> Loaded;
  Signal<Form&> Unloading;
  Signal<> HasEnded;

 private:
  std::unique_ptr<Mum> mum_;
  std::unique_ptr<Editor> editor_;
  std::unique_ptr<ColourSelector> colourSelector_;
  bool ended_ = false;
};

}  // namespace tarvik
