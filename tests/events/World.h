// A whole program on real widgets for a random user: a disk in memory with a few files, dialogs that are
// answered by chance, and the real help window.
#pragma once

#include "app/Program.h"
#include "events/Chance.h"
#include "screen/Screen.h"
#include "screen/services/HelpWindow.h"

namespace tarvik::events {

/// Boxes and dialogs answer at once. What is waited for goes on by the toolkit's events, as in the program.
class ChanceDialogs : public session::ScriptedDialogs {
 public:
  explicit ChanceDialogs(Chance& chance) : chance_(chance) {}

  Answer Show(const MessageBox& box) override;
  Outcome<std::string> AskForFile(const FileRequest& request) override;
  Outcome<Colour> AskForColour(Colour before) override;
  Outcome<FontChoice> AskForFont(const FontChoice& before, bool fixedPitch) override;
  Outcome<std::string> AskForHostFolder(const std::string& title, const std::string& folder) override;
  void WaitWhile(const std::function<bool()>& open) override;
  /// Something is being waited for.
  [[nodiscard]] bool Waits() const { return waits_ > 0; }

 private:
  Chance& chance_;
  int waits_ = 0;
};

class WindowHelp : public Help {
 public:
  /// `text` is that of the help file.
  explicit WindowHelp(const std::string& text);
  void ShowKeyword(const std::string& file, const std::string& keyword) override;
  void ShowContext(const std::string& file, int context) override;

 private:
  screen::HelpWindow window_;
};

class World {
 public:
  /// `data` is the folder of what lies beside the program.
  World(Chance& chance, const std::string& data);

  [[nodiscard]] Application& application() { return program_.application; }
  [[nodiscard]] const Editor& editor() const { return program_.editor(); }
  /// How many ways there are to a tool.
  [[nodiscard]] static std::size_t Ways();
  [[nodiscard]] static const char* NameOf(std::size_t way);
  /// Goes one of the ways, as far as the editor is there and the menu entry enabled.
  void Open(std::size_t way);
  /// The program waits for a modal form to close or a program to end.
  [[nodiscard]] bool Waits() const { return dialogs_.Waits(); }
  /// What passes by itself: a timer, the stick, the clipboard, a program that ends.
  void Happen();

 private:
  void PutFiles(const std::string& data);

  Chance& chance_;
  ChanceDialogs dialogs_;
  WindowHelp help_;
  UnstartedProgram program_;
  screen::Screen screen_;
};

}  // namespace tarvik::events
