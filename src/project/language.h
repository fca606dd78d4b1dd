// The languages that a project can be written in: what every room may ask about one. How its program is spelled is the
// generator's own.
#pragma once

enum LanguageNumber : int { LANGUAGE_F77 = 77, LANGUAGE_F90 = 90, LANGUAGE_C = 99 }; // as ProjectState keeps them

enum class LanguageFamily { Fortran, C }; // which compilers take it

struct LanguageFacts {
    LanguageNumber number;
    LanguageFamily family;
    bool caseMatters;       // names that differ only in case are two names
    bool shortNames;        // of the library's routines: its help is in files of their own
    const char* word;       // in the head of a project file, in titles and in what a project is called
    const char* mark;       // by which the head of a project file is known; empty for the language that needs none
    const char* extension;  // of a source
    const char* filter;     // of a source, for a file dialogue
    const char* comment;    // at the start of a comment
    int syntaxLanguage;     // for owSetSyntaxHighlighting
    unsigned int nameLimit; // letters of a name; 0 for as many as one likes
};

// Of a number that no language has, the facts of C.
const LanguageFacts& languageFacts(int number);
const LanguageFacts& languageOfProject(); // of the open project

// The language that the head of a project file tells.
LanguageNumber languageOfHead(const char* head);

// The language of new projects for the compilers of a family.
LanguageNumber firstLanguage(LanguageFamily family);
