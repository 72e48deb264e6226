// A user who does anything: bytes become keys, clicks on menu entries and buttons, picks, drops and passing
// time, over the whole program: the editor, and every tool that is open, with the editor and without it.
// The disk runs full and has room again. After each of them both panes and their histories are sound, and a
// document that counts as saved is what its file holds, unless a notice says otherwise.
#include <algorithm>
#include <cstdlib>

#include "Selecting.h"
#include "app/Program.h"
#include "session/Driver.h"
#include "support/SoundDocument.h"
#include "support/UserFiles.h"
#include "text/CodePage.h"
#include "text/Rtf.h"

namespace {

using namespace tarvik;

/// Colours and fonts are numbers; all other answers come from the queues.
class FuzzDialogs : public session::ScriptedDialogs {
 public:
  explicit FuzzDialogs(Bytes& bytes) : bytes_(bytes) {}
  Outcome<Colour> AskForColour(Colour /*before*/) override {
    const auto part = static_cast<unsigned>(bytes_.Below(256));
    return Rgb(part, part, part);
  }
  Outcome<FontChoice> AskForFont(const FontChoice& before, bool /*fixedPitch*/) override {
    return FontChoice{before.name, static_cast<int>(bytes_.Below(100)), bytes_.Below(2) == 1};
  }

 private:
  Bytes& bytes_;
};

class User {
 public:
  explicit User(Bytes& bytes) : bytes_(bytes), dialogs_(bytes) {
    // A modal form: what comes next happens inside it.
    dialogs_.next = [this] {
      if (bytes_.Empty()) return false;
      Act();
      return true;
    };
    PutUserFiles(program_.files());
    program_.files().Put("c:\\tarvik\\rtf\\b.m50", "{\\rtf1 x}");
    program_.files().Put("c:\\tarvik\\tarvik.ini",
                         kUserSettings + ("[Miscellaneous]\r\nUndoMax=" + TextOf(bytes_.Below(6))) +
                             "\r\nAutoSaveEnabled=1\r\nAutoSaveTime=1\r\n");
    application_.Start();
  }

  [[nodiscard]] bool HasEnded() const { return application_.Ended(); }

  void Act() {
    dialogs_.choices = {bytes_.Below(8) == 0 ? "cancel" : bytes_.OneOf(kUserPaths), "cancel"};
    dialogs_.answers = {bytes_.OneOf(kUserAnswers), bytes_.OneOf(kUserAnswers)};
    if (Form* const modal = ModalForm()) {
      UseTool(*modal);
    } else if (!application_.editor().Visible && bytes_.Below(8) == 0) {
      application_.ShowEditor();
    } else if (!application_.editor().Visible || bytes_.Below(3) == 0) {
      const std::vector<Form*> forms = application_.Forms();
      UseTool(*forms[bytes_.Below(forms.size())]);
    } else {
      UseEditor();
    }
    dialogs_.boxes.clear();
    dialogs_.requests.clear();
    if (bytes_.Below(32) == 31) ChangeTheDisk();
    RequireSound(application_.editor().Joystick);
    RequireSound(application_.editor().Macro);
  }

 private:
  void ChangeTheDisk() {
    const std::size_t room = bytes_.Below(256);
    if (room > 200) return program_.files().StopFailing();
    program_.files().FailAfter(room);
  }

  /// At once: undo makes a saved text another one, and it counts as saved all the same.
  void RequireSaved(const Document& document) {
    if (application_.workbench.notices.Of(document)) return;
    const std::string inFile = program_.files().Content(document.Path.Get()).value_or("");
    if (LooksLikeRtf(inFile) || WithPaneLineBreaks(inFile) == document.text.Characters()) return;
    std::abort();
  }

  void UseEditor() {
    Editor& editor = application_.editor();
    Pane& pane = bytes_.Below(2) ? editor.MacroText : editor.JoystickText;
    switch (bytes_.Below(9)) {
      case 0:
        driver_->Type(pane, bytes_.OneOf(kTexts));
        break;
      case 1:
        driver_->PressKey(pane, bytes_.OneOf(kKeys));
        break;
      case 2:
        Run(bytes_.Below(2) ? editor.popUps : editor.menus);
        break;
      case 3:
        driver_->Click(editor.Command1(static_cast<int>(bytes_.Below(Editor::kModifierButtons))));
        break;
      case 4:
        editor.TabStrip1.Select(static_cast<int>(bytes_.Below(2)) + 1);
        break;
      case 5:
        UseList(pane);
        break;
      case 6:
        SelectSome(pane, bytes_);
        break;
      case 7:
        for (Timer* timer : {&editor.Timer1, &editor.TimerBlinkLine}) {
          if (timer->Enabled) timer->Elapsed();
        }
        break;
      default:
        if (bytes_.Below(8) == 0) driver_->Close(editor);
    }
  }

