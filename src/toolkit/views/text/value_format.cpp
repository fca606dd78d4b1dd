#include "toolkit/views/text/value_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace orba {
namespace {

struct TypeRow {
    ValueType type;
    int base;           // 10, or the base of a whole number
    char conversion;    // of printf, for base 10
    const char* before; // unit ahead of the number
    const char* after;  // unit behind it
};

constexpr std::array<TypeRow, valueTypeCount> types{{
    {ValueType::Decimal, 10, 'f', "", ""},
    {ValueType::Scientific, 10, 'E', "", ""},
    {ValueType::Binary, 2, 'f', "", ""},
    {ValueType::Octal, 8, 'f', "", ""},
    {ValueType::Hexadecimal, 16, 'f', "", ""},
    {ValueType::Degrees, 10, 'f', "", "°"},
    {ValueType::Percent, 10, 'f', "", "%"},
    {ValueType::Fahrenheit, 10, 'f', "", "°F"},
    {ValueType::Celsius, 10, 'f', "", "°C"},
    {ValueType::Kelvin, 10, 'f', "", "K"},
    {ValueType::Pounds, 10, 'f', "£", ""},
    {ValueType::Dollars, 10, 'f', "$", ""},
    {ValueType::Deutschmarks, 10, 'f', "", " DM"},
    {ValueType::Francs, 10, 'f', "", " FF"},
    {ValueType::Yen, 10, 'f', "¥", ""},
    {ValueType::Euro, 10, 'f', "€", ""},
}};

constexpr bool rowsMatch() {
    for (int i = 0; i < valueTypeCount; ++i)
        if (static_cast<int>(types[i].type) != i) return false;
    return true;
}
static_assert(rowsMatch(), "a row of the table stands at the number of its type");

const TypeRow& row(const ValueFormat& format) { return types[static_cast<int>(format.type)]; }

struct SignForm {
    ValueSign sign;
    const char* open;
    const char* close;
};
constexpr std::array<SignForm, 4> signs{{{ValueSign::Minus, "-", ""},
                                         {ValueSign::SquareBrackets, "[", "]"},
                                         {ValueSign::RoundBrackets, "(", ")"},
                                         {ValueSign::Red, "", ""}}};

// A single precision number as it was written: 24832.1, not the 24832.0996 that it is in binary.
double asWritten(double value) {
    const auto single = static_cast<float>(value);
    if (static_cast<double>(single) != value) return value;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), single).ptr;
    std::from_chars(digits.data(), end, value);
    return value;
}

// Digits of a number that is not negative.
std::string magnitude(double value, const ValueFormat& format) {
    const TypeRow& type = row(format);
    if (!std::isfinite(value)) return std::isnan(value) ? "nan" : "inf";
    value = asWritten(value);
    if (type.base != 10) {
        constexpr double limit = 9007199254740992.0; // whole numbers are exact up to here
        std::array<char, 72> digits{};
        auto whole = static_cast<std::uint64_t>(std::llround(std::min(value, limit)));
        auto end = std::to_chars(digits.data(), digits.data() + digits.size(), whole, type.base).ptr;
        std::string text(digits.data(), end);
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return c >= 'a' ? char(c - 'a' + 'A') : c; });
        return text;
    }
    const char shape[] = {'%', '.', '*', type.conversion, 0};
    std::array<char, 400> text{};
    int length = std::snprintf(text.data(), text.size(), shape, std::clamp(format.decimals, 0, 15), value);
    return {text.data(), static_cast<std::size_t>(std::clamp<int>(length, 0, int(text.size()) - 1))};
}

// A number that its format rounds to nothing bears no sign.
bool showsNegative(double value, const std::string& digits) {
    return std::signbit(value) && digits.find_first_not_of("0.E+") != std::string::npos;
}

void trim(std::string_view& text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
}

bool dropPrefix(std::string_view& text, std::string_view prefix) {
    if (prefix.empty() || !text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    trim(text);
    return true;
}

bool dropSuffix(std::string_view& text, std::string_view suffix) {
    while (!suffix.empty() && suffix.front() == ' ') suffix.remove_prefix(1);
    if (suffix.empty() || !text.ends_with(suffix)) return false;
    text.remove_suffix(suffix.size());
    trim(text);
    return true;
}

std::optional<double> parseDecimal(std::string_view text) {
    std::string number(text);
    std::replace(number.begin(), number.end(), 'd', 'e'); // Fortran's exponent letter
    std::replace(number.begin(), number.end(), 'D', 'e');
    if (number.find(',') != std::string::npos && number.find('.') == std::string::npos)
        std::replace(number.begin(), number.end(), ',', '.');
    double value = 0;
    auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc{} || end != number.data() + number.size() || !std::isfinite(value)) return {};
    return value;
}

std::optional<double> parseWhole(std::string_view text, int base) {
    std::uint64_t value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc{} || end != text.data() + text.size()) return {};
    return static_cast<double>(value);
}

} // namespace

ValueType valueType(int number) {
    return number >= 0 && number < valueTypeCount ? static_cast<ValueType>(number) : ValueType::Decimal;
}

std::string formatValue(double value, const ValueFormat& format) {
    const TypeRow& type = row(format);
    std::string digits = magnitude(std::abs(value), format);
    std::string text = type.before + digits + type.after;
    if (!showsNegative(value, digits)) return text;
    const SignForm& sign = signs[static_cast<int>(format.sign)];
    return sign.open + text + sign.close;
}

std::string editableValue(double value, const ValueFormat& format) {
    std::string digits = magnitude(std::abs(value), format);
    return showsNegative(value, digits) ? "-" + digits : digits;
}

std::optional<double> parseValue(std::string_view text, const ValueFormat& format) {
    const TypeRow& type = row(format);
    trim(text);
    bool negative = false;
    for (const SignForm& sign : signs)
        if (*sign.close && text.size() > 1 && text.starts_with(sign.open) && text.ends_with(sign.close)) {
            text = text.substr(1, text.size() - 2);
            negative = true;
            break;
        }
    trim(text);
    if (!negative && dropPrefix(text, "-"))
        negative = true;
    else
        dropPrefix(text, "+");
    dropPrefix(text, type.before);
    dropSuffix(text, type.after);
    if (!negative && dropPrefix(text, "-")) negative = true; // the sign behind the unit: £-5
    if (text.empty() || text.front() == '-' || text.front() == '+') return {};
    std::optional<double> value = type.base == 10 ? parseDecimal(text) : parseWhole(text, type.base);
    if (value && negative) *value = -*value;
    return value;
}

bool valueCharacter(char32_t character, const ValueFormat& format) {
    const TypeRow& type = row(format);
    if (character < 128) {
        char c = static_cast<char>(character);
        std::string_view allowed = "+-[]() ";
        if (allowed.find(c) != std::string_view::npos) return true;
        if (type.base == 10) {
            if (std::string_view("0123456789.,eEdD").find(c) != std::string_view::npos) return true;
        } else {
            int digit = c >= '0' && c <= '9' ? c - '0' : (c | 32) >= 'a' && (c | 32) <= 'f' ? (c | 32) - 'a' + 10 : 99;
            if (digit < type.base) return true;
        }
        std::string_view before = type.before, after = type.after;
        return before.find(c) != std::string_view::npos || after.find(c) != std::string_view::npos;
    }
    constexpr std::u32string_view signsOfUnits = U"°£¥€";
    return signsOfUnits.find(character) != std::u32string_view::npos;
}

} // namespace orba
