// Windows metafiles as pictures. The toolkit does not know them; libwmf does.
#pragma once

#include <QImage>
#include <string_view>

namespace tarvik::screen {

/// The drawing of a metafile on white, `side` pixels long at its longer side. None of what is no metafile or
/// a broken one, and where the program was built without libwmf.
[[nodiscard]] QImage MetafileIn(std::string_view bytes, int side);

}  // namespace tarvik::screen
