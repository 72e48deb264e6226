#include <gtest/gtest.h>

#include "language/Tokens.h"

namespace tarvik::model {
namespace {

/// A letter for the kind of each token and its text in brackets.
std::string Kinds(std::string_view text, FirstEquals equals = FirstEquals::IsKey) {
  constexpr std::string_view kLetters = "_ECWNMR()L=";
  std::string kinds;
  for (const Token& token : TokensOf(text, equals)) {
    if (token.kind == TokenKind::Blank) continue;
    kinds += kLetters[static_cast<std::size_t>(token.kind)];
    if (token.kind != TokenKind::LineEnd) kinds += "[" + std::string(In(text, token.range)) + "]";
  }
  return kinds;
}

TEST(Tokens, TellWhatAStatementIsMadeOf) {
  EXPECT_EQ(Kinds("BTN S1 /U Gun 1\r\n"), "W[BTN]W[S1]M[/U]W[Gun]N[1]E");
  EXPECT_EQ(Kinds("DEF X1 NOT (S3 OR T6)"), "W[DEF]W[X1]L[NOT]([(]W[S3]L[OR]W[T6])[)]");
  EXPECT_EQ(Kinds("RAW (#12#5A)"), "W[RAW]([(]R[#12]R[#5A])[)]");
}

TEST(Tokens, ASlashIsAModifierOnlyBehindABlankAndBeforeALetterAlone) {
  EXPECT_EQ(Kinds("KP/ / /Up /u"), "W[KP/]W[/]W[/Up]M[/u]");
}

TEST(Tokens, ACommentRunsToTheEndOfItsLine) {
  EXPECT_EQ(Kinds("a rem b\nc~d\r\nRemark Rem---"), "W[a]C[rem b]EW[c]C[~d]EW[Remark]C[Rem---]");
}

TEST(Tokens, OnlyTheFirstEqualsSignEndsAName) {
  EXPECT_EQ(Kinds("Zoom==", FirstEquals::EndsName), "W[Zoom]=[=]W[=]");
  EXPECT_EQ(Kinds("BTN S1 ="), "W[BTN]W[S1]W[=]");
}

}  // namespace
}  // namespace tarvik::model
