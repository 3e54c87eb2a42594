#include "settings/colour_scheme.hpp"

#include "platform/ascii.hpp"
#include "platform/text_file.hpp"
#include "settings/readable_colours.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace lexigrove
{

namespace
{

/// The number at the start of a text in `base` 10 or 16, with a fraction if decimal; 0 without a digit.
double digitsOf(std::string_view text, int base)
{
    double value = 0;
    double place = 0; // of the next digit after the point
    for (const char c : text) {
        if (c == '.' && base == 10 && place == 0) {
            place = 0.1;
            continue;
        }
        const int digit = ascii::hexValue(c);
        if (digit < 0 || digit >= base)
            break;
        if (place == 0) {
            value = value * base + digit;
        } else {
            value += digit * place;
            place /= 10;
        }
    }
    return value;
}

/// A lenient conversion: blanks and whatever follows the number are ignored, and no number at all is 0.
double lenientNumber(std::string_view field)
{
    std::string text;
    std::copy_if(field.begin(), field.end(), std::back_inserter(text), [](char c) { return c != ' ' && c != '\t'; });
    if (text.size() >= 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h'))
        return digitsOf(std::string_view(text).substr(2), 16);
    const bool negative = text.starts_with('-');
    const double value = digitsOf(std::string_view(text).substr(negative || text.starts_with('+') ? 1 : 0), 10);
    return negative ? -value : value;
}

/// The next field up to ";"; nothing after the last one.
std::optional<std::string_view> takeField(std::optional<std::string_view>& rest)
{
    if (!rest)
        return std::nullopt;
    const std::size_t end = rest->find(';');
    const std::string_view field = rest->substr(0, end);
    if (end == std::string_view::npos)
        rest.reset();
    else
        rest->remove_prefix(end + 1);
    return field;
}

bool isSchemeFile(const std::filesystem::directory_entry& file)
{
    std::error_code failure;
    const std::string name = file.path().filename().string();
    return ascii::lowerCase(file.path().extension().string()) == ".sch" && !name.starts_with('.') &&
           file.is_regular_file(failure);
}

} // namespace

ColourTable builtInColours()
{
    return {rgb(0xe7, 0xee, 0xe4), rgb(0xff, 0xff, 0xff), rgb(0xff, 0xff, 0xff), rgb(0xc8, 0xbe, 0xa3),
            rgb(0xc8, 0xbe, 0xa3), rgb(0xfb, 0xf7, 0xea), rgb(0x24, 0x38, 0x2c), rgb(0xa9, 0xd8, 0xb0),
            rgb(0xf3, 0xcf, 0x6b), rgb(0xc9, 0xa8, 0xea), rgb(0xc2, 0x3b, 0x2e), rgb(0xf8, 0xfb, 0xf6),
            rgb(0x2e, 0x5f, 0x94), rgb(0, 0, 0)};
}

ColourScheme::ColourScheme(std::string folder, Dialogs& dialogs) : folder_(std::move(folder)), dialogs_(dialogs) {}

void ColourScheme::load(const std::string& name)
{
    currentName = name.empty() ? defaultName : name;
    const auto readLine = currentName == defaultName ? readDefaultSchemeLine : readSchemeLine;
    try {
        const std::vector<std::string> lines = readLines(folder_ + currentName);
        std::size_t i = 0;
        while (i < fileEntries && i < lines.size() && readLine(lines[i], entries_[i]))
            ++i;
        if (i == fileEntries)
            return;
    } catch (const FileError&) {
        // reported below, like a file that ends too soon
    }
    const std::string failed = std::exchange(currentName, defaultName);
    dialogs_.message("Color Scheme File:" + failed + " not found, defaults will be used");
}

std::vector<std::string> ColourScheme::filesInFolder() const
{
    std::vector<std::string> names;
    std::error_code failure;
    for (std::filesystem::directory_iterator file(folder_, failure), end; !failure && file != end;
         file.increment(failure)) {
        if (isSchemeFile(*file))
            names.push_back(file->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

Colour ColourScheme::tileFace(Colour multiplier) const
{
    switch (multiplier) {
    case multiplier::doubled:
        return plain(scheme_entry::doubleTile);
    case multiplier::tripled:
        return plain(scheme_entry::tripleTile);
    case multiplier::quadrupled:
        return plain(scheme_entry::quadrupleTile);
    case multiplier::red:
        return plain(scheme_entry::redTile);
    default:
        return plain(scheme_entry::tileFace);
    }
}

Colour ColourScheme::tileLetter(Colour multiplier) const
{
    const Colour face = tileFace(multiplier);
    return multiplier == multiplier::plain ? readableText(plain(scheme_entry::tileLetter), face) : readableOn(face);
}

bool readSchemeLine(std::string_view line, Colour& colour)
{
    std::optional<std::string_view> rest = line;
    std::array<unsigned, 3> channels{};
    for (unsigned& channel : channels) {
        const auto field = takeField(rest);
        if (!field)
            return false;
        channel = static_cast<unsigned>(std::clamp(std::nearbyint(lenientNumber(*field)), 0.0, 255.0));
    }
    colour = rgb(channels[0], channels[1], channels[2]);
    return true;
}

bool readDefaultSchemeLine(std::string_view line, Colour& colour)
{
    std::optional<std::string_view> rest = line;
    const double number = std::nearbyint(lenientNumber(*takeField(rest)));
    if (line.empty() || number < -2147483648.0 || number > 4294967295.0)
        return false;
    colour = static_cast<Colour>(static_cast<std::int64_t>(number));
    return true;
}

} // namespace lexigrove
