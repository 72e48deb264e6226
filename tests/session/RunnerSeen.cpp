// The runner: what is seen.
#include <algorithm>

#include "play/Positions.h"
#include "session/RunnerParts.h"
#include "tools/help/HelpFile.h"

namespace tarvik::session {

// What is seen.

void Runner::ExpectClipboard(const Line& line) { Compare(Wanted(line, 2), outside_.clipboard.Text().text); }

/// expect help "FILE TOPIC", in the order they were asked for
void Runner::ExpectHelp(const Line& line) {
  if (outside_.help.shown.empty()) throw Stop{"no help was asked for"};
  const std::string shown = outside_.help.shown.front();
  Compare(Word(line, 2), shown);
  outside_.help.shown.pop_front();
  const std::string asked = shown.substr(shown.find(' ') + 1);
  const HelpFile file(files_.Content(std::string(kFolder) + "\\tarvik.hlp").value_or(""));
  const bool number = asked.find_first_not_of("0123456789") == std::string::npos;
  if (number ? !file.WithContext(std::stoi(asked)) : !file.WithKeyword(asked))
    throw Stop{"no topic is about that"};
}

/// expect opened PATH, in the order in which the desktop was asked to open them
void Runner::ExpectOpened(const Line& line) {
  if (outside_.desktop.opened.empty()) throw Stop{"nothing was opened"};
  Compare(Word(line, 2), outside_.desktop.opened.front());
  outside_.desktop.opened.pop_front();
}

/// expect run "COMMAND LINE" [FOLDER [waited|normal|maximised]], in the order in which they were started
void Runner::ExpectRun(const Line& line) {
  if (outside_.programs.started.empty()) throw Stop{"nothing was started"};
  const ProgramStart run = outside_.programs.started.front();
  outside_.programs.started.pop_front();
  const std::string how = run.style == WindowStyle::Maximised ? "maximised"
                          : run.waited                        ? "waited"
                                                              : "normal";
  Compare(Word(line, 2), run.commandLine);
  if (line.words.size() > 3) Compare(line.words[3], run.folder);
  if (line.words.size() > 4) Compare(line.words[4], how);
}

/// expect popup NAME: the pop-up menu that came last
void Runner::ExpectPopUp(const Line& line) { Compare(Word(line, 2), popUp_); }

/// expect point PICTURE X Y COLOUR: what is drawn there, in the picture's units
void Runner::ExpectPoint(const Line& line) {
  auto* const picture = FindAs<PlotBox>(Word(line, 2));
  Compare(Word(line, 5),
          TextOf(driver_->ColourAt(*picture, std::stof(Word(line, 3)), std::stof(Word(line, 4)))));
}

/// expect sent "a down, a up": all that was really sent since last asked.
void Runner::ExpectSent(const Line& line) {
  std::string found;
  for (const auto& [position, down] : std::exchange(outside_.keys.sent, {})) {
    found.append(found.empty() ? "" : ", ").append(play::NameAt(position)).append(down ? " down" : " up");
  }
  Compare(Word(line, 2), found);
}

/// Nor is a key down.
void Runner::ExpectNothingSent(const Line&) {
  if (!outside_.keys.sent.empty()) Fail("keys were sent");
  if (!outside_.keys.down.empty()) Fail("a key is down");
}

/// expect lock caps|num NUMBER
void Runner::ExpectLock(const Line& line) {
  const int code = Word(line, 2) == "caps" ? kCapsLock : kNumLock;
  Compare(Word(line, 3), TextOf(outside_.keyboard.GetKeyState(code).value_or(-1)));
}

void Runner::ExpectFocus(const Line& line) {
  if (!driver_->HasFocus(*FindAs<Control>(Word(line, 2)))) Fail("it hasn't the focus");
}

/// expect form NAME: it is loaded and on show
void Runner::ExpectForm(const Line& line) {
  const Form* const form = application_->FindForm(Word(line, 2));
  if (!form || !form->Visible) Fail("it isn't on show");
}

void Runner::ExpectProperty(const Line& line) {
  const Found found = FindProperty(line.words[1]);
  Compare(Wanted(line, 2), driver_->Read(found.component, found.property));
}

/// expect CAPTION in FORM PROPERTY TEXT
void Runner::ExpectPropertyOf(const Line& line) {
  const Component& component = *FindByCaption(Word(line, kFormOfCaption), Word(line, 1));
  const PropertyBase* const property = component.FindProperty(Word(line, kFormOfCaption + 1));
  if (!property) throw Stop{"it has no property " + Word(line, kFormOfCaption + 1)};
  Compare(Wanted(line, kFormOfCaption + 2), driver_->Read(component, *property));
}

void Runner::ExpectValue(const Line& line) {
  const PropertyBase* const property = application_->FindValue(Word(line, 2));
  if (!property) throw Stop{"there is no such value"};
  Compare(Wanted(line, 3), property->ToText());
}

/// expect box TITLE [TEXT [none|information|question|exclamation [No]]], the text also as a block below: No
/// is the button that Enter presses
void Runner::ExpectBox(const Line& line) {
  constexpr const char* kIcons[] = {"none", "information", "question", "exclamation"};
  if (outside_.dialogs.boxes.empty()) throw Stop{"there was no box"};
  const MessageBox box = outside_.dialogs.boxes.front();
  outside_.dialogs.boxes.pop_front();
  Compare(Word(line, 2), box.title);
  const std::size_t icon = line.hasBlock ? 3 : 4;
  if (line.hasBlock || line.words.size() > 3) Compare(Wanted(line, 3), box.text);
  if (line.words.size() > icon) Compare(line.words[icon], kIcons[static_cast<int>(box.icon)]);
  if (line.words.size() > icon + 1) Compare(line.words[icon + 1], box.preset == Answer::No ? "No" : "");
}

/// expect dialog title|filter|folder|fileName TEXT, of the last file dialog
void Runner::ExpectDialog(const Line& line) {
  if (outside_.dialogs.requests.empty()) throw Stop{"there was no dialog"};
  const FileRequest& request = outside_.dialogs.requests.back();
  const std::map<std::string, std::string> parts = {{"title", request.title},
                                                    {"filter", request.filter},
                                                    {"folder", request.folder},
                                                    {"fileName", request.fileName}};
  Compare(Word(line, 3), parts.at(Word(line, 2)));
}

void Runner::ExpectFile(const Line& line) {
  const auto content = files_.Content(Word(line, 2));
  if (!content) throw Stop{"there is no such file"};
  if (line.hasBlock || line.words.back() == "empty") Compare(FileContent(line), *content);
}

void Runner::ExpectBytes(const Line& line) {
  const auto content = files_.Content(Word(line, 2));
  if (!content) throw Stop{"there is no such file"};
  Compare(ToHex(FromHex(line.words, 3)), ToHex(*content));
}

/// expect same PATH PATH: two files of the same bytes
void Runner::ExpectSame(const Line& line) {
  const auto wanted = files_.Content(Word(line, 3));
  const auto found = files_.Content(Word(line, 2));
  if (!wanted || !found) throw Stop{"there is no such file"};
  Compare(*wanted, *found);
}

void Runner::ExpectNoFile(const Line& line) {
  if (files_.FileExists(Word(line, 3))) Fail("it is there");
}
void Runner::ExpectNoForm(const Line& line) {
  if (application_->FindForm(Word(line, 3))) Fail("it is loaded");
}
/// A member of one of the editor's arrays of controls or menus, of which the first is always there.
void Runner::ExpectNoList(const Line& line) {
  const std::string& name = Word(line, 3);
  if (Find("Editor")->Resolve(name)) Fail("it is there");
  if (!Find("Editor")->Resolve(name.substr(0, name.find('(')) + "(0)")) throw Stop{"there is no such list"};
}
/// All boxes that came have been expected.
void Runner::ExpectNoBox(const Line&) {
  if (!outside_.dialogs.boxes.empty()) Fail("there is \"" + outside_.dialogs.boxes.front().title + "\"");
}
void Runner::ExpectNoDialog(const Line&) {
  if (!outside_.dialogs.requests.empty()) Fail("there was one");
}
void Runner::ExpectNoPrinting(const Line&) {
  if (!outside_.printer.record.empty()) Fail(Joined(outside_.printer.record));
}

/// What was printed since the last time that this was asked.
void Runner::ExpectPrinted(const Line& line) {
  Compare(Joined(line.block), Joined(std::exchange(outside_.printer.record, {})));
}

void Runner::ExpectFolder(const Line& line) {
  if (!files_.FolderExists(Word(line, 2))) Fail("it isn't there");
}

void Runner::ExpectIni(const Line& line) {
  const ProfileFile profile(files_, std::string(kFolder) + "\\tarvik.ini");
  Compare(Word(line, 4), profile.GetString(Word(line, 2), Word(line, 3), "(missing)", 1000));
}

void Runner::ExpectColour(const Line& line) {
  const auto* pane = FindAs<Pane>(Word(line, 2));
  const std::size_t start = std::stoul(Word(line, 3));
  const std::size_t length = std::stoul(Word(line, 4));
  if (start + length > pane->Characters().size()) throw Stop{"the text ends before that"};
  for (std::size_t i = start; i < start + length; ++i) {
    const std::string found = TextOf(pane->Content().colours.At(i));
    if (found != Word(line, 5)) return Fail("position " + TextOf(i) + " has the colour " + found);
  }
}

std::string Runner::ColourLetters(const Pane& pane, std::size_t start, std::size_t length) const {
  const Settings& settings = application_->workbench.settings;
  const std::map<Colour, char> letters = {{settings.BTNColour, 'B'},     {settings.SlashColour, 'S'},
                                          {settings.RAWColour, 'R'},     {settings.MiscellaneousColour, 'M'},
                                          {settings.RemStatements, 'C'}, {kBlack, '.'}};
  std::string result;
  for (std::size_t i = start; i < start + length; ++i) {
    const auto letter = letters.find(pane.Content().colours.At(i));
    result += letter == letters.end() ? '?' : letter->second;
  }
  return result;
}

/// Pairs of lines: a line of the text, which is looked for from the place of the last one on, and its
/// letters.
void Runner::ExpectColours(const Line& line) {
  const auto* pane = FindAs<Pane>(Word(line, 2));
  const std::string_view text = pane->Characters();
  std::size_t from = 0;
  if (line.block.size() % 2 != 0) throw Stop{"a line has no letters below it"};
  for (std::size_t i = 0; i + 1 < line.block.size(); i += 2) {
    const std::string& wanted = line.block[i];
    std::size_t at = text.find(wanted, from);
    while (at != std::string_view::npos && at > 0 && text[at - 1] != '\n') at = text.find(wanted, at + 1);
    if (at == std::string_view::npos) throw Stop{"there is no line " + wanted};
    Compare(wanted + "\n              " + line.block[i + 1],
            wanted + "\n              " + ColourLetters(*pane, at, line.block[i + 1].size()));
    from = at + wanted.size();
  }
}

void Runner::ExpectEnded(const Line&) {
  if (application_) Fail("the program still runs");
}
void Runner::ExpectRunning(const Line&) {
  if (!application_) Fail("the program has ended");
}

}  // namespace tarvik::session
