// Text put together from formats, as the C library's printf would fill them but apart from the locale.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

// One value for a place of a format.
struct FormatValue {
    enum Kind { STRING, INTEGER, REAL };
    Kind kind;
    std::string_view string;
    int integer = 0;
    double real = 0;

    FormatValue(std::string_view value) : kind(STRING), string(value) {}
    FormatValue(const std::string& value) : kind(STRING), string(value) {}
    FormatValue(const char* value) : kind(STRING), string(value) {}
    FormatValue(int value) : kind(INTEGER), integer(value) {}
    FormatValue(float value) : kind(REAL), real(value) {}
    FormatValue(double value) : kind(REAL), real(value) {}
};

// Appends `format` with its places filled in turn: %s, %d, %1d, %2d, %f (six decimals), %#g (six significant digits
// with the point and trailing zeros); %% is a percent sign. Values and places must match in number and kind.
void appendFormat(std::string& text, std::string_view format, std::initializer_list<FormatValue> values);

template <class... Values> void put(std::string& text, std::string_view format, const Values&... values) {
    if constexpr (sizeof...(values) == 0) {
        appendFormat(text, format, {});
    } else {
        appendFormat(text, format, {FormatValue(values)...});
    }
}
