#include "windows/QtText.h"

#include <QByteArrayView>
#include <QStringView>
#include <cstddef>

namespace calvoro {
namespace {

constexpr char16_t kByteSurrogate = 0xDC00;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// The character at the front of a text; length 0 when no valid one stands there.
struct Character {
    char32_t code = 0;
    std::size_t length = 0;
};

Character FirstCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {};
    char32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U) return {};
        code = code << 6U | (byte & 0x3FU);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};  // by length
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < kSmallest[length] || code > 0x10FFFF || isSurrogate ? Character{} : Character{code, length};
}

QString WithBytesKept(std::string_view text) {
    QString kept;
    kept.reserve(static_cast<qsizetype>(text.size()));
    while (!text.empty()) {
        const auto [code, length] = FirstCharacter(text);
        if (length == 0) {
            kept += QChar(static_cast<char16_t>(kByteSurrogate + static_cast<unsigned char>(text.front())));
        } else {
            kept += QChar::fromUcs4(code);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return kept;
}

void AppendSurrogate(std::string& text, char16_t surrogate) {
    if (surrogate >= kByteSurrogate + 0x80 && surrogate <= kByteSurrogate + 0xFF) {
        text += static_cast<char>(surrogate - kByteSurrogate);
    } else {
        text += kReplacement;
    }
}

}  // namespace

QString ToQt(std::string_view text) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    if (bytes.isValidUtf8() && !text.starts_with(kByteOrderMark)) return QString::fromUtf8(bytes);
    return WithBytesKept(text);
}

std::string FromQt(const QString& text) {
    if (text.isValidUtf16()) return text.toStdString();
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    qsizetype valid = 0;  // where the characters begin that are not taken yet
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isSurrogate()) continue;
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
            continue;
        }
        bytes += QStringView(text).mid(valid, i - valid).toUtf8().toStdString();
        AppendSurrogate(bytes, text[i].unicode());
        valid = i + 1;
    }
    return bytes += QStringView(text).mid(valid).toUtf8().toStdString();
}

}  // namespace calvoro
