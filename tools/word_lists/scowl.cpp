#include "tools/word_lists/scowl.hpp"

#include "platform/ascii.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace lexigrove::tools
{

namespace
{

namespace fs = std::filesystem;

/// Names beyond this class are so rare that they make no word suspect.
constexpr int largestNameClass = 80;

/// Variants beyond this class are no longer in use.
constexpr int largestVariantClass = 60;

/// Abbreviations beyond this class are so rare that a word of the same letters is the likelier one.
constexpr int largestAbbreviationClass = 60;

/// Contractions beyond this class ("an't", "we'd") take nothing from the words that are spelled like them. The shortest
/// do: "i'd" is common, whatever its class.
constexpr int commonContractionClass = 35;
constexpr std::size_t shortestContraction = 3;

/// One file of SCOWL: "<spelling>-<kind>.<class>".
struct ListFile {
    fs::path path;
    std::string spelling;
    std::string kind;
    int size = 0;
};

bool isSize(std::string_view text)
{
    return text.size() < 4 && ascii::isNumber(text);
}

ListFile listFile(const fs::path& path)
{
    const std::string name = path.filename().string();
    const std::size_t dash = name.find('-');
    const std::size_t dot = name.rfind('.');
    if (dash == std::string::npos || dot == std::string::npos || dot < dash || !isSize(name.substr(dot + 1)))
        return {};
    return {path, name.substr(0, dash), name.substr(dash + 1, dot - dash - 1), std::stoi(name.substr(dot + 1))};
}

bool isOurSpelling(const std::string& spelling)
{
    return spelling == "english" || spelling == "american" || spelling == "british";
}

bool isVariant(const ListFile& list)
{
    return (list.spelling == "variant_1" || list.spelling == "variant_2") && list.kind == "words" &&
           list.size <= largestVariantClass;
}

/// "cafe" for "café" in UTF-8, where the small letters with accents are 0xC3 and a byte from 0xA0 on. What is no such
/// letter becomes a blank.
std::string withoutAccents(const std::string& text)
{
    constexpr std::string_view letters = "aaaaaa ceeeeiiii nooooo  uuuuy y";
    std::string plain;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] != '\xC3' || place + 1 == text.size()) {
            plain += text[place];
            continue;
        }
        const auto letter = static_cast<unsigned char>(text[++place]);
        plain += letter >= 0xA0U && letter < 0xA0U + letters.size() ? letters[letter - 0xA0U] : ' ';
    }
    return plain;
}

std::string lettersInLowerCase(std::string_view text)
{
    std::string letters;
    for (const char c : text) {
        if (c != '\'')
            letters += ascii::toLower(c);
    }
    return letters;
}

void readList(const ListFile& list, Scowl& scowl)
{
    std::ifstream file(list.path);
    for (std::string line; std::getline(file, line);) {
        line = withoutAccents(line);
        if (isVariant(list) && isPlainWord(line)) {
            scowl.variants.insert(line);
        } else if (list.kind == "words" && isPlainWord(line)) {
            const auto [entry, isNew] = scowl.classes.emplace(line, list.size);
            entry->second = std::min(entry->second, list.size);
        } else if (list.kind == "contractions" &&
                   (list.size <= commonContractionClass || line.size() <= shortestContraction)) {
            scowl.bareContractions.insert(lettersInLowerCase(line));
        } else if (list.kind == "abbreviations" && list.size <= largestAbbreviationClass) {
            scowl.abbreviations.insert(lettersInLowerCase(line));
        } else if ((list.kind == "upper" || list.kind == "proper-names") && list.size <= largestNameClass) {
            if (line.find('\'') != std::string::npos)
                continue;
            const auto [entry, isNew] = scowl.names.emplace(lettersInLowerCase(line), list.size);
            entry->second = std::min(entry->second, list.size);
        }
    }
    if (file.bad())
        throw std::runtime_error("The word list " + list.path.string() + " cannot be read.");
}

void requireLists(const std::string& folder)
{
    for (const char* spelling : {"english", "american", "british"}) {
        for (const int size : {10, 20, 35, 40, 50, 55, 60, 70, 80}) {
            const fs::path list = fs::path(folder) / (std::string(spelling) + "-words." + std::to_string(size));
            if (!fs::is_regular_file(list))
                throw std::runtime_error("The word list " + list.string() +
                                         " is missing. Install Debian's package scowl, or see LEXIGROVE_WORD_SOURCES.");
        }
    }
}

} // namespace

bool isPlainWord(std::string_view text)
{
    return text.size() >= 2 && std::all_of(text.begin(), text.end(), ascii::isLower);
}

Scowl readScowl(const std::string& folder)
{
    requireLists(folder);
    Scowl scowl;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const ListFile list = listFile(entry.path());
        if ((isOurSpelling(list.spelling) && list.size <= largestClass) || isVariant(list))
            readList(list, scowl);
    }
    return scowl;
}

} // namespace lexigrove::tools
