#include "project/language.h"

#include "project/records.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr LanguageFacts LANGUAGES[] = {
    {.number = LANGUAGE_F90,
     .family = LanguageFamily::Fortran,
     .caseMatters = false,
     .shortNames = false,
     .word = "F90",
     .mark = "-F90",
     .extension = ".f90",
     .filter = "*.f90|Fortran source files (*.f90)|*.*|All files (*.*)",
     .comment = "!",
     .syntaxLanguage = 2,
     .nameLimit = 63},
    {.number = LANGUAGE_F77,
     .family = LanguageFamily::Fortran,
     .caseMatters = false,
     .shortNames = true,
     .word = "F77",
     .mark = "-F77",
     .extension = ".for",
     .filter = "*.for|Fortran source files (*.for)|*.*|All files (*.*)",
     .comment = "C",
     .syntaxLanguage = 1,
     .nameLimit = 63},
    {.number = LANGUAGE_C,
     .family = LanguageFamily::C,
     .caseMatters = true,
     .shortNames = false,
     .word = "C",
     .mark = "", // the last row: what no other mark tells is C
     .extension = ".cpp",
     .filter = "*.cpp|C++ source files (*.cpp)|*.c|C source files (*.c)|*.*|All files (*.*)",
     .comment = "//",
     .syntaxLanguage = 3,
     .nameLimit = 0},
};

} // namespace

const LanguageFacts& languageFacts(int number) {
    const auto* row = std::ranges::find(LANGUAGES, number, [](const LanguageFacts& facts) { return facts.number + 0; });
    return row == std::end(LANGUAGES) ? LANGUAGES[std::size(LANGUAGES) - 1] : *row;
}

const LanguageFacts& languageOfProject() { return languageFacts(project.projectLanguage); }

LanguageNumber languageOfHead(const char* head) {
    return std::ranges::find_if(LANGUAGES, [&](const LanguageFacts& facts) { return std::strstr(head, facts.mark); })
        ->number;
}

LanguageNumber firstLanguage(LanguageFamily family) {
    return std::ranges::find(LANGUAGES, family, &LanguageFacts::family)->number;
}
