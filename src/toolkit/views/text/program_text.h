// Text as programs pass it and text as Qt holds it. Programs pass bytes: UTF-8 as a rule, but any byte comes back as it
// went in. A byte that is no UTF-8 travels as a lone surrogate U+DC80 to U+DCFF.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace orba {

QString fromProgram(std::string_view bytes);
std::string toProgram(QStringView text);

// Appends one code point as UTF-8, or the raw byte that the surrogate stands for.
void appendUtf8(std::string& out, char32_t codePoint);

// Bytes of the UTF-8 sequence that starts at `at`, 1 where there is no valid one. At most 4.
int utf8SequenceLength(std::string_view bytes, std::size_t at);

// Every line end (CR LF, CR, LF) as LF.
std::string unifyLineEnds(std::string_view text);

} // namespace orba
