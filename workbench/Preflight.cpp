#include "workbench/Preflight.h"

namespace tarvik {

Preflight::Preflight(Documents& documents, Problems& problems, Notices& notices)
    : documents_(documents), problems_(problems), notices_(notices) {
  mended_ = problems.Changed.Connect([this] {
    if (problems_.Count(model::Severity::Error) > 0) return;
    told_ = false;
    notices_.Remove(Matter::ErrorsInFiles, nullptr);
  });
}

void Preflight::Look() {
  Settings& settings = documents_.settings;
  if (settings.ErrorsBeforeDownload == 0) return;
  problems_.Renew();
  const std::size_t errors = problems_.Count(model::Severity::Error);
  if (errors == 0 || told_) return;
  told_ = true;
  const auto never = [this, &settings] {
    settings.Change(settings.ErrorsBeforeDownload, 0);
    Answered();
  };
  const std::string are = errors == 1 ? "There is an error" : "There are " + TextOf(errors) + " errors";
  notices_.Show(Matter::ErrorsInFiles, nullptr,
                {are + " in the files that go to the joystick. Do you want to look first?",
                 {{"Look at them", [this] { LookAtErrors(); }},
                  {"Go on", [this] { Answered(); }},
                  {"Never ask", never}}});
}

void Preflight::LookAtErrors() {
  Answered();
  Settings& settings = documents_.settings;
  settings.Change(settings.ProblemsPanel, 1);
  problems_.GoToFirstError();
}

void Preflight::Answered() {
  notices_.Remove(Matter::ErrorsInFiles, nullptr);
  documents_.FocusActiveText();
}

}  // namespace tarvik
