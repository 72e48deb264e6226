// Both colourings against the passes made literally.
#include <array>
#include <cstdlib>

#include "language/SyntaxColouring.h"
#include "support/LiteralPasses.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarvik;
  constexpr std::array<Colour, kColourClasses> kNumbers = {Colour{0}, Colour{1}, Colour{2},
                                                           Colour{3}, Colour{4}, Colour{5}};
  const std::string text = WithPaneLineBreaks({reinterpret_cast<const char*>(data), size});
  for (const auto passes : {JoystickPasses(), MacroPasses()}) {
    SyntaxColouring colouring(text, passes);
    colouring.Run();
    if (colouring.Colours(kNumbers) != LiteralPasses().Paint(text, passes)) std::abort();
  }
  return 0;
}
