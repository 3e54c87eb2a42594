#include "ui/look/text.hpp"

#include <QFile>
#include <QStringDecoder>

namespace lexigrove
{

namespace
{

/// The characters of the bytes 0x80 to 0x9F; all other bytes are their own code points.
constexpr QStringView middleBlock =
    u"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x8D\u017D\x8F"
    u"\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x9D\u017E\u0178";

constexpr int blockStart = 0x80;

QChar characterOf(unsigned char byte)
{
    const int place = byte - blockStart;
    return place >= 0 && place < middleBlock.size() ? middleBlock[place] : QChar(byte);
}

char byteOf(QChar character)
{
    if (const qsizetype place = middleBlock.indexOf(character); place >= 0)
        return static_cast<char>(blockStart + place);
    const char16_t number = character.unicode();
    const bool ownNumber = number < blockStart || (number >= 0xA0 && number <= 0xFF);
    return ownNumber ? static_cast<char>(number) : '?';
}

} // namespace

QString toQString(std::string_view text)
{
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char byte : text)
        result.append(characterOf(static_cast<unsigned char>(byte)));
    return result;
}

std::string fromQString(const QString& text)
{
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text.normalized(QString::NormalizationForm_C)) {
        if (!character.isLowSurrogate()) // the other half of one character
            result.push_back(byteOf(character));
    }
    return result;
}

QString pathToQString(const std::string& path)
{
    return QFile::decodeName(path.c_str());
}

std::string pathFromQString(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

QString messageToQString(std::string_view text)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString decoded = utf8(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return utf8.hasError() ? toQString(text) : decoded;
}

QString withNewlines(std::string_view text)
{
    return messageToQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString onOneLine(std::string_view text)
{
    return withNewlines(text).replace(u'\n', QStringLiteral(" \u2013 "));
}

} // namespace lexigrove
