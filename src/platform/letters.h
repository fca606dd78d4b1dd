// Letters of UTF-8 text, which may be several bytes long.
#pragma once

#include <string>
#include <string_view>

// Whether the byte goes on with the letter of the byte ahead of it.
inline bool continuesLetter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// The beginning of `text`, at most `bytes` long, without a part of a letter at its end.
inline std::string_view cutBetweenLetters(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes) return text;
    while (bytes > 0 && continuesLetter(text[bytes])) --bytes;
    return text.substr(0, bytes);
}

// The code of the first letter; 0 for no text and for what is no UTF-8.
char32_t firstLetter(std::string_view text);
std::string letterText(char32_t code); // empty for 0
