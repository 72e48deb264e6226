#include "workbench/Origin.h"

#include "text/RichText.h"
#include "text/Rtf.h"

namespace tarvik {

/// Of RTF a pane shows the text alone.
Origin::Origin(const std::string& bytes) {
  if (RtfInFile(bytes)) return;
  ends_ = LineEnds(bytes);
  encoding_ = EncodingOf(bytes);
  if (IsForeign()) foreign_ = bytes;
}

/// When a conversion is undone the text is that of the file again, though the line ends are not.
std::string Origin::BytesFor(std::string_view text) const {
  if (!foreign_.empty() && WithPaneLineBreaks(foreign_) == text) return foreign_;
  return ends_.PutBackInto(text);
}

Converted Origin::Convert(std::string_view text) {
  Converted converted = InCodePage(BytesFor(text), foreign_, encoding_);
  ends_ = LineEnds(converted.text);
  converted.text = WithPaneLineBreaks(converted.text);
  Accept();
  return converted;
}

}  // namespace tarvik
