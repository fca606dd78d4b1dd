#include "toolkit/views/text/value_format.h"

#include <gtest/gtest.h>

using namespace orba;

namespace {

struct Shown {
    ValueType type;
    double value;
    int decimals;
    ValueSign sign;
    const char* text;
};

constexpr ValueSign minus = ValueSign::Minus, square = ValueSign::SquareBrackets, round = ValueSign::RoundBrackets,
                    red = ValueSign::Red;

const Shown shown[] = {
    {ValueType::Decimal, 12.345, 2, minus, "12.35"},
    {ValueType::Decimal, -12.345, 0, square, "[12]"},
    {ValueType::Decimal, -0.001, 2, minus, "0.00"},
    {ValueType::Scientific, -26500, 2, round, "(2.65E+04)"},
    {ValueType::Binary, 10, 3, minus, "1010"},
    {ValueType::Octal, -64, 0, minus, "-100"},
    {ValueType::Hexadecimal, 255, 2, minus, "FF"},
    {ValueType::Degrees, 45.5, 1, minus, "45.5°"},
    {ValueType::Percent, -5, 0, red, "5%"},
    {ValueType::Fahrenheit, 98.6, 1, minus, "98.6°F"},
    {ValueType::Celsius, -40, 0, minus, "-40°C"},
    {ValueType::Kelvin, 273.15, 2, minus, "273.15K"},
    {ValueType::Pounds, 1.5, 2, minus, "£1.50"},
    {ValueType::Dollars, -1.5, 2, round, "($1.50)"},
    {ValueType::Deutschmarks, 7, 0, minus, "7 DM"},
    {ValueType::Francs, 7, 0, minus, "7 FF"},
    {ValueType::Yen, 700, 0, minus, "¥700"},
    {ValueType::Euro, 0.5, 2, minus, "€0.50"},
    {ValueType::Decimal, 24832.1F, 4, minus, "24832.1000"}, // single precision, as it was written
    {ValueType::Decimal, 24832.0996, 4, minus, "24832.0996"},
};

} // namespace

TEST(ValueFormat, ShowsEachTypeWithItsUnitAndSign) {
    for (const Shown& row : shown) {
        ValueFormat format{row.type, row.sign, row.decimals};
        EXPECT_EQ(formatValue(row.value, format), row.text);
    }
    EXPECT_GT(formatValue(1e300, {ValueType::Decimal, minus, 2}).size(), 300U);
}

TEST(ValueFormat, ReadsBackWhatItShowsAndWhatItOffersToEdit) {
    for (int type = 0; type < valueTypeCount; ++type)
        for (ValueSign sign : {minus, square, round})
            for (double value : {-37.0, 0.0, 37.0, 123500.0}) {
                ValueFormat format{valueType(type), sign, 3};
                EXPECT_EQ(parseValue(formatValue(value, format), format), value)
                    << type << ' ' << formatValue(value, format);
                EXPECT_EQ(parseValue(editableValue(value, format), format), value) << type;
            }
}

TEST(ValueFormat, ReadsWhatPeopleType) {
    const struct {
        const char* text;
        ValueType type;
        double value;
    } rows[] = {
        {" 1.5 ", ValueType::Decimal, 1.5}, {"+2", ValueType::Decimal, 2},        {"-.5", ValueType::Decimal, -0.5},
        {"1d3", ValueType::Decimal, 1000},  {"2.5D-1", ValueType::Decimal, 0.25}, {"1,5", ValueType::Decimal, 1.5},
        {"(3)", ValueType::Decimal, -3},    {"ff", ValueType::Hexadecimal, 255},  {"£ 12", ValueType::Pounds, 12},
        {"-£5", ValueType::Pounds, -5},     {"£-5", ValueType::Pounds, -5},       {"50 %", ValueType::Percent, 50},
        {"20", ValueType::Celsius, 20},
    };
    for (const auto& row : rows) EXPECT_EQ(parseValue(row.text, {row.type, minus, 2}), row.value) << row.text;
}

TEST(ValueFormat, RefusesWhatIsNoNumber) {
    for (const char* text : {"", "  ", "abc", "1x", "--1", "-+1", "1e999", "nan", "inf", "()", "[", "%"})
        EXPECT_FALSE(parseValue(text, {ValueType::Decimal, minus, 2})) << text;
    EXPECT_FALSE(parseValue("12", {ValueType::Binary, minus, 0}));
    EXPECT_FALSE(parseValue("8", {ValueType::Octal, minus, 0}));
    EXPECT_FALSE(parseValue("1.5", {ValueType::Hexadecimal, minus, 0}));
    EXPECT_FALSE(parseValue("5%", {ValueType::Dollars, minus, 0}));
    EXPECT_EQ(valueType(16), ValueType::Decimal);
    EXPECT_EQ(valueType(-1), ValueType::Decimal);
}

TEST(ValueFormat, TakesOnlyTheCharactersOfItsBase) {
    EXPECT_TRUE(valueCharacter(U'a', {ValueType::Hexadecimal, minus, 0}));
    EXPECT_FALSE(valueCharacter(U'g', {ValueType::Hexadecimal, minus, 0}));
    EXPECT_FALSE(valueCharacter(U'2', {ValueType::Binary, minus, 0}));
    EXPECT_FALSE(valueCharacter(U'x', {ValueType::Decimal, minus, 0}));
    EXPECT_TRUE(valueCharacter(U'€', {ValueType::Euro, minus, 0}));
}
