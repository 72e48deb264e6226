// The words of the two files as a person would say them: keys, controls, what is sent, conditions.
#pragma once

#include "language/Names.h"
#include "language/NullSigns.h"

namespace tarvik::model {

/// A key's name in words, as in "keypad +" or "Shift+A"; the word itself in quotation marks for what is no
/// key's name.
[[nodiscard]] std::string KeyInWords(std::string_view word);
/// A control or a flag in words, as in "H1 up" or "flag X1"; in quotation marks where there is no such
/// control.
[[nodiscard]] std::string ControlInWords(std::string_view name);
/// The keys that the codes of a RAW press and let go, as in "left Shift down", each by itself; a key that is
/// pressed and let go at once by its name alone. What is no code stands as it is, in quotation marks.
[[nodiscard]] std::vector<std::string> CodesInWords(std::string_view statement, const Item& item);
/// The names in kKeys of the keys that the codes of a RAW press, in their order.
[[nodiscard]] std::vector<std::string_view> KeysPressedBy(std::string_view statement, const Item& item);
/// "a", "a and b", "a, b and c".
[[nodiscard]] std::string AllOf(const std::vector<std::string>& things);
/// A macro's name as it is; in quotation marks where it has characters that cannot be shown.
[[nodiscard]] std::string NameInWords(std::string_view name);
/// With a capital letter at its beginning.
[[nodiscard]] std::string AsSentence(std::string words);
/// What a word of the language is for, in a sentence: a word that begins a statement, a modifier such as
/// "/P", SHF, RAW, AND, what can stand behind USE. Empty for any other word.
[[nodiscard]] std::string_view HelpOf(std::string_view word);

/// Tells what a sequence sends. It refers to the pair and the names, which must outlive it.
class Speaker {
 public:
  Speaker(const FilePair& pair, const NameIndex& names);

  /// A sentence without its full stop: "With S3 held, H3 up sends Flare (F); otherwise Chaff (C)". `lines`
  /// are those of the statement that the sequence is of.
  [[nodiscard]] std::string Sentence(std::string_view subject, std::string_view lines,
                                     const Sequence& sequence) const;
  /// The same without a subject, as it stands in brackets behind a macro's name.
  [[nodiscard]] std::string Brief(std::string_view lines, const Sequence& sequence) const;
  /// Each key that is sent at once; empty where there is more than keys.
  [[nodiscard]] std::vector<std::string> Keys(std::string_view lines, const Sequence& sequence) const;

  /// What a macro sends, in words, by its first definition; empty where there is none, or nothing behind it.
  [[nodiscard]] std::string KeysOf(const MacroNames& macro) const;
  /// The remarks beside a macro's first definition, without the sign that begins them.
  [[nodiscard]] std::string CommentOf(const MacroNames& macro) const;
  /// A condition in words: "S3 is pressed and flag X2 is off".
  [[nodiscard]] std::string InWords(std::string_view lines, const Condition& condition) const;
  [[nodiscard]] bool IsNullSign(std::string_view word) const { return nullSigns_.Hold(word); }
  [[nodiscard]] const FilePair& Pair() const { return pair_; }
  [[nodiscard]] const NameIndex& Names() const { return names_; }

 private:
  friend class Wording;

  const FilePair& pair_;
  const NameIndex& names_;
  bool hasMacros_ = false;
  NullSigns nullSigns_;
};

/// An axis statement as a sentence without its full stop.
[[nodiscard]] std::string AxisInWords(const Speaker& speaker, std::string_view lines, const Axis& axis);

}  // namespace tarvik::model
