#include "workbench/Workbench.h"

namespace tarvik {
namespace {

Platform With(Programs& programs, Desktop& desktop, const Platform& services) {
  return {services.files,      services.dialogs,   services.instance, services.clipboard,
          services.help,       services.calendar,  services.printer,  desktop,
          services.joystick,   services.sticks,    services.keys,     services.alarm,
          services.seat,       services.keyboard,  programs,          services.drives,
          services.journals,   services.libraries, services.screen,   services.folder,
          services.commandLine};
}

}  // namespace

Workbench::Workbench(const Platform& services)
    : log(services.calendar),
      programs_(services, log),
      desktop_(services.desktop, log),
      platform(With(programs_, desktop_, services)),
      profile(platform.files, platform.folder + "\\Tarvik.ini"),
      settings(profile, errors),
      lists(settings, errors, platform.drives),
      documents(platform, settings, values, errors) {
  profile.unreadable = [this](std::string_view section, std::string_view key) {
    log.SettingUnreadable(section, key);
  };
  profile.fileDamaged = [this] { log.SettingsFileDamaged(); };
  profile.fileUnreadable = [this](const Failure& failure) { log.SettingsFileUnreadable(failure); };
}

void Workbench::Reset() {
  for (Timer* const timer : {&autoSave.timer, &blink.timer}) timer->Enabled = false;
  blink.Stop();
  search.End();
  macros.Reset();
  files.Reset();
  documents.Reset();
  jumps.Forget();
  problems.Renew();
  flight.End("The editor was closed.");
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
