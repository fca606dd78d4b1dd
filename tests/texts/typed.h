// What a user may type into a text, and what a program is to make of it.
#pragma once

#include <random>
#include <string>
#include <vector>

// Line ends are carriage return and line feed, as they are stored.
std::vector<std::string> hostileTexts();
std::string randomText(std::mt19937& random, std::size_t limit); // at most `limit` bytes

// A mark in the middle, where it parts no letters, escapes or pairs, so that no two texts of a program are equal.
std::string marked(const std::string& text, int number, std::size_t limit);
std::string cutBetweenLetters(std::string text, std::size_t limit);

// Single backslashes in place of pairs: a pair stays one in the entries and labels of C and then leads into an escape.
std::string withoutPairs(std::string text);

// The text that a program holds: bars for line ends; in C what its escapes mean, up to a null character. `field`: of an
// entry or label, where the backslashes of C mean themselves.
std::string held(int language, const std::string& typed, bool field);
