#include "settings/configuration.hpp"

#include "platform/ascii.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <vector>

namespace lexigrove
{

namespace
{

/// Line invalid at this position.
struct Garbled {
};

/// A number may contain blanks anywhere and a fraction, which is dropped.
std::int16_t wholeNumber(std::string text)
{
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    if (const std::size_t point = text.find('.');
        point != std::string::npos && text.find_first_not_of("0123456789", point + 1) == std::string::npos)
        text.erase(point);
    if (text.starts_with('+'))
        text.erase(0, 1);
    std::int16_t number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc{} || end != text.data() + text.size())
        throw Garbled{};
    return number;
}

bool trueOrFalse(std::string_view line)
{
    const std::string text = ascii::lowerCase(std::string(ascii::trimmed(line, " \t")));
    if (text != "true" && text != "false")
        throw Garbled{};
    return text == "true";
}

/// The lines of a file in order; a file that ends too soon is garbled.
class LineReader
{
public:
    explicit LineReader(const std::string& path) : lines_(readLines(path)) {}

    const std::string& next()
    {
        if (place_ == lines_.size())
            throw Garbled{};
        return lines_[place_++];
    }

private:
    std::vector<std::string> lines_;
    std::size_t place_ = 0;
};

/// The choices of lines 11 to 23; line 10 is `Option2`.
std::array<Choice*, 13> storedChoices(OptionsForm& options)
{
    return {&options.Option3,  &options.Option4, &options.Option5,  &options.Option6,  &options.Option7,
            &options.Option8,  &options.Option9, &options.Option10, &options.Option11, &options.Option15,
            &options.Option16, &options.s7x8,    &options.s8x8};
}

std::string oneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, '?');
    return text;
}

const char* textOf(bool value)
{
    return value ? "True" : "False";
}

} // namespace

Configuration::Configuration(const ConfigurationContext& context)
    : context_(context), path_(context.folder + "Lexigrove.cfg")
{
}

void Configuration::load(Colour windowBackground, Colour list1Background)
{
    if (read(windowBackground, list1Background))
        return;
    setDefaults();
    context_.dialogs.message("Configuration file:\r\n" + path_ + "\r\nnot found, default file will be created");
    save();
}

/// Applies the lines one by one, so that those before a fault count. Returns false at the first fault.
bool Configuration::read(Colour windowBackground, Colour list1Background)
{
    OptionsForm& options = context_.options;
    try {
        LineReader file(path_);
        file.next(); // the time of saving
        options.Combo1.Text = context_.scheme.currentName = file.next();
        context_.Dc1.DigitWidth(wholeNumber(file.next()));
        context_.Dc1.ClockColor(file.next());
        if (context_.Dc1.ClockColor() == "DEFAULT") {
            context_.Dc1.ClockBackground(windowBackground);
            context_.Dc1.DigitHighlight(list1Background);
        }
        for (std::string& name : context_.dictionary.fileTable)
            name = file.next();
        options.settings.dropDelay = std::max<int>(wholeNumber(file.next()), 0);
        readCustomDictionary(file.next());
        for (Choice* choice : storedChoices(options))
            options.setValue(*choice, trueOrFalse(file.next()));
    } catch (const Garbled&) {
        return false;
    } catch (const FileError&) {
        return false;
    }
    if (!options.animates())
        options.settings.dropDelay = 0;
    options.setSound();
    return true;
}

void Configuration::readCustomDictionary(const std::string& line)
{
    OptionsForm& options = context_.options;
    options.setValue(options.Option2, trueOrFalse(line));
    const bool custom = line == "True";
    if (custom) {
        options.UsrDictName.Text = context_.dictionary.fileTable[0];
        options.UsrDictName.ToolTipText = options.UsrDictName.Text;
    }
    options.enableUserDictionary(custom);
}

void Configuration::setDefaults()
{
    context_.dictionary.fileTable = {"UsrDict.txt", "SysDict1.txt", "SysDict2.txt", "SysDict3.txt"};
    OptionsForm& options = context_.options;
    options.UsrDictName.Text = context_.dictionary.fileTable[0];
    options.UsrDictName.ToolTipText.clear();
    options.enableUserDictionary(false);
    for (Choice* choice : {&options.Option4, &options.Option7, &options.Option11, &options.s7x8})
        options.select(*choice);
    if (!options.Option15.Value && !options.Option16.Value)
        options.select(options.Option15);
    options.setSound();
}

void Configuration::save()
{
    if (!write())
        context_.dialogs.message("Configuration file:\r\n" + path_ + "\r\ncould not be accessed, options not saved");
}

bool Configuration::write()
{
    OptionsForm& options = context_.options;
    const auto& files = context_.dictionary.fileTable;
    std::vector<std::string> lines{context_.clock.shortDate() + " " + context_.clock.shortTime(),
                                   context_.scheme.currentName,
                                   std::to_string(context_.Dc1.DigitWidth()),
                                   context_.Dc1.ClockColor(),
                                   options.UsrDictName.Text, // not entry 0, which may be an earlier name
                                   files[1],
                                   files[2],
                                   files[3],
                                   std::to_string(options.settings.dropDelay),
                                   textOf(options.Option2.Value)};
    for (const Choice* choice : storedChoices(options))
        lines.emplace_back(textOf(choice->Value));
    for (std::string& line : lines)
        line = oneLine(line);
    try {
        replaceLines(path_, lines);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

} // namespace lexigrove
