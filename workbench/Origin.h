// What a document's text does not show of the file that it was read from, so that saving brings it back.
#pragma once

#include "text/Encoding.h"
#include "text/LineEnds.h"

namespace tarvik {

class Origin {
 public:
  /// No file, or one of the program's own making.
  Origin() = default;
  /// The bytes of a file that a pane shows as they are.
  explicit Origin(const std::string& bytes);

  /// What is written for a text.
  [[nodiscard]] std::string BytesFor(std::string_view text) const;

  /// The file is in another encoding, and nobody has said yet what is to become of it.
  [[nodiscard]] bool IsForeign() const { return encoding_ != Encoding::CodePage; }
  [[nodiscard]] std::string_view EncodingName() const { return NameOf(encoding_); }
  /// A foreign file is not written over but by its own bytes.
  [[nodiscard]] bool MayBecome(std::string_view bytes) const { return !IsForeign() || bytes == foreign_; }
  /// The user has chosen that the text is taken out of its encoding: this is the document's text now.
  Converted Convert(std::string_view text);
  /// The user has chosen the text's bytes: they may take the place of the file's.
  void Accept() { encoding_ = Encoding::CodePage; }

 private:
  LineEnds ends_;
  Encoding encoding_ = Encoding::CodePage;
  std::string foreign_;  // the bytes of a file in another encoding, also when the user has chosen
};

}  // namespace tarvik
