#include "kneeboard/Utf8.h"

#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

void Convert(std::string& text) { text = ToUtf8(text); }
void Convert(Deed& deed);
void Convert(Action& action);
void Convert(Control& control);
void Convert(Step& step);
void Convert(Scale& scale);
void Convert(DevicePage& device);
void Convert(FlagRow& flag);
void Convert(Fact& fact);
void Convert(KeyUse::Press& press);
void Convert(KeyUse& use);
void Convert(TitleBlock& title);

template <class Item>
void Convert(std::vector<Item>& items) {
  for (Item& item : items) Convert(item);
}

template <class... Parts>
void ConvertAll(Parts&... parts) {
  (Convert(parts), ...);
}

void Convert(Deed& deed) { ConvertAll(deed.words, deed.keys, deed.heading); }
void Convert(Action& action) { Convert(action.deed); }
void Convert(Control& control) { ConvertAll(control.name, control.place, control.actions); }
void Convert(Step& step) { ConvertAll(step.up, step.down); }
void Convert(Scale& scale) { ConvertAll(scale.name, scale.place, scale.kind, scale.steps); }
void Convert(DevicePage& device) { ConvertAll(device.title, device.controls, device.scales); }
void Convert(FlagRow& flag) { ConvertAll(flag.name, flag.condition, flag.sends); }
void Convert(Fact& fact) { ConvertAll(fact.name, fact.words); }
void Convert(KeyUse::Press& press) { ConvertAll(press.with, press.words, press.heading, press.controls); }
void Convert(KeyUse& use) { ConvertAll(use.key, use.presses); }
void Convert(TitleBlock& title) { ConvertAll(title.title, title.game, title.author, title.date); }

}  // namespace

Contents InUtf8(Contents contents) {
  ConvertAll(contents.title, contents.devices, contents.flags, contents.facts, contents.keys,
             contents.headings);
  return contents;
}

}  // namespace tarvik::kneeboard
