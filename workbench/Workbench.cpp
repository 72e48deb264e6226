#include "workbench/Workbench.h"

namespace tarvik {

Workbench::Workbench(Platform& services)
    : platform(services),
      profile(services.files, services.folder + "\\Tarvik.ini"),
      settings(profile, errors),
      lists(settings, errors),
      documents(services, settings, values, errors) {}

void Workbench::Reset() {
  for (Timer* const timer : {&autoSave.timer, &blink.timer}) timer->Enabled = false;
  blink.Stop();
  macros.Reset();
  files.Reset();
  documents.Reset();
}

void Workbench::NewFile(Document& document) {
  if (files.New(document)) autoSave.Restart();
}

void Workbench::ForgetUndos() {
  for (Document* const document : {&documents.joystick, &documents.macro}) files.ResetHistory(*document);
}

void Workbench::TakeChosenFont() {
  if (values.FontChanged == 1) FontSettingsChanged();
}

}  // namespace tarvik
