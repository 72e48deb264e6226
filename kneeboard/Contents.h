// What a kneeboard says: the controls of each device with what they do in each layer, the scales of the axes,
// the flags, the mouse and the ports, and which keys are on the stick. A value, made from a pair of files
// alone, with all words in UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "language/FilePair.h"
#include "language/Names.h"

namespace tarvik::kneeboard {

/// Where the dogfight switch, the shift button S3, and the control itself are when something is sent. `Any`
/// is in all of its states.
enum class Dogfight : std::uint8_t { Any, Up, Middle, Down };
enum class Shift : std::uint8_t { Any, In, Out };
enum class Moment : std::uint8_t { Any, Press, Release };

struct Layer {
  Dogfight dogfight = Dogfight::Any;
  Shift shift = Shift::Any;

  friend bool operator==(const Layer&, const Layer&) = default;
  friend bool operator<(const Layer& one, const Layer& other) {
    return std::pair(one.dogfight, one.shift) < std::pair(other.dogfight, other.shift);
  }
};

/// What is sent, in words and in keys.
struct Deed {
  std::string
      words;  ///< "Gear toggle": from the remark or the name of the macro; the keys where neither tells
  std::string keys;     ///< "CTL g"; empty where nothing is pressed
  std::string heading;  ///< that the macro stands under; empty for none

  friend bool operator==(const Deed&, const Deed&) = default;
};

/// One thing that a control does, in one layer and at one moment.
struct Action {
  Layer layer = {};
  Moment moment = Moment::Any;
  std::uint8_t turn = 0;    ///< 1 for the first press, 2 for the second; 0 where there are no turns
  std::string manner = {};  ///< the letters of its modifiers /H /N /A /F /Q: "H"; empty for none
  Deed deed = {};
  model::Mention source = {};  ///< what sends it: its words, in the whole text of their file

  friend bool operator==(const Action&, const Action&) = default;
};

/// A button, a place of a hat, a place of the rocker.
struct Control {
  std::string name = {};   ///< "H1U", "S1", "RKR UP"
  std::string place = {};  ///< "trim hat up"
  std::string label = {};  ///< the id of its label in the drawing: "HAT-0"; empty for a control that has none
  char position = 0;       ///< of a hat or rocker: 'U', 'R', 'D', 'L' or 'M'; 0 for a button
  std::vector<Action> actions = {};

  friend bool operator==(const Control&, const Control&) = default;
};

/// A place on the way of an axis as a number to read.
[[nodiscard]] std::string Percent(double value);

/// A stretch of an axis, in percent of its way, and what is sent as the axis comes into it.
struct Step {
  double from = 0;
  double to = 0;
  Deed up = {};    ///< on the way up
  Deed down = {};  ///< on the way down
  bool isAfterburner = false;

  friend bool operator==(const Step&, const Step&) = default;
};

/// An axis, a rotary or the throttle, with its steps from the lowest up. Without steps it is as it comes:
/// "analog".
struct Scale {
  std::string name = {};   ///< "THR", "RNG", "JSX"
  std::string place = {};  ///< "throttle", "range rotary"
  std::string label = {};  ///< the id of its label in the drawing; empty where it has none
  Layer layer = {};
  std::string kind = {};  ///< what its type does, in a few words
  std::vector<Step> steps = {};
  model::Mention source = {};

  friend bool operator==(const Scale&, const Scale&) = default;
};

/// A device with its drawing.
struct DevicePage {
  std::string title = {};    ///< "F-22 Pro"
  std::string drawing = {};  ///< the name of its file, without its ending: "stick-flcs"
  std::vector<Control> controls =
      {};  ///< in the order of the drawing's labels; all that it has, also without actions
  std::vector<Scale> scales = {};

  friend bool operator==(const DevicePage&, const DevicePage&) = default;
};

/// A flag, in words.
struct FlagRow {
  std::string name = {};       ///< "X12"
  std::string condition = {};  ///< "S2 is pressed and the dogfight switch is up"
  std::vector<Action> sends = {};
  model::Mention source = {};

  friend bool operator==(const FlagRow&, const FlagRow&) = default;
};

/// A setting that holds for the whole file, or a port: "mouse" and "TQS pointer, Microsoft mouse".
struct Fact {
  std::string name = {};
  std::string words = {};

  friend bool operator==(const Fact&, const Fact&) = default;
};

/// A key of the keyboard, and the macros and controls that press it.
struct KeyUse {
  std::string key = {};  ///< as the language names it: "g", "F1", "KP7", without what is held with it
  struct Press {
    std::string with = {};  ///< what is held: "CTL", "SHF ALT"; empty for the key alone
    std::string words = {};
    std::string heading = {};
    std::vector<std::string> controls = {};  ///< that send it; empty for a macro that no control uses
    friend bool operator==(const Press&, const Press&) = default;
  };
  std::vector<Press> presses = {};

  friend bool operator==(const KeyUse&, const KeyUse&) = default;
};

/// From the title at the top of the files.
struct TitleBlock {
  std::string title = {};
  std::string game = {};
  std::string author = {};
  std::string date = {};

  friend bool operator==(const TitleBlock&, const TitleBlock&) = default;
};

struct Contents {
  TitleBlock title = {};
  std::vector<DevicePage> devices = {};
  std::vector<FlagRow> flags = {};
  std::vector<Fact> facts = {};
  std::vector<KeyUse> keys = {};           ///< in the order of the keyboard
  std::vector<std::string> headings = {};  ///< of the macro file, each once, in its order
  std::size_t problems = 0;                ///< errors and warnings of both files
  bool lacksMacros = false;                ///< names are sent, and none of them is a macro's

  friend bool operator==(const Contents&, const Contents&) = default;
};

/// All that a kneeboard of these two files says. Whatever the files are: what is not understood is left out,
/// and counts among the problems.
[[nodiscard]] Contents ContentsOf(const model::FilePair& pair, const model::NameIndex& names);

enum class ListOrder : std::uint8_t { ByControl, ByHeading };

/// The list of all actions as plain text in columns (control, layer, what, keys), with scales, flags and
/// facts behind it. Lines end in "\n".
[[nodiscard]] std::string ListAsText(const Contents& contents, ListOrder order);

}  // namespace tarvik::kneeboard
