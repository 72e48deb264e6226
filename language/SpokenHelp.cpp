#include <algorithm>

#include "language/Spoken.h"

namespace tarvik::model {
namespace {

struct WordHelp {
  std::string_view word;
  std::string_view sentence;
};

// clang-format off
constexpr WordHelp kHelp[] = {
    {"BTN", "BTN says what a button, a place of a hat or a flag sends."},
    {"RKR", "RKR says what a place of the WCS rocker sends: UP, MD in the middle, or DN."},
    {"DEF", "DEF says when a flag is on, from controls and other flags."},
    {"THR", "THR makes the throttle send keys: a type, two numbers of steps, and the keys."},
    {"RNG", "RNG makes the range rotary send keys: a type, a number of steps, and the keys."},
    {"ANT", "ANT makes the antenna rotary send keys: a type, a number of steps, and the keys."},
    {"JSX", "JSX makes the stick's X axis send keys: a type, a number of steps but for type 3, and the keys."},
    {"JSY", "JSY makes the stick's Y axis send keys: a type, a number of steps but for type 3, and the keys."},
    {"RDDR", "RDDR makes the rudder send keys: a type, a number of steps but for type 3, and the keys."},
    {"USE", "USE says what is attached, one statement for each thing."},
    {"MDEF", "MDEF names the macro file, without its ending."},
    {"RATE", "RATE says how quickly the stick sends its keys."},
    {"NULLCHR", "NULLCHR says which sign stands for no key."},
    {"PortB1", "PortB1 says which control presses the first button of the game port."},
    {"PortB2", "PortB2 says which control presses the second button of the game port."},
    {"PortB3", "PortB3 says which control presses the third button of the game port."},
    {"PortB4", "PortB4 says which control presses the fourth button of the game port."},
    {"IS", "IS stands between a button of the game port and the control that presses it."},
    {"SWAPTG", "SWAPTG exchanges the two stages of the trigger."},
    {"@digitalthrottle", "@digitalthrottle makes the throttle send what the macro file has under this name."},
    {"/U", "/U: what follows counts while the dogfight switch is up."},
    {"/M", "/M: what follows counts while the dogfight switch is in the middle."},
    {"/D", "/D: what follows counts while the dogfight switch is down."},
    {"/I", "/I: what follows counts while S3 is held in."},
    {"/O", "/O: what follows counts while S3 is out."},
    {"/P", "/P: what follows is sent once when the control is pressed."},
    {"/R", "/R: what follows is sent once when the control is released."},
    {"/T", "/T: each press sends the next of the parts behind /T, and after the last the first again."},
    {"/H", "/H: the key goes down with the control and up with it."},
    {"/N", "/N: what follows is sent once, without repeating."},
    {"/A", "/A forces an axis, or the hat that stands for one, to be analogue."},
    {"/F", "/F: what follows is repeated with all its parts while the control is held."},
    {"/Q", "/Q: what follows repeats at once, without the wait before the first time."},
    {"SHF", "SHF holds Shift with the key that follows."},
    {"CTL", "CTL holds Ctrl with the key that follows."},
    {"ALT", "ALT holds Alt with the key that follows."},
    {"RAW", "RAW (...) sends the codes that a keyboard would send, each as # and two hexadecimal digits."},
    {"DLY", "DLY(n) waits n thousandths of a second."},
    {"RPT", "RPT(n) sends what follows n times."},
    {"F22RST", "F22RST resets an F-22 Pro."},
    {"AND", "AND: both what stands before and what stands behind it must be on."},
    {"OR", "OR: what stands before or what stands behind it must be on."},
    {"NOT", "NOT: what stands behind it must be off."},
    {"PULSE", "PULSE(on off) is on and off for so many thousandths of a second, over and over."},
    {"DELAY", "DELAY(n) is on when n thousandths of a second have passed."},
    {"CMPLT", "CMPLT(axis n) is on while the axis stands below n per cent of its way."},
    {"CMPGT", "CMPGT(axis n) is on while the axis stands above n per cent of its way."},
    {"TQS", "USE TQS: the throttle is a TQS."},
    {"WCS", "USE WCS: the throttle is a WCS."},
    {"NOTHR", "USE NOTHR: there is no throttle."},
    {"RCS", "USE RCS: the rudders are an RCS."},
    {"NORDDR", "USE NORDDR: there are no rudders."},
    {"NOMOUSE", "USE NOMOUSE: there is no mouse."},
    {"FCLK", "USE FCLK: the frame clock is used."},
    {"MTYPE", "USE MTYPE says what the throttle's mouse buttons are: a letter for the kind of mouse and a number."},
};
// clang-format on

}  // namespace

std::string_view HelpOf(std::string_view word) {
  const WordHelp* row =
      std::ranges::find_if(kHelp, [word](const WordHelp& each) { return SameWord(each.word, word); });
  return row == std::end(kHelp) ? std::string_view{} : row->sentence;
}

}  // namespace tarvik::model
