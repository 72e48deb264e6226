#include "controls/Require.h"

#include <cstdio>
#include <cstdlib>

#include "controls/Component.h"

namespace tarvik {
namespace {

std::string PathOf(const Component& component) {
  const Component* const parent = component.Parent();
  return (parent ? PathOf(*parent) + "." : "") + component.FullName();
}

}  // namespace

void TellWrongLookup(const Component& place, std::string_view name, std::optional<int> index) {
  std::string text = PathOf(place) + "." + std::string(name);
  if (index) text += "(" + TextOf(*index) + ")";
  text += " is not there";
#ifndef NDEBUG
  std::fprintf(stderr, "%s\n", text.c_str());
  std::abort();
#else
  throw WrongLookup(text);
#endif
}

}  // namespace tarvik
