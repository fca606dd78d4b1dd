// How the sixteen types of value entry write a number, and how what a user types is read back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orba {

// The order is that of the type numbers a program passes.
enum class ValueType {
    Decimal,
    Scientific,
    Binary,
    Octal,
    Hexadecimal,
    Degrees,
    Percent,
    Fahrenheit,
    Celsius,
    Kelvin,
    Pounds,
    Dollars,
    Deutschmarks,
    Francs,
    Yen,
    Euro
};
inline constexpr int valueTypeCount = 16;

// How a negative number shows that it is one.
enum class ValueSign { Minus, SquareBrackets, RoundBrackets, Red };

struct ValueFormat {
    ValueType type = ValueType::Decimal;
    ValueSign sign = ValueSign::Minus;
    int decimals = 0; // 0 to 15; the three types with a base of their own show whole numbers
};

// Any number of a caller made a type; what is no type is Decimal.
ValueType valueType(int number);

// The text shown while the entry is at rest, UTF-8.
std::string formatValue(double value, const ValueFormat& format);

// The text to edit: the bare number with a leading minus, without unit or brackets.
std::string editableValue(double value, const ValueFormat& format);

// Reads a bare number or a shown text in either sign form. Nothing where there is no number, or where text follows it
// that is not the unit of the type.
std::optional<double> parseValue(std::string_view text, const ValueFormat& format);

// Whether the character may stand in a number of this type (digits of its base, sign, point, exponent, brackets, unit).
bool valueCharacter(char32_t character, const ValueFormat& format);

} // namespace orba
