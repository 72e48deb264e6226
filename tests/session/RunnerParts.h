// What the parts of the runner share.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "session/Runner.h"

namespace tarvik::session {

inline constexpr const char* kFolder = "c:\\tarvik";

/// Thrown out of a command that cannot go on; its text is the failure.
struct Stop {
  std::string text;
};

inline std::string FromHex(const std::vector<std::string>& words, std::size_t first) {
  std::string bytes;
  for (std::size_t i = first; i < words.size(); ++i)
    bytes += static_cast<char>(std::stoi(words[i], nullptr, 16));
  return bytes;
}

inline std::string ToHex(std::string_view bytes) {
  std::ostringstream text;
  text << std::hex << std::uppercase;
  for (const char c : bytes) text << (static_cast<unsigned char>(c) < 16 ? "0" : "") << (c & 0xFF) << ' ';
  std::string result = text.str();
  if (!result.empty()) result.pop_back();
  return result;
}

inline std::string FileContent(const Line& line) {
  const bool open = line.words.back() == "open";  // the last line has no line end
  return line.block.empty() ? "" : Joined(line.block) + (open ? "" : "\r\n");
}

/// "click TEXT in FORM": the place of the form.
inline constexpr std::size_t kFormOfCaption = 3;

inline bool IsByCaption(const Line& line) {
  return line.words.size() > kFormOfCaption && line.words[2] == "in";
}

template <class T>
T* Runner::FindAs(const std::string& path) {
  auto* found = dynamic_cast<T*>(Find(path));
  if (!found) throw Stop{path + " is of another kind"};
  return found;
}

}  // namespace tarvik::session
