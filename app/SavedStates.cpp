#include "app/SavedStates.h"

namespace tarvik {
namespace {

bool IsModified(const Document& document) { return document.Dirty == saved::kModified; }

}  // namespace

void SavedStates::Follow() {
  const auto follow = [this](PropertyBase& property) {
    connections_.push_back(property.Changed.Connect([this] { Show(); }));
  };
  for (Document* const document : {&documents_.joystick, &documents_.macro}) {
    follow(document->Name);
    follow(document->Dirty);
  }
  follow(documents_.tabs.SelectedItem);
  Show();
}

void SavedStates::Stop() {
  connections_.clear();
  mum_.FileOnShow = std::string();
  mum_.Unsaved = false;
}

void SavedStates::Show() {
  for (const Document* const document : {&documents_.joystick, &documents_.macro}) {
    documents_.TabOf(*document).Unsaved = IsModified(*document);
  }
  mum_.FileOnShow = documents_.Active().Name.Get().Text();
  mum_.Unsaved = IsModified(documents_.Active());
}

}  // namespace tarvik
