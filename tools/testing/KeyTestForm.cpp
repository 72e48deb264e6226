#include "tools/testing/KeyTestForm.h"

#include "language/KeyNames.h"
#include "text/CodePage.h"
#include "tools/testing/JoystickReading.h"

namespace tarvik {
namespace {

constexpr const char* kLineEnd = "\r\n";

constexpr int kShiftKey = 16;
constexpr int kCtrlKey = 17;
constexpr int kAltKey = 18;
/// Control characters below it are not logged.
constexpr int kFirstLogged = 19;

constexpr int kClearTimes[KeyTestForm::kClearTimes] = {200, 400, 600, 800, 1000};  // milliseconds

// Where the joystick is drawn, in twips.
constexpr float kPicture = 3000;
constexpr float kFrameTop = 90;     // of a frame's border, below its own top
constexpr float kFrameInside = 60;  // between a frame's border and its bar
constexpr float kBarTop = 120;
constexpr float kBar = 270;
constexpr float kFrame = 450;
constexpr float kGap = 120;
constexpr int kPointWidth = 5;  // pixels
constexpr Colour kLightGrey{0xE0E0E0};
constexpr Colour kGrey{0xC0C0C0};

constexpr MenuRow<KeyTestForm> kKeyTestMenus[] = {
    {0, "mnuClose", "Exit", "", &KeyTestForm::mnuClose_Click},
    {0, "mnuClear", "Clear"},
    {1, "mnuClearAll", "All", "", &KeyTestForm::mnuClearAll_Click},
    {1, "mnudivider1", "-"},
    {1, "mnuClear500", "After 200ms from key up", "", nullptr, 0, &KeyTestForm::mnuClear500_Click},
    {1, "mnuClear500", "After 400ms from key up", "", nullptr, 1, &KeyTestForm::mnuClear500_Click},
    {1, "mnuClear500", "After 600ms from key up", "", nullptr, 2, &KeyTestForm::mnuClear500_Click},
    {1, "mnuClear500", "After 800ms from key up", "", nullptr, 3, &KeyTestForm::mnuClear500_Click},
    {1, "mnuClear500", "After 1000ms from key up", "", nullptr, 4, &KeyTestForm::mnuClear500_Click},
};

/// A modifier key, its bit in the masks, and its lamp.
struct Modifier {
  int keyCode;
  int bit;
  ToggleLabel KeyTestForm::*lamp;
};

constexpr Modifier kModifiers[] = {
    {kShiftKey, shift::kShift, &KeyTestForm::LabelSHIFT},
    {kCtrlKey, shift::kCtrl, &KeyTestForm::LabelCTRL},
    {kAltKey, shift::kAlt, &KeyTestForm::LabelALT},
};

bool IsModifier(int keyCode) { return keyCode >= kShiftKey && keyCode <= kAltKey; }

void CaretToEnd(Pane& log) { log.SelStart = log.Content().size(); }

/// The text gets the colour of what stands before it.
void Append(Pane& log, const std::string& text) {
  CaretToEnd(log);
  const Colour colour = log.SelColor;
  log.ReplaceSelection(RichText(text + kLineEnd, colour));
  log.SelColor = colour;
}

void Append(Pane& log, const std::string& text, Colour colour) {
  CaretToEnd(log);
  log.SelColor = colour;
  Append(log, text);
}

std::string CodeInWords(int keyCode, const std::string& modifiers) {
  return "Keycode: " + TextOf(keyCode) + (modifiers.empty() ? "" : " + " + modifiers);
}

/// How long a bar is at `value` of the joystick's range.
int BarLength(int value, float longest) {
  return static_cast<int>(static_cast<double>(value) / kJoystickRange * static_cast<double>(longest));
}

}  // namespace

KeyTestForm::KeyTestForm(Workbench& bench, Shell& shell)
    : ToolForm("KeyTestForm", bench, shell),
      menus(*this, kKeyTestMenus),
      RTFKeysText(*this, "RTFKeysText", bench.platform.files),
      RTFKeysDownText(*this, "RTFKeysDownText", bench.platform.files),
      RTFKeysUpText(*this, "RTFKeysUpText", bench.platform.files) {
  Caption = "Tarvik Keys and Joystick detector";
  OwnsKeys = true;
  for (Pane* const log : {&RTFKeysText, &RTFKeysDownText, &RTFKeysUpText}) log->Locked = true;
  for (int i = 0; i < kButtons; ++i) JoyButtonAnalogue(i).Caption = TextOf(i + 1);
  LabelTHR.ToolTipText = "Throttle";
  LabelRDDR.ToolTipText = "Rudder";
  status.BackColor = ToggleLabel::kOff;
  PictureJoystick.Move(0, kFrameTop, kPicture, kPicture);
  PictureJoystick.DrawWidth = kPointWidth;
  FrameTHR.Move(kPicture + kGap, 0, kFrame, kPicture + kFrameTop);
  LabelTHR.Move(kFrameInside, 0, kFrame - 2 * kFrameInside, 0);
  FrameRDDR.Move(0, kPicture + kGap, kPicture, kFrame);
  Timer1.Interval = 500;
  JoystickTimer.Interval = 100;
  AttachHandlers();
}

void KeyTestForm::AttachHandlers() {
  RTFKeysText.LostFocus = [this] { RTFKeysText_LostFocus(); };
  Command1.Click = [this] { Command1_Click(); };
  Timer1.Elapsed = [this] { Timer1_Timer(); };
  JoystickTimer.Elapsed = [this] { JoystickTimer_Timer(); };
  Form::Load = [this] { Form_Load(); };
  Form::Unload = [this] { Form_Unload(); };
  Form::KeyDown = [this](Key& key) { Form_KeyDown(key); };
  Form::KeyPress = [this](int& character) { Form_KeyPress(character); };
  Form::KeyUp = [this](Key& key) { Form_KeyUp(key); };
}

void KeyTestForm::Form_Load() {
  const Settings& settings = bench_.settings;
  Topmost = true;
  ClearTextBoxes();
  RTFKeysDownText.BackColor = settings.BackgroundColour;
  RTFKeysUpText.BackColor = settings.MacroBackgroundColour;
  KeyColour = settings.MiscellaneousColour;
  ShowNumLock();
  if (bench_.platform.keyboard.GetKeyState(kCapsLock) == 1) TurnOffCapsLOCK();
  RTFKeysText.SetFocus();
  JoystickStuff();
}

// Keys.

void KeyTestForm::Form_KeyDown(Key& key) {
  if (SkipKeyDown == 1) {
    SkipKeyDown = 0;
    return;
  }
  SkipKeyPress = 0;
  if (ClearPending == 1) ClearTextBoxes();
  Timer1.Enabled = false;
  ClearPending = 0;
  // With the lock left on, the letters that follow would be logged as capitals.
  if (key.code == kCapsLock) TurnOffCapsLOCK();
  NextColour();
  CaretToEnd(RTFKeysUpText);
  RTFKeysUpText.SelColor = KeyColour;
  const std::string modifiers = GetKeyDownEvent(key.code, key.shift);
  Append(RTFKeysDownText, CodeInWords(key.code, modifiers), KeyColour);
  KeyName = WhichKey(key.code, key.shift);
  key = {};
  if (KeyName.Get().empty()) return;
  Append(RTFKeysText, KeyName, KeyColour);
  SkipKeyPress = 1;
}

/// Each event stands out from its neighbours, and a press and its release look alike.
void KeyTestForm::NextColour() {
  const Settings& settings = bench_.settings;
  const Colour colours[] = {settings.BTNColour, settings.SlashColour, settings.RAWColour,
                            settings.MiscellaneousColour, settings.RemStatements};
  KeyColour = colours[ColourStep];
  ColourStep = (ColourStep + 1) % static_cast<int>(std::size(colours));
}

void KeyTestForm::Form_KeyPress(int& character) {
  if (SkipKeyPress == 1) {
    SkipKeyPress = 0;
  } else if (character >= kFirstLogged) {
    Append(RTFKeysText, std::string(" ") + static_cast<char>(character), KeyColour);
  } else {
    character = 0;
  }
}

void KeyTestForm::Form_KeyUp(const Key& key) {
  if (SkipKeyUp == 1) {
    SkipKeyUp = 0;
    return;
  }
  Timer1.Enabled = AutoClear == -1;
  ClearPending = 0;
  const std::string modifiers = GetKeyUpEvent(key.code, key.shift);
  Append(RTFKeysUpText, CodeInWords(key.code, modifiers));
}

std::string KeyTestForm::WhichKey(int keyCode, int shift) {
  if (keyCode == kCtrlKey || keyCode == kAltKey) {
    SkipKeyPress = 1;
    return {};
  }
  const std::string prefix = kModifierWords[shift].before;
  const std::string name = tarvik::KeyName(keyCode);
  if (!name.empty()) return " " + prefix + name;
  if (shift < shift::kCtrl) return {};
  if (IsModifier(keyCode)) {
    SkipKeyPress = 1;
    return {};
  }
  return " " + prefix + ToLower(static_cast<char>(keyCode));
}

std::string KeyTestForm::GetKeyDownEvent(int /*keyCode*/, int shift) {
  for (const Modifier& each : kModifiers) {
    if (shift & each.bit) (this->*each.lamp).BackColor = ToggleLabel::kOn;
  }
  return kModifierWords[shift].alone;
}

std::string KeyTestForm::GetKeyUpEvent(int keyCode, int shift) {
  for (const Modifier& each : kModifiers) {
    if (keyCode == each.keyCode) (this->*each.lamp).BackColor = ToggleLabel::kOff;
  }
  ShowNumLock();
  return kModifierWords[shift].alone;
}

void KeyTestForm::ShowNumLock() {
  const std::optional<int> state = bench_.platform.keyboard.GetKeyState(kNumLock);
  LabelNUMLOCK.Visible = state.has_value();
  LabelNUMLOCK.Turn(state == 1);
}

// Emptying the logs.

void KeyTestForm::ClearTextBoxes() {
  for (Pane* const log : {&RTFKeysText, &RTFKeysDownText, &RTFKeysUpText}) log->Text = std::string();
}

void KeyTestForm::Timer1_Timer() {
  ClearPending = 1;
  Timer1.Enabled = false;
}

void KeyTestForm::mnuClear500_Click(int index) {
  const bool chosen = !menus("mnuClear500", index).Checked;
  for (int i = 0; i < kClearTimes; ++i) menus("mnuClear500", i).Checked = chosen && i == index;
  if (chosen) Timer1.Interval = tarvik::kClearTimes[index];
  AutoClear = chosen ? -1 : 0;
  Timer1.Enabled = false;
  ClearPending = 0;
}

// The joystick.

void KeyTestForm::JoystickStuff() {
  JoystickTimer.Enabled = false;
  const Outcome<JoyCaps> found = bench_.platform.joystick.GetDevCaps();
  const bool there = static_cast<bool>(found);
  LastError = found.failure().number;
  caps_ = there ? *found : JoyCaps();
  ShowWhetherThere(there);
  if (!there) bench_.platform.dialogs.Show(NoJoystickBox());
  PictureJoystick.Scale(0, kJoystickRange);
  FrameTHR.Height = PictureJoystick.Height + kFrameTop;
  FrameTHR.Top = PictureJoystick.Top - kFrameTop;
  LabelTHR.Height = FrameTHR.Height - kBarTop;
  LabelTHR.Top = FrameTHR.Top + kBarTop;
  FrameRDDR.Width = PictureJoystick.Width;
  FrameRDDR.Left = PictureJoystick.Left;
  LabelRDDR.Move(kFrameInside, kBarTop, (PictureJoystick.Width - 2 * kFrameInside) / 2, kBar);
  JoystickTimer.Enabled = there;
}

/// The bars and lamps are grey while there is no stick, and the status says why.
void KeyTestForm::ShowWhetherThere(bool there) {
  for (Label* const bar : {&LabelTHR, &LabelRDDR}) {
    bar->BackColor = there ? ToggleLabel::kOn : kGrey;
    bar->Enabled = there;
  }
  for (int i = 0; i < kButtons; ++i) JoyButtonAnalogue(i).Enabled = there;
  PictureJoystick.Enabled = there;
  PictureJoystick.BackColor = there ? kWhite : kLightGrey;
  if (!there) status.Caption = std::string("Status: No joystick detected");
}

void KeyTestForm::JoystickTimer_Timer() {
  const Outcome<JoyInfo> read = bench_.platform.joystick.GetPosEx();
  LastError = read.failure().number;
  if (!read && LastError != joystick::kUnplugged) {
    status.Caption = std::string("Status: Joystick error");
    return;
  }
  // A stick that is unplugged stays on show where it was.
  if (read) info_ = *read;
  status.Caption = std::string(read ? "Status: Joystick connected" : "Status: Joystick unplugged");
  ShowPoint();
  if (caps_.hasZ) ShowThrottle();
  if (caps_.hasR) ShowRudder();
  for (int i = 0; i < kButtons; ++i) JoyButtonAnalogue(i).Turn((info_.buttons & (1U << i)) != 0);
}

void KeyTestForm::ShowPoint() {
  const auto set = [this](int x, int y, Colour colour) {
    PictureJoystick.PSet(static_cast<float>(x), static_cast<float>(y), colour);
  };
  set(LastX, LastY, PictureJoystick.BackColor);
  set(info_.x, info_.y, PictureJoystick.ForeColor);
  LastX = info_.x;
  LastY = info_.y;
}

void KeyTestForm::ShowThrottle() {
  const int length = BarLength(kJoystickRange - info_.z, PictureJoystick.Height - kFrameInside);
  if (length == LastThrottle) return;
  LabelTHR.Height = static_cast<float>(length);
  LabelTHR.Top = FrameTHR.Height - static_cast<float>(length) - kFrameInside;
  LastThrottle = length;
}

void KeyTestForm::ShowRudder() {
  const int length = BarLength(info_.r, PictureJoystick.Width - 2 * kFrameInside);
  if (length == LastRudder) return;
  LabelRDDR.Move(kFrameInside, kBarTop, static_cast<float>(length), kBar);
  LastRudder = length;
}

}  // namespace tarvik
