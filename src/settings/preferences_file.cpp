#include "settings/preferences_file.h"

#include "platform/letters.h"
#include "platform/text_files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/places.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

const char FILE_NAME[] = "wdesign.prf";
constexpr std::size_t SLOT_BYTES = CONFIG_EXPRESSION_BYTES + 1;

int systemPointSize = 9; // of the code font, as told at the start

// How a field stands in its slot. The file holds "place once" where the program holds "repeat placement".
enum FieldKind { FIELD_NUMBER, FIELD_NEGATED, FIELD_TEXT };

struct PreferenceField {
    FieldKind kind;
    int Preferences::*number; // null for the text
    int least = 0, most = 1;  // a number outside them is damage
};

constexpr int LONGEST_BACKUP = 24 * 60; // minutes
constexpr int WIDEST_INDENT = 99;       // blanks

// In file order.
constexpr PreferenceField FIELDS[] = {
    {FIELD_NEGATED, &Preferences::repeatPlacement},
    {FIELD_NUMBER, &Preferences::argumentPrompts},
    {FIELD_NUMBER, &Preferences::delDeletes},
    {FIELD_NUMBER, &Preferences::syntaxColours},
    {FIELD_NUMBER, &Preferences::codeAssist},
    {FIELD_NUMBER, &Preferences::generateSavesProject},
    {FIELD_NUMBER, &Preferences::saveGeneratesCode},
    {FIELD_NUMBER, &Preferences::autoBackupOn},
    {FIELD_NUMBER, &Preferences::autoBackupMinutes, 1, LONGEST_BACKUP},
    {FIELD_NUMBER, &Preferences::configCheck},
    {FIELD_TEXT, nullptr}, // configDirExpr
    {FIELD_NUMBER, &Preferences::globalIndent, 0, WIDEST_INDENT},
    {FIELD_NUMBER, &Preferences::codePointSize, SMALLEST_CODE_FONT, LARGEST_CODE_FONT},
    {FIELD_NUMBER, &Preferences::selectedIndent, 0, WIDEST_INDENT},
    {FIELD_NUMBER, &Preferences::tabSpaces, 0, WIDEST_INDENT},
    {FIELD_NUMBER, &Preferences::replaceTab},
};
constexpr bool eachStandsOnce() {
    for (const PreferenceField& field : FIELDS)
        for (const PreferenceField* other = &field + 1; other != std::end(FIELDS); ++other)
            if (field.number == other->number) return false;
    return true;
}
static_assert(std::size(FIELDS) == 16 && eachStandsOnce());

bool printable(const std::string& text) {
    return std::none_of(text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 127; });
}

// What no user can have set leaves the field at its default.
void takeField(Preferences& values, const PreferenceField& field, const std::string& text) {
    if (field.kind == FIELD_TEXT) {
        if (printable(text)) values.configDirExpr = text;
        return;
    }
    char* end = nullptr;
    const long number = std::strtol(text.c_str(), &end, 10);
    if (end == text.c_str() || number < field.least || number > field.most) return;
    values.*field.number = field.kind == FIELD_NEGATED ? number == 0 : static_cast<int>(number);
}

std::string fieldText(const Preferences& values, const PreferenceField& field) {
    if (field.kind == FIELD_TEXT) return std::string(cutBetweenLetters(values.configDirExpr, SLOT_BYTES - 1));
    const int number = values.*field.number;
    return std::to_string(field.kind == FIELD_NEGATED ? static_cast<int>(number == 0) : number);
}

} // namespace

PreferenceRange preferenceRange(int Preferences::*number) {
    const auto* field = std::ranges::find(FIELDS, number, &PreferenceField::number);
    return {field->least, field->most};
}

void loadPreferences(int defaultPointSize) {
    systemPointSize = defaultPointSize;
    preferences = {};
    preferences.codePointSize = defaultPointSize;
    std::string bytes;
    readTextFile(settingsFileToRead(FILE_NAME), bytes, SLOT_BYTES * std::size(FIELDS));
    std::size_t start = 0;
    for (const PreferenceField& field : FIELDS) {
        if (start + SLOT_BYTES > bytes.size()) return;
        const std::string slot = bytes.substr(start, SLOT_BYTES);
        takeField(preferences, field, slot.substr(0, slot.find('\0')));
        start += SLOT_BYTES;
    }
}

void reloadPreferences() { loadPreferences(systemPointSize); }

void syntaxNotAvailable() { preferences.syntaxColours = 0; }

void savePreferences() {
    std::string bytes;
    for (const PreferenceField& field : FIELDS) {
        std::string slot = fieldText(preferences, field);
        slot.resize(SLOT_BYTES, '\0');
        bytes += slot;
    }
    if (!writeSettingsFile(FILE_NAME, bytes))
        host.infoBox("Save Prefences", "Cannot open wdesign.prf to save preferences");
}
