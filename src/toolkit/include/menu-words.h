/* Calls of the toolkit whose keywords are known at run time only: for the bindings of other languages, and for whoever
 * walks tables of keywords. Programs use menu-c.h. */
#ifndef MENU_WORDS_H
#define MENU_WORDS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Number of a routine by its name, -1 for none. */
int owRoutineNumber(const char* name);

/* Runs routine number `function`. `words` holds the fixed arguments in the order of menu-c.h, texts and records as
 * addresses, reals as the bits of doubles; then pairs of keyword and value; then 0. A keyword that the routine does not
 * have must not be there. The result is a handle, an integer, or 0. */
int64_t owCallWords(int function, const int64_t* words);

#ifdef __cplusplus
}
#endif

#endif
