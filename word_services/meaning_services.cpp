#include "word_services/meaning_services.hpp"

#include "platform/ascii.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <vector>

namespace lexigrove
{

namespace
{

struct ServiceAddress {
    const char* host; ///< unless the player's file names another
    const char* path;
    const char* afterWord;
};

constexpr std::array<ServiceAddress, MeaningServices::serviceCount> addresses{{
    {"https://www.dictionary.com", "/cgi-bin/dict.pl?term=", ""},
    {"https://www.thefreedictionary.com", "/", ""},
    {"https://www.merriam-webster.com", "/cgi-bin/dictionary?book=Dictionary&va=", ""},
    {"https://foldoc.org", "/foldoc/foldoc.cgi?query=", "&action=Search"},
}};

std::string_view withoutEnds(std::string_view line)
{
    while (!line.empty() && (line.front() == ' ' || line.front() == '\t'))
        line.remove_prefix(1);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\t' || line.back() == '/'))
        line.remove_suffix(1);
    return line;
}

bool isHostCharacter(char c)
{
    return ascii::isDigit(c) || ascii::isLetter(c) || c == '-' || c == '.';
}

bool isPort(std::string_view text)
{
    if (text.size() > 5 || !ascii::isNumber(text))
        return false;
    const int port = std::stoi(std::string(text));
    return port >= 1 && port <= 65'535;
}

/// Letters, digits, "-" and "."; it begins and ends with a letter or digit, and no label is empty.
bool isHost(std::string_view text)
{
    const auto isEdge = [](char c) { return c != '-' && c != '.'; };
    return !text.empty() && std::all_of(text.begin(), text.end(), isHostCharacter) && isEdge(text.front()) &&
           isEdge(text.back()) && text.find("..") == std::string_view::npos;
}

} // namespace

MeaningServices::MeaningServices(const std::string& folder)
{
    std::vector<std::string> lines;
    try {
        lines = readLines(folder + "MeaningServices.txt");
    } catch (const FileError&) {
        // the built-in addresses will do
    }
    for (std::size_t i = 0; i < serviceCount; ++i) {
        const std::string_view line = i < lines.size() ? withoutEnds(lines[i]) : std::string_view{};
        hosts_[i] = isServiceAddress(line) ? std::string(line) : addresses[i].host;
    }
}

void MeaningServices::choose(const OptionsForm& options)
{
    const auto choices = options.meaningChoices();
    for (std::size_t i = 0; i < serviceCount; ++i) {
        if (choices[i])
            chosen_ = static_cast<Service>(i);
    }
}

std::string MeaningServices::addressOf(std::string_view word) const
{
    return hosts_[chosen_] + addresses[chosen_].path + std::string(word) + addresses[chosen_].afterWord;
}

bool isServiceAddress(std::string_view text)
{
    const bool plain = text.starts_with("http://");
    if (!plain && !text.starts_with("https://"))
        return false;
    text.remove_prefix(plain ? 7 : 8);
    const std::size_t colon = text.find(':');
    if (colon != std::string_view::npos && !isPort(text.substr(colon + 1)))
        return false;
    const std::string_view host = text.substr(0, colon);
    if (!isHost(host))
        return false;
    return !plain || host == "localhost" || host == "127.0.0.1";
}

} // namespace lexigrove
