// How a failing expectation shows what statements mean, what there are for names, and what is wrong.
#pragma once

#include "language/Names.h"
#include "language/Problems.h"
#include "support/TextPrinters.h"

namespace tarvik::model {

void PrintTo(TokenKind kind, std::ostream* out);
void PrintTo(const Token& token, std::ostream* out);
void PrintTo(ItemKind kind, std::ostream* out);
void PrintTo(const Item& item, std::ostream* out);
void PrintTo(const RawCode& code, std::ostream* out);
void PrintTo(const Sequence& sequence, std::ostream* out);
void PrintTo(const Number& number, std::ostream* out);
void PrintTo(const Axis& axis, std::ostream* out);
void PrintTo(const Condition& condition, std::ostream* out);
void PrintTo(const JoystickStatement& statement, std::ostream* out);
void PrintTo(const MacroStatement& statement, std::ostream* out);
void PrintTo(FileKind kind, std::ostream* out);
void PrintTo(const Hardware& hardware, std::ostream* out);
void PrintTo(const Mention& mention, std::ostream* out);
void PrintTo(const MacroNames& names, std::ostream* out);
void PrintTo(const FlagNames& names, std::ostream* out);
void PrintTo(const ControlNames& names, std::ostream* out);
void PrintTo(Severity severity, std::ostream* out);
void PrintTo(const Problem& problem, std::ostream* out);
void PrintTo(const LineAndColumn& position, std::ostream* out);

}  // namespace tarvik::model