  /// The one that was shown last; no other takes input.
  [[nodiscard]] Form* ModalForm() const {
    const std::vector<Form*> forms = application_.Forms();
    const auto modal = std::find_if(forms.rbegin(), forms.rend(),
                                    [](const Form* form) { return form->Visible && form->Modal; });
    return modal == forms.rend() ? nullptr : *modal;
  }

  void UseTool(Form& form) {
    if (!form.Visible || form.Children().empty()) return;
    if (&form != &application_.mum() && bytes_.Below(16) == 0) return driver_->Close(form);
    Component& part = *form.Children()[bytes_.Below(form.Children().size())];
    const auto* const control = dynamic_cast<const Control*>(&part);
    if (!control || (control->Visible && control->Enabled)) UsePart(part);
  }

  void UsePart(Component& part) {
    const auto pick = [&](int count) {
      const auto item = bytes_.Below(256);
      if (count > 0) driver_->Pick(part, static_cast<int>(item) % count);
    };
    if (auto* const timer = dynamic_cast<Timer*>(&part)) {
      if (timer->Enabled) timer->Elapsed();
    } else if (const auto* const combo = dynamic_cast<const ComboBox*>(&part)) {
      pick(combo->ListCount());
    } else if (const auto* const pages = dynamic_cast<const TabPages*>(&part)) {
      pick(pages->Count());
    } else if (const auto* const list = dynamic_cast<const ListBox*>(&part)) {
      if (bytes_.Below(3) == 0 && list->ListIndex >= 0) return void(driver_->DoubleClick(part));
      pick(list->ListCount());
    } else if (dynamic_cast<TextBox*>(&part) || dynamic_cast<Pane*>(&part)) {
      auto& box = dynamic_cast<Control&>(part);
      if (bytes_.Below(2)) return void(driver_->PressKey(box, bytes_.OneOf(kKeys)));
      driver_->Type(box, bytes_.OneOf(kTexts));
    } else if (part.Name() != "mnuFileExit" && part.Name() != "mnuMumFileExit") {
      driver_->Click(part);
    }
  }

  static constexpr const char* kTexts[] = {"a", " ", "BTN S1 ", "RAW (", ")", "/U", "Rem ", "Fire", "\xC9"};
  static constexpr const char* kKeys[] = {"Return", "Backspace", "Delete",   "Left",   "Right",     "Home",
                                          "End",    "Ctrl+Home", "Ctrl+End", "Ctrl+Z", "Ctrl+Z",    "Ctrl+Y",
                                          "Ctrl+Y", "Ctrl+H",    "Ctrl+L",   "Ctrl+B", "Shift+Left"};

  void Run(const Menus& menus) {
    const MenuEntry& entry = menus.Entries()[bytes_.Below(menus.Entries().size())];
    if (entry.item->Name() != "mnuFileExit") driver_->Click(*entry.item);
  }

  void UseList(Pane& pane) {
    Editor& editor = application_.editor();
    const int category = static_cast<int>(bytes_.Below(4));
    if (category < editor.Combo1.ListCount()) driver_->Pick(editor.Combo1, category);
    ListBox& list = editor.List1(static_cast<int>(bytes_.Below(editor.List1.Count())));
    const int item = static_cast<int>(bytes_.Below(4));
    if (item < list.ListCount()) driver_->Pick(list, item);
    switch (bytes_.Below(3)) {
      case 0:
        driver_->DoubleClick(list);
        break;
      case 1:
        driver_->RightClick(list);
        break;
      default:
        driver_->Drop(list, pane, CaretPlace(pane, bytes_.Below(256)));
    }
  }

  Bytes& bytes_;
  FuzzDialogs dialogs_;
  UnstartedProgram program_{"", {.dialogs = &dialogs_}};
  Application& application_ = program_.application;
  Connection written_ = application_.workbench.files.Written.Connect(
      [this](const Document& document, const Outcome<>& written) {
        if (written) RequireSaved(document);
      });
  std::unique_ptr<session::Driver> driver_ = session::MakeFormDriver(application_);
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Bytes bytes(data, size);
  User user(bytes);
  while (!bytes.Empty() && !user.HasEnded()) user.Act();
  return 0;
}
