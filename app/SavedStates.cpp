#include "app/SavedStates.h"

namespace tarvik {
namespace {

bool IsModified(const Document& document) { return document.Dirty == saved::kModified; }

}  // namespace

void SavedStates::Follow() {
  const auto follow = [this](PropertyBase& property) {
    connections_.push_back(property.Changed.Connect([this] { Show(); }));
  };
  for (Document* const document : {&desk_.joystick, &desk_.macro}) {
    follow(document->Name);
    follow(document->Dirty);
  }
  follow(desk_.tabs.SelectedItem);
  Show();
}

void SavedStates::Stop() {
  connections_.clear();
  mum_.FileOnShow = std::string();
  mum_.Unsaved = false;
}

void SavedStates::Show() {
  for (const Document* const document : {&desk_.joystick, &desk_.macro}) {
    desk_.TabOf(*document).Unsaved = IsModified(*document);
  }
  mum_.FileOnShow = desk_.Active().Name.Get().Text();
  mum_.Unsaved = IsModified(desk_.Active());
}

}  // namespace tarvik
