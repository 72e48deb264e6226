#include "screen/services/Libraries.h"

#include <utf8proc.h>
#include <xxhash.h>

#include <QString>

#include "screen/services/SdlJoystick.h"
#include "screen/widgets/Conversions.h"

namespace tarvik::screen {

std::vector<Library> Libraries() {
  const std::string xxHash = std::to_string(XXH_VERSION_MAJOR) + "." + std::to_string(XXH_VERSION_MINOR) +
                             "." + std::to_string(XXH_VERSION_RELEASE);
  return {
      {"Qt", qVersion()},
      {"SDL", FromScreen(SdlJoystick::LibraryVersion())},
      {"utf8proc", utf8proc_version()},
      {"xxHash", xxHash},
      {"dtl", ""},
#ifdef TARVIK_WMF
      {"libwmf", ""},
#endif
#ifdef TARVIK_X11
      {"Xlib", ""},
#endif
  };
}

}  // namespace tarvik::screen
