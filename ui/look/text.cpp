#include "ui/look/text.hpp"

#include <QFile>
#include <QStringDecoder>

#include <array>

namespace lexigrove
{

namespace
{

/// The characters of the bytes 0x80 to 0x9F; all other bytes are their own code points.
constexpr std::array<char16_t, 32> middleBlock{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr unsigned blockStart = 0x80;

char16_t characterOf(unsigned char byte)
{
    return byte >= blockStart && byte < blockStart + middleBlock.size() ? middleBlock[byte - blockStart] : byte;
}

char byteOf(char16_t character)
{
    for (std::size_t i = 0; i < middleBlock.size(); ++i) {
        if (middleBlock[i] == character)
            return static_cast<char>(blockStart + i);
    }
    const bool ownNumber = character < blockStart || (character >= 0xA0 && character <= 0xFF);
    return ownNumber ? static_cast<char>(character) : '?';
}

} // namespace

QString toQString(std::string_view text)
{
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char byte : text)
        result.append(QChar(characterOf(static_cast<unsigned char>(byte))));
    return result;
}

std::string fromQString(const QString& text)
{
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text.normalized(QString::NormalizationForm_C)) {
        if (!character.isLowSurrogate()) // the other half of one character
            result.push_back(byteOf(character.unicode()));
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
