#include "platform/paths.h"
#include "project/colours.h"
#include "project/defaults.h"
#include "project/header.h"
#include "project/host.h"
#include "project/records_io.h"
#include "project/tree.h"
#include "project/widget_types.h"

namespace {

// One record, without siblings. Of another type than its place asks for, or with nothing left to read: built in.
OwnedList readDefault(RecordSource& source, WidgetType type) {
    if (source.version < cardOf(type).defaultSince || source.reader.ended) return makeDefaultRecord(type);
    OwnedList record = std::move(parted(readRecords(source)).front());
    if (record->type == type) return record;
    source.reader.damaged = true;
    return makeDefaultRecord(type);
}

// Files of version 3.0 have no header.
int versionOf(FileReader& reader) {
    const FileHeader header = readHeader(reader);
    if (header.version >= VERSION_40) return header.version;
    rewindReader(reader);
    return VERSION_30;
}

} // namespace

bool loadDefaults(const std::string& path) {
    FileReader reader;
    if (!openReader(reader, path)) {
        host.busyCursor(false);
        host.errorBox("Error loading widget defaults file", "File to load to could not be opened");
        return false;
    }
    RecordSource source{.reader = reader, .version = versionOf(reader)};
    freeDefaults();
    readAllColours(reader);
    for (std::size_t i = 0; i < defaultOrder.size(); ++i) defaultRecords[i] = readDefault(source, defaultOrder[i]);
    mapDefaultColours();
    if (reader.damaged) reportIncomplete(path);
    return true;
}

void loadStartupDefaults(const std::string& dataDir) {
    const std::string path = joinPath(dataDir, STARTUP_DEFAULTS);
    if (dataDir.empty() || !fileReadable(path) || !loadDefaults(path)) makeDefaults();
}

bool saveDefaults(const std::string& path) {
    FileWriter writer;
    bool saved = openWriter(writer, path);
    if (saved) {
        writeHeader(writer);
        writeColours(writer);
        for (const WidgetType type : defaultOrder) writeRecord(writer, *defaultRecord(type));
        saved = closeWriter(writer, false);
    }
    if (!saved) {
        host.busyCursor(false);
        reportSaveFailed(writer);
    }
    return saved;
}
