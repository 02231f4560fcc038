// SPDX-License-Identifier: MIT
#include "survey/encoding.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QTextCodec>

namespace survey
{

namespace
{

constexpr qint64 headSize = 1'000;

QByteArray head(QFile &file)
{
    file.seek(0);
    return file.read(headSize);
}

/// Passes the bytes of a file as those of UTF-8.
class Utf8Check
{
public:
    /// False at the first byte that does not fit, or that no text has.
    bool pass(const QByteArray &piece)
    {
        for (const char c : piece) {
            const auto byte = static_cast<unsigned char>(c);
            if (byte == 0) {
                isText = false;
                return false;
            }
            if (!(missing > 0 ? takeNext(byte) : takeFirst(byte)))
                return false;
        }
        return true;
    }

    bool isText = true;
    std::optional<SourcePosition> beyondAscii; ///< the first character that is
    SourcePosition position{1, 0};             ///< of the character that has come last

private:
    bool takeFirst(unsigned char byte)
    {
        const bool isLineFeed = byte == '\n';
        if (isLineFeed || byte == '\r') {
            if (!isLineFeed || last != '\r')
                position = {position.line + 1, 0};
        } else {
            ++position.column;
        }
        last = byte;
        if (byte < 0x80)
            return true;
        least = 0x80;
        most = 0xbf;
        if (byte >= 0xc2 && byte <= 0xdf) {
            missing = 1;
        } else if (byte >= 0xe0 && byte <= 0xef) {
            missing = 2;
            least = byte == 0xe0 ? 0xa0 : least; // overlong
            most = byte == 0xed ? 0x9f : most;   // halves of pairs
        } else if (byte >= 0xf0 && byte <= 0xf4) {
            missing = 3;
            least = byte == 0xf0 ? 0x90 : least; // overlong
            most = byte == 0xf4 ? 0x8f : most;   // beyond U+10FFFF
        }
        return missing > 0;
    }

    bool takeNext(unsigned char byte)
    {
        if (byte < least || byte > most)
            return false;
        least = 0x80;
        most = 0xbf;
        --missing;
        if (missing == 0 && !beyondAscii)
            beyondAscii = position;
        return true;
    }

    unsigned char last = 0;
    unsigned char least = 0; // of the next byte of a character
    unsigned char most = 0;
    int missing = 0; // bytes of the character
};

QByteArray declaredEncoding(const QByteArray &head)
{
    static const QRegularExpression declaration(QStringLiteral(
        R"(^(?:\x{ef}\x{bb}\x{bf})?<\?xml\s[^>]*\bencoding\s*=\s*["']([^"']+)["'])"));
    return declaration.match(QString::fromLatin1(head)).captured(1).toLatin1();
}

/// What the bytes beyond ASCII are in an encoding.
enum class Width { Utf8, Single, Utf16, Other };

Width widthOf(const QByteArray &encoding)
{
    const QTextCodec *const codec = QTextCodec::codecForName(encoding);
    if (codec == nullptr || codec->name() == "UTF-8")
        return Width::Utf8;
    if (codec->name().startsWith("UTF-16"))
        return Width::Utf16;
    QByteArray upper;
    for (int byte = 0x80; byte <= 0xff; ++byte)
        upper.append(static_cast<char>(byte));
    return codec->toUnicode(upper).size() == upper.size() ? Width::Single : Width::Other;
}

} // namespace

std::optional<WrongEncoding> findWrongEncoding(QFile &file, bool looksAtUtf8)
{
    constexpr qint64 pieceSize = 1 << 16;
    const QByteArray begin = head(file);
    const QByteArray declared = declaredEncoding(begin);
    const Width width = declared.isEmpty() ? Width::Utf8 : widthOf(declared);
    const bool isUtf16 = begin.startsWith("\xff\xfe") || begin.startsWith("\xfe\xff");
    if (isUtf16 || width == Width::Other || (width == Width::Utf8 && !looksAtUtf8))
        return {};

    Utf8Check check;
    file.seek(0);
    bool fits = true;
    while (fits && !file.atEnd()) {
        const QByteArray piece = file.read(pieceSize);
        if (piece.isEmpty())
            break;
        fits = check.pass(piece);
    }
    if (!check.isText || fits == (width == Width::Utf8))
        return {};
    if (width == Width::Single && !check.beyondAscii)
        return {};
    const SourcePosition position =
        width == Width::Utf8 ? check.position : check.beyondAscii.value_or(SourcePosition{1, 1});
    return WrongEncoding{QString::fromLatin1(declared),
                         width == Width::Utf8 ? QString() : QStringLiteral("UTF-8"), position};
}

bool beginsAsHtml(QFile &file)
{
    static const QRegularExpression page(
        QStringLiteral(R"(^(?:\x{ef}\x{bb}\x{bf})?\s*(?:<!doctype\s+html\b|<html\b))"),
        QRegularExpression::CaseInsensitiveOption);
    return page.match(QString::fromLatin1(head(file))).hasMatch();
}

} // namespace survey
