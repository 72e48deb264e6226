#include "workbench/LoggedDesktop.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik {
namespace {

/// The desktop finds the program by the ending. One that is as long as a word may be a word of the user's.
std::string Kind(const std::string& path) {
  constexpr std::size_t kLongest = 4;
  const std::string name = path.substr(path.find_last_of("\\/") + 1);
  const std::size_t dot = name.rfind('.');
  const std::string ending = dot == std::string::npos ? "" : LowerCase(name.substr(dot + 1));
  const bool isTold = !ending.empty() && ending.size() <= kLongest &&
                      std::all_of(ending.begin(), ending.end(),
                                  [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); });
  return isTold ? "a file that ends in ." + ending : "a file";
}

}  // namespace

Outcome<> LoggedDesktop::Told(const std::string& what, Outcome<> outcome) {
  log_.Write(outcome ? "had the desktop open " + what
                     : "the desktop could not open " + what + ": " + InWords(outcome.failure()));
  return outcome;
}

Outcome<> LoggedDesktop::Open(const std::string& path) { return Told(Kind(path), desktop_.Open(path)); }

Outcome<> LoggedDesktop::ShowSystemInformation() {
  return Told("its system information", desktop_.ShowSystemInformation());
}

}  // namespace tarvik
