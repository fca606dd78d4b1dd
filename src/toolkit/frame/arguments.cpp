#include "toolkit/frame/arguments.h"

#include <QStringDecoder>

#include <cstring>

namespace orba {
namespace {

QString trimmedRight(QString text) {
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == QLatin1Char(' ')) end--;
    text.truncate(end);
    return text;
}

// Keywords that stand for one value.
int twinOf(int keyword) {
    switch (keyword) {
    case owOnCol: return owBack2Col;
    case owBack2Col: return owOnCol;
    case owOffCol: return owBack1Col;
    case owBack1Col: return owOffCol;
    default: return 0;
    }
}

} // namespace

QString wholeText(const char* bytes) {
    if (!bytes) return {};
    const qsizetype length = static_cast<qsizetype>(std::strlen(bytes));
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(QByteArrayView(bytes, length));
    return decoder.hasError() ? QString::fromLatin1(bytes, length) : text;
}

QString textIn(const char* bytes) { return trimmedRight(wholeText(bytes)); }

void textOut(const QString& text, char* buffer, int length) {
    if (!buffer || length < 1) return;
    const QByteArray bytes = trimmedRight(text).toUtf8();
    qsizetype count = std::min<qsizetype>(bytes.size(), length - 1);
    const auto continues = [&bytes](qsizetype at) {
        return at < bytes.size() && (static_cast<unsigned char>(bytes[at]) & 0xC0) == 0x80;
    };
    while (count > 0 && continues(count)) count--;
    while (count > 0 && bytes[count - 1] == ' ') count--;
    std::memcpy(buffer, bytes.constData(), static_cast<std::size_t>(count));
    buffer[count] = 0;
}

const KeywordValue* Arguments::find(int keyword) const {
    const int twin = twinOf(keyword);
    for (int i = keywordCount; i-- > 0;) {
        if (keywords[i].keyword == keyword || (twin != 0 && keywords[i].keyword == twin)) return &keywords[i];
    }
    return nullptr;
}

int Arguments::keyword(int keyword) const {
    const KeywordValue* value = find(keyword);
    return value ? static_cast<int>(value->value) : keywordDefault(function, keyword);
}

double Arguments::keywordReal(int keyword) const {
    const KeywordValue* value = find(keyword);
    return value ? realOf(value->value) : 0.0;
}

QString Arguments::keywordText(int keyword) const {
    const KeywordValue* value = find(keyword);
    return value ? textIn(static_cast<const char*>(addressOf(value->value))) : QString();
}

} // namespace orba
