#include "app/Application.h"

#include <algorithm>

#include "app/Editor.h"
#include "app/Mum.h"

namespace tarvik {
namespace {

constexpr const char* kAlreadyRunning =
    "Sorry, you can only have one version of Tarvik running at a time otherwise the Tarvik.ini file will get "
    "corrupted with both programs writing to it.";

}  // namespace

Application::Application(const Platform& services, kneeboard::Press& press)
    : Shell(workbench), workbench(services), press_(press) {}

Application::~Application() {
  if (mum_) workbench.platform.clipboard.changed = nullptr;
}

bool Application::Start() {
  if (!workbench.platform.instance.Acquire()) {
    workbench.platform.dialogs.Show(
        {"Exiting now ...", kAlreadyRunning, BoxIcon::Information, BoxButtons::Ok});
    ended_ = true;
    return false;
  }
  workbench.platform.clipboard.changed = [this] { workbench.ClipboardChanged(); };
  mum_ = std::make_unique<Mum>(*this);
  editor_ = std::make_unique<Editor>(*this);
  mum_->MDIForm_Load();
  return true;
}

bool Application::EditorIsLoaded() const { return editor_ && editor_->Visible; }

void Application::ShowEditor(EditorBegins begins) {
  if (EditorIsLoaded()) return;
  workbench.Reset();  // tools may have worked on while nobody saw it
  editor_->FillFrame();
  Loaded(*editor_);
  editor_->Form_Load(begins);
}

void Application::FilesDropped(const std::vector<std::string>& hostPaths) {
  std::vector<std::string> paths(hostPaths.size());
  std::transform(hostPaths.begin(), hostPaths.end(), paths.begin(),
                 [this](const std::string& path) { return workbench.platform.drives.FromHost(path); });
  ShowEditor();
  editor_->OpenDropped(paths);
}

bool Application::CloseEditor() {
  if (!EditorIsLoaded()) return true;
  if (!editor_->Form_QueryUnload()) return false;
  editor_->Form_Unload();
  editor_->Visible = false;
  UnloadTools(EndsWith::Editor);
  Unloading(*editor_);
  if (active_ == editor_.get()) active_ = nullptr;
  workbench.Reset();
  mum_->BeginStatus();
  unloaded_.push_back(std::exchange(editor_, std::make_unique<Editor>(*this)));
  return true;
}

bool Application::CloseTool(Form& form) {
  if (!form.Form_QueryUnload()) return false;
  Unload(form);
  return true;
}

bool Application::CloseMum() {
  // All are asked before the first one goes; the editor is the first of them.
  for (Form* const form : Forms()) {
    if (!form->Form_QueryUnload()) return false;
  }
  if (EditorIsLoaded()) {
    editor_->Form_Unload();
    UnloadTools(EndsWith::Editor);
  }
  mum_->MDIForm_Unload();
  UnloadTools(EndsWith::Frame);
  while (!tools_.empty()) Unload(*tools_.back());
  workbench.unsaved.End();
  ended_ = true;
  HasEnded();
  return true;
}

void Application::Load(std::unique_ptr<Form> form) {
  if (waits_ == 0) unloaded_.clear();
  Form& loaded = *tools_.emplace_back(std::move(form));
  shown_.push_back(loaded.Visible.Changed.Connect([this, &loaded] {
    if (!loaded.Visible && active_ == &loaded) active_ = nullptr;
  }));
  Loaded(loaded);
  loaded.Load();
}

void Application::Activated(Form& form) {
  workbench.foreign.Look();  // the user may come from another program
  const bool toMain = &form == editor_.get() || &form == mum_.get();
  Form& now = toMain && EditorIsLoaded() ? *editor_ : form;
  Form* const left = std::exchange(active_, &now);
  if (left == active_) return;
  if (left && toMain) left->Deactivate();
  now.Activate();
}

void Application::Show(ToolId tool) {
  const auto rows = Tools();
  const auto row =
      std::find_if(rows.begin(), rows.end(), [tool](const ToolRow& each) { return each.id == tool; });
  const ToolRow& found = Require(row == rows.end() ? nullptr : &*row, *mum_, "tool", static_cast<int>(tool));
  if (found.show) found.show(workbench, *this);
}

void Application::ShowPreferences(page::Preferences page) {
  workbench.values.PreferencesTab = page;
  Show(ToolId::Preferences);
}

MenuItem& Application::Command(std::string_view entry) { return editor_->menus(entry); }

void Application::ForwardKey(Key& key) { editor_->ForwardKey(key); }

Form& Application::Frame() { return *mum_; }

void Application::HideToolbar() { mum_->Toolbar1.Visible = false; }

void Application::ShowModal(Form& form) {
  bool open = true;
  const Connection closed = form.Visible.Changed.Connect([&open, &form] { open = form.Visible; });
  form.Modal = true;
  form.Visible = true;
  WaitWhile([&open, this] { return open && !ended_; });
}

void Application::WaitWhile(const std::function<bool()>& open) {
  ++waits_;
  workbench.platform.dialogs.WaitWhile(open);
  --waits_;
}

void Application::Unload(Form& form) {
  const auto at =
      std::find_if(tools_.begin(), tools_.end(), [&form](const auto& tool) { return tool.get() == &form; });
  if (at == tools_.end()) return;
  std::unique_ptr<Form> last = std::move(*at);
  tools_.erase(at);
  last->Unload();
  last->Visible = false;
  if (active_ == last.get()) active_ = nullptr;
  Unloading(*last);
  unloaded_.push_back(std::move(last));
}

void Application::UnloadTools(EndsWith end) {
  for (const ToolRow& row : Tools()) {
    Form* const form = row.end == end ? FindForm(row.form) : nullptr;
    if (form) Unload(*form);
  }
}

std::vector<Form*> Application::Forms() const {
  std::vector<Form*> forms;
  if (mum_) forms.push_back(mum_.get());
  if (EditorIsLoaded()) forms.push_back(editor_.get());
  for (const auto& tool : tools_) forms.push_back(tool.get());
  return forms;
}

Form* Application::FindForm(std::string_view name) const {
  for (Form* const form : Forms()) {
    if (form->Name() == name) return form;
  }
  return nullptr;
}

PropertyBase* Application::FindValue(std::string_view name) const {
  std::vector<const Component*> places = {
      &workbench.settings,           &workbench.values,         &workbench.errors, &workbench.lists,
      &workbench.documents.joystick, &workbench.documents.macro};
  if (mum_) places.push_back(mum_.get());
  for (const Component* place : places) {
    if (PropertyBase* property = place->FindProperty(name)) return property;
  }
  return nullptr;
}

}  // namespace tarvik
