#include "app/Application.h"

#include "app/ColourSelector.h"
#include "app/Editor.h"
#include "app/Mum.h"

namespace tarvik {
namespace {

constexpr const char* kAlreadyRunning =
    "Sorry, you can only have one version of Tarvik running at a time otherwise the Tarvik.ini file will get "
    "corrupted "
    "with both programs writing to it.";

}  // namespace

Application::Application(Platform& services)
    : platform(services),
      profile(services.files, services.folder + "\\Tarvik.ini"),
      settings(profile, errors) {}

Application::~Application() = default;

bool Application::Start() {
  if (!platform.instance.Acquire()) {
    platform.dialogs.Show({"Exiting now ...", kAlreadyRunning, BoxIcon::Information, BoxButtons::Ok});
    ended_ = true;
    return false;
  }
  mum_ = std::make_unique<Mum>(*this);
  mum_->MDIForm_Load();
  return true;
}

void Application::ShowEditor() {
  if (editor_) {
    editor_->Visible = true;
    return;
  }
  editor_ = std::make_unique<Editor>(*this);
  Loaded(*editor_);
  editor_->Form_Load();
}

bool Application::CloseEditor() {
  if (!editor_) return true;
  if (!editor_->Form_QueryUnload()) return false;
  editor_->Form_Unload();
  Unloading(*editor_);
  editor_.reset();
  return true;
}

bool Application::CloseMum() {
  if (editor_) {
    if (!editor_->Form_QueryUnload()) return false;
    editor_->Form_Unload();
  }
  mum_->MDIForm_Unload();
  ended_ = true;
  HasEnded();
  return true;
}

ColourSelector& Application::colourSelector() {
  if (!colourSelector_) {
    colourSelector_ = std::make_unique<ColourSelector>(*this);
    Loaded(*colourSelector_);
  }
  return *colourSelector_;
}

Form* Application::FindForm(std::string_view name) const {
  for (Form* form : std::initializer_list<Form*>{mum_.get(), editor_.get(), colourSelector_.get()}) {
    if (form && form->Name() == name) return form;
  }
  return nullptr;
}

PropertyBase* Application::FindValue(std::string_view name) const {
  std::vector<const Component*> places = {&settings, &values, &errors};
  if (editor_) places.insert(places.end(), {&editor_->Joystick, &editor_->Macro});
  if (mum_) places.push_back(mum_.get());
  for (const Component* place : places) {
    if (PropertyBase* property = place->FindProperty(name)) return property;
  }
  return nullptr;
}

}  // namespace tarvik
