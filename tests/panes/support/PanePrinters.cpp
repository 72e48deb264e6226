#include "support/PanePrinters.h"

namespace tarvik {

void PrintTo(const PaneEdit& edit, std::ostream* out) {
  *out << "at " << edit.position << " ";
  PrintTo(edit.removed, out);
  *out << " becomes ";
  PrintTo(edit.inserted, out);
}

}  // namespace tarvik
