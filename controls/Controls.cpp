#include "controls/Controls.h"

#include <algorithm>
#include <utility>

#include "text/CodePage.h"

namespace tarvik {
namespace {

template <class T>
std::vector<std::unique_ptr<T>> MakeParts(Component& parent, std::string_view name, int count) {
  std::vector<std::unique_ptr<T>> parts;
  for (int i = 1; i <= count; ++i) parts.push_back(std::make_unique<T>(parent, name, i));
  return parts;
}

std::vector<std::string> Sorted(std::vector<std::string> items) {
  std::stable_sort(items.begin(), items.end(), SortsBefore);
  return items;
}

void AddLine(std::string& lines, const std::string& line) {
  if (!lines.empty()) lines += "\r\n";
  lines += line;
}

}  // namespace

std::string Lines(const std::vector<std::string>& items) {
  std::string lines;
  for (const std::string& item : items) AddLine(lines, item);
  return lines;
}

void Form::SetVisible(bool visible) {
  if (visible) BringBack();
  if (visible == std::exchange(visible_, visible)) return;
  Visible.Changed();
}

/// Whoever goes to a form wants to see it, whatever way leads there.
void Form::BringBack() {
  if (WindowState == window::kMinimised) WindowState = window::kNormal;
}

void Form::Focus(Control& control) {
  BringBack();
  if (active_ == &control) {
    ActiveControlChanged();
    return;
  }
  Control* const old = active_;
  active_ = &control;
  if (old) old->LostFocus();
  if (active_ != &control) return;
  ActiveControlChanged();
  control.GotFocus();
}

void Control::Move(float left, float top, float width, float height) {
  Left = left;
  Top = top;
  Width = width;
  Height = height;
}

void Control::SetFocus() {
  if (Form* const form = OwnForm()) form->Focus(*this);
}

Form* Control::OwnForm() const {
  Component* at = Parent();
  while (at && at->Parent()) at = at->Parent();
  return dynamic_cast<Form*>(at);
}

std::string ListBox::Current() const {
  return ListIndex >= 0 && ListIndex < ListCount() ? List(ListIndex) : std::string();
}

void ListBox::Fill(std::vector<std::string> items) { FillInOrder(Sorted(std::move(items))); }

void ListBox::FillInOrder(std::vector<std::string> items) {
  ListIndex = -1;
  items_ = std::move(items);
  ticks_.assign(items_.size(), false);
  colours_.clear();
  ItemsChanged();
}

void ListBox::Tick(std::vector<bool> ticks) {
  ticks.resize(items_.size());
  if (ticks == ticks_) return;
  ticks_ = std::move(ticks);
  TicksChanged();
}

void ListBox::Paint(std::vector<Colour> colours) {
  colours.resize(items_.size());
  if (colours == colours_) return;
  colours_ = std::move(colours);
  ColoursChanged();
}

std::string ListBox::ColourLines() const {
  std::string lines;
  for (const Colour colour : colours_) AddLine(lines, TextOf(colour));
  return lines;
}

std::string ListBox::TickedLines() const {
  std::string lines;
  for (std::size_t i = 0; i < items_.size(); ++i) {
    if (ticks_[i]) AddLine(lines, items_[i]);
  }
  return lines;
}

std::string ComboBox::Text() const {
  return ListIndex >= 0 && ListIndex < ListCount() ? items_[static_cast<std::size_t>(ListIndex.Get())]
                                                   : std::string();
}

void ComboBox::Fill(std::vector<std::string> items) { FillInOrder(Sorted(std::move(items))); }

void ComboBox::FillInOrder(std::vector<std::string> items) {
  ListIndex = -1;
  items_ = std::move(items);
  ItemsChanged();
}

void ComboBox::Select(int index) {
  ListIndex = index;
  Click();
}

void CommandButton::MakeDefault() {
  for (Component* const sibling : OwnForm()->Children()) {
    if (auto* const button = dynamic_cast<CommandButton*>(sibling)) button->Default = button == this;
  }
}

CheckBox::CheckBox(Component& parent, std::string_view name, std::string caption) : Control(parent, name) {
  Caption = std::move(caption);
}

void CheckBox::Set(int value) {
  if (value == value_) return;
  value_ = value;
  Value.Changed();
  Click();
}

OptionButton::OptionButton(Component& parent, std::string_view name, std::string caption, int group)
    : Control(parent, name), group_(std::to_string(group)) {
  Caption = std::move(caption);
}

void OptionButton::Set(bool value) {
  if (value == value_) return;
  value_ = value;
  Value.Changed();
  if (!value) return;
  for (Component* const sibling : Parent()->Children()) {
    auto* const other = dynamic_cast<OptionButton*>(sibling);
    if (other && other != this && other->group_ == group_) other->Value = false;
  }
  Click();
}

void TextBox::SetText(const std::string& text, std::size_t caret) {
  const bool same = text == text_;
  text_ = text;
  SelStart = caret;
  SelLength = 0;
  if (same) return;
  Text.Changed();
  Change();
}

void TextBox::SelectAll() {
  SelStart = 0;
  SelLength = text_.size();
}

void TextBox::ReplaceSelection(const std::string& text) {
  std::string whole = text_;
  const std::size_t start = std::min<std::size_t>(SelStart, whole.size());
  whole.replace(start, SelLength, text);
  SetText(whole, start + text.size());
}

void EntryBox::AddItem(const std::string& item) {
  items_.push_back(item);
  ItemsChanged();
}

void EntryBox::Remember(const std::string& text) {
  if (std::find(items_.begin(), items_.end(), text) == items_.end()) AddItem(text);
}

void EntryBox::Pick(int index) {
  const bool isThere = index >= 0 && index < static_cast<int>(items_.size());
  SetText(Require(isThere ? &items_[static_cast<std::size_t>(index)] : nullptr, *this, "item", index), 0);
  SelectAll();
  Click();
}

TabPages::TabPages(Component& parent, std::string_view name, const std::vector<std::string>& captions)
    : Control(parent, name) {
  for (const std::string& caption : captions) {
    pages_.push_back(std::make_unique<Page>(*this, "Pages", Count()));
    pages_.back()->Caption = caption;
  }
}

void TabPages::Set(int tab) {
  if (tab == tab_) return;
  tab_ = tab;
  Tab.Changed();
  Click();
}

TabStrip::TabStrip(Component& parent, std::string_view name, int count)
    : Control(parent, name), tabs_(MakeParts<Tab>(*this, "Tabs", count)) {
  Tabs(1).Selected = true;
}

void TabStrip::Select(int index) {
  if (index == SelectedItem) return;
  Begin(index);
  Click();
}

void TabStrip::Begin(int index) {
  Tabs(SelectedItem).Selected = false;
  Tabs(index).Selected = true;
  SelectedItem = index;
}

Toolbar::Toolbar(Component& parent, std::string_view name, int count)
    : Control(parent, name), buttons_(MakeParts<ToolbarButton>(*this, "Buttons", count)) {}

StatusBar::StatusBar(Component& parent, std::string_view name, int count)
    : Control(parent, name), panels_(MakeParts<Panel>(*this, "Panels", count)) {}

}  // namespace tarvik
