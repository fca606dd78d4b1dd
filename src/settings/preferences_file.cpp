#include "settings/preferences_file.h"

#include "platform/text_files.h"
#include "project/host.h"
#include "project/preferences.h"
#include "settings/places.h"

#include <cstdlib>
#include <string>

static const char FILE_NAME[] = "wdesign.prf";
static constexpr std::size_t SLOT_BYTES = 25;

// How a field stands in its slot. The file holds "place once" where the program holds "repeat placement".
enum FieldKind { FIELD_NUMBER, FIELD_NEGATED, FIELD_TEXT };

struct PreferenceField {
    FieldKind kind;
    int Preferences::*number; // null for the text
};

// In file order.
static constexpr PreferenceField FIELDS[] = {
    {FIELD_NEGATED, &Preferences::repeatPlacement},
    {FIELD_NUMBER, &Preferences::argumentPrompts},
    {FIELD_NUMBER, &Preferences::delDeletes},
    {FIELD_NUMBER, &Preferences::syntaxColours},
    {FIELD_NUMBER, &Preferences::codeAssist},
    {FIELD_NUMBER, &Preferences::generateSavesProject},
    {FIELD_NUMBER, &Preferences::saveGeneratesCode},
    {FIELD_NUMBER, &Preferences::autoBackupOn},
    {FIELD_NUMBER, &Preferences::autoBackupMinutes},
    {FIELD_NUMBER, &Preferences::configCheck},
    {FIELD_TEXT, nullptr}, // configDirExpr
    {FIELD_NUMBER, &Preferences::globalIndent},
    {FIELD_NUMBER, &Preferences::codePointSize},
    {FIELD_NUMBER, &Preferences::selectedIndent},
    {FIELD_NUMBER, &Preferences::tabSpaces},
    {FIELD_NUMBER, &Preferences::replaceTab},
};
static_assert(sizeof FIELDS / sizeof *FIELDS == 16);

static void takeField(Preferences& values, const PreferenceField& field, const std::string& text) {
    if (field.kind == FIELD_TEXT) {
        values.configDirExpr = text;
        return;
    }
    const int number = static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
    values.*field.number = field.kind == FIELD_NEGATED ? number == 0 : number;
}

static std::string fieldText(const Preferences& values, const PreferenceField& field) {
    if (field.kind == FIELD_TEXT) return values.configDirExpr.substr(0, SLOT_BYTES - 1);
    const int number = values.*field.number;
    return std::to_string(field.kind == FIELD_NEGATED ? static_cast<int>(number == 0) : number);
}

void loadPreferences(int defaultPointSize) {
    preferences = {};
    preferences.codePointSize = defaultPointSize;
    std::string bytes;
    readTextFile(settingsFileToRead(FILE_NAME), bytes);
    std::size_t start = 0;
    for (const PreferenceField& field : FIELDS) {
        if (start + SLOT_BYTES > bytes.size()) return;
        const std::string slot = bytes.substr(start, SLOT_BYTES);
        takeField(preferences, field, slot.substr(0, slot.find('\0')));
        start += SLOT_BYTES;
    }
}

void savePreferences() {
    std::string bytes;
    for (const PreferenceField& field : FIELDS) {
        std::string slot = fieldText(preferences, field);
        slot.resize(SLOT_BYTES, '\0');
        bytes += slot;
    }
    if (!writeTextFile(settingsFileToWrite(FILE_NAME), bytes))
        host.infoBox("Save Prefences", "Cannot open wdesign.prf to save preferences");
}
