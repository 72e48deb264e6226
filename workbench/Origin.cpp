#include "workbench/Origin.h"

#include "text/Rtf.h"

namespace tarvik {

/// Of RTF a pane shows the text alone.
Origin::Origin(const std::string& bytes) {
  if (RtfInFile(bytes)) return;
  ends_ = LineEnds(bytes);
  encoding_ = EncodingOf(bytes);
  if (IsForeign()) foreign_ = bytes;
}

void Origin::Accept() {
  encoding_ = Encoding::CodePage;
  foreign_.clear();
}

}  // namespace tarvik
