// What a kneeboard says, as text for the golden files.
#pragma once

#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {

/// The list, and behind it the keys with what presses them.
inline std::string Printed(const Contents& contents) {
  std::string text = ListAsText(contents, ListOrder::ByControl);
  for (const KeyUse& key : contents.keys) {
    for (const KeyUse::Press& press : key.presses) {
      text.append("key ").append(key.key).append(" [").append(press.with).append("] ").append(press.words);
      text.append(" (").append(press.heading).append(")");
      for (const std::string& control : press.controls) text.append(" <").append(control).append(">");
      text.append("\n");
    }
  }
  return text.append("problems ").append(std::to_string(contents.problems)).append("\n");
}

}  // namespace tarvik::kneeboard
