// What a document's text does not show of the file that it was read from, so that saving brings it back.
#pragma once

#include <memory>
#include <string>

#include "text/Encoding.h"
#include "text/LineEnds.h"

namespace tarvik {

class Origin {
 public:
  /// No file, or one of the program's own making.
  Origin() = default;
  /// The bytes of a file.
  explicit Origin(const std::string& bytes);

  /// The file of before was read anew: a text that undo has brought back to what it was then is of that one.
  void Follow(const Origin& before, std::string textBefore, std::string textNow);

  /// What is written for a text.
  [[nodiscard]] std::string BytesFor(std::string_view text) const;

  /// The text is that of a file in another encoding, and nobody has said yet what is to become of it. That
  /// shows in the text: undo can take a conversion back, and a text that is brought back may be converted.
  [[nodiscard]] bool IsForeign(std::string_view text) const;
  [[nodiscard]] bool HasOtherEncoding() const { return encoding_ != Encoding::CodePage; }
  [[nodiscard]] std::string_view EncodingName() const { return NameOf(encoding_); }
  /// A foreign file is not written over but by its own bytes.
  [[nodiscard]] bool MayBeWritten(std::string_view text) const;
  /// The text, taken out of the encoding.
  [[nodiscard]] Converted InCodePage(std::string_view text) const;
  /// The user has chosen the text's bytes: they may take the place of the file's.
  void Accept() { isAccepted_ = true; }

 private:
  struct Former;

  /// This one, or the one before.
  [[nodiscard]] const Origin& Of(std::string_view text) const;
  [[nodiscard]] std::string OwnBytesFor(std::string_view text) const;

  std::shared_ptr<const Former> former_;
  LineEnds ends_;
  LineEnds convertedEnds_;  // of the text taken out of the encoding
  Encoding encoding_ = Encoding::CodePage;
  bool isAccepted_ = false;
  std::string foreign_;  // the bytes of a file in another encoding
};

}  // namespace tarvik
