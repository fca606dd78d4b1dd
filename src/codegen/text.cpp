#include "codegen/text.h"

#include <cassert>
#include <charconv>
#include <cmath>

namespace {

constexpr int SIGNIFICANT = 6; // digits of %#g

void appendInteger(std::string& text, int value, std::size_t width) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    const std::size_t length = static_cast<std::size_t>(end - digits);
    if (length < width) text.append(width - length, ' ');
    text.append(digits, length);
}

void appendReal(std::string& text, double value, std::chars_format form, int precision) {
    char digits[400]; // the largest double has 309 digits ahead of its point
    const auto end = std::to_chars(digits, digits + sizeof digits, value, form, precision).ptr;
    text.append(digits, static_cast<std::size_t>(end - digits));
}

// %#g takes the scientific form when the exponent, after rounding, is below -4 or not below the number of digits.
void appendGeneral(std::string& text, double value) {
    if (!std::isfinite(value)) {
        appendReal(text, value, std::chars_format::fixed, SIGNIFICANT);
        return;
    }
    char digits[32];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::scientific, SIGNIFICANT - 1).ptr;
    const std::string_view scientific(digits, static_cast<std::size_t>(end - digits));
    const std::size_t mark = scientific.find('e');
    int exponent = 0;
    const char* number = scientific.data() + mark + 1;
    if (*number == '+') ++number;
    std::from_chars(number, end, exponent);
    if (exponent < -4 || exponent >= SIGNIFICANT) {
        text += scientific;
        return;
    }
    appendReal(text, value, std::chars_format::fixed, SIGNIFICANT - 1 - exponent);
    if (exponent == SIGNIFICANT - 1) text += '.';
}

} // namespace

void appendFormat(std::string& text, std::string_view format, std::initializer_list<FormatValue> values) {
    const FormatValue* value = values.begin();
    std::size_t from = 0;
    for (;;) {
        const std::size_t place = format.find('%', from);
        text.append(format, from, place - from);
        if (place == std::string_view::npos) break;
        const char kind = format[place + 1];
        if (kind == '%') {
            text += '%';
            from = place + 2;
            continue;
        }
        assert(value != values.end());
        from = place + 2;
        switch (kind) {
        case 's':
            assert(value->kind == FormatValue::STRING);
            text += value->string;
            break;
        case 'f':
            assert(value->kind == FormatValue::REAL);
            appendReal(text, value->real, std::chars_format::fixed, 6);
            break;
        case '#':
            assert(value->kind == FormatValue::REAL);
            appendGeneral(text, value->real);
            ++from;
            break;
        case 'd':
            assert(value->kind == FormatValue::INTEGER);
            appendInteger(text, value->integer, 0);
            break;
        default: // a width of one digit and d
            assert(value->kind == FormatValue::INTEGER);
            appendInteger(text, value->integer, static_cast<std::size_t>(kind - '0'));
            ++from;
            break;
        }
        ++value;
    }
    assert(value == values.end());
}
