#include "workbench/Origin.h"

#include "text/Differences.h"
#include "text/RichText.h"
#include "text/Rtf.h"

namespace tarvik {

struct Origin::Former {
  Origin origin;
  std::string text;     // as it was then
  std::string textNow;  // as it was read anew
};

/// Of RTF a pane shows the text alone.
Origin::Origin(const std::string& bytes) {
  if (RtfInFile(bytes)) return;
  ends_ = LineEnds(bytes);
  encoding_ = EncodingOf(bytes);
  if (!HasOtherEncoding()) return;
  foreign_ = bytes;
  convertedEnds_ = LineEnds(tarvik::InCodePage(bytes, bytes, encoding_).text);
}

void Origin::Follow(const Origin& before, std::string textBefore, std::string textNow) {
  Former former{before, std::move(textBefore), std::move(textNow)};
  former.origin.former_.reset();  // one is enough: each holds two texts
  former_ = std::make_shared<const Former>(std::move(former));
}

/// Whichever text it is closer to.
const Origin& Origin::Of(std::string_view text) const {
  if (!former_) return *this;
  const auto differs = [text](const std::string& from) { return LinesOf(DifferencesOf(from, text)); };
  return differs(former_->text) < differs(former_->textNow) ? former_->origin : *this;
}

bool Origin::IsForeign(std::string_view text) const {
  const Origin& own = Of(text);
  return !own.isAccepted_ && IsStillIn(own.encoding_, text);
}

std::string Origin::BytesFor(std::string_view text) const { return Of(text).OwnBytesFor(text); }

std::string Origin::OwnBytesFor(std::string_view text) const {
  const bool isConverted = HasOtherEncoding() && !IsStillIn(encoding_, text);
  return (isConverted ? convertedEnds_ : ends_).PutBackInto(text);
}

bool Origin::MayBeWritten(std::string_view text) const {
  return !IsForeign(text) || BytesFor(text) == Of(text).foreign_;
}

Converted Origin::InCodePage(std::string_view text) const {
  const Origin& own = Of(text);
  Converted converted = tarvik::InCodePage(own.OwnBytesFor(text), own.foreign_, own.encoding_);
  converted.text = WithPaneLineBreaks(converted.text);
  return converted;
}

}  // namespace tarvik
