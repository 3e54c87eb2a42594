#include "console/option_settings.hpp"

#include "platform/ascii.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace lexigrove
{

namespace
{

/// An option whose value is one of the choices of a frame.
struct ChoiceOption {
    std::string_view key;
    std::array<std::string_view, 4> values; ///< unused ones are empty
    std::array<Choice OptionsForm::*, 4> choices;

    [[nodiscard]] std::size_t count() const
    {
        return static_cast<std::size_t>(std::find(values.begin(), values.end(), "") - values.begin());
    }
};

using Form = OptionsForm;

constexpr ChoiceOption arrangement{"arrangement", {"Square", "Staggered"}, {&Form::s8x8, &Form::s7x8}};
constexpr ChoiceOption dictionary{
    "dictionary", {"0", "1", "2", "3"}, {&Form::Option2, &Form::Option3, &Form::Option4, &Form::Option5}};
constexpr ChoiceOption strategy{
    "strategy", {"any", "longest", "highest"}, {&Form::Option14, &Form::Option13, &Form::Option12}};
constexpr ChoiceOption sound{"sound", {"on", "off"}, {&Form::Option15, &Form::Option16}};
constexpr ChoiceOption animation{"animation", {"on", "off"}, {&Form::Option10, &Form::Option11}};
constexpr ChoiceOption meanings{
    "meanings", {"1", "2", "3", "4"}, {&Form::Option6, &Form::Option7, &Form::Option8, &Form::Option9}};

constexpr const ChoiceOption* choiceOptions[] = {&arrangement, &dictionary, &strategy, &sound, &animation, &meanings};

constexpr std::string_view yesNo[] = {"no", "yes"};
constexpr std::string_view vocabularies[] = {"every", "common", "simple"};
constexpr std::string_view pressures[] = {"on", "relaxed"};

const ChoiceOption* findChoiceOption(std::string_view key)
{
    for (const ChoiceOption* option : choiceOptions) {
        if (option->key == key)
            return option;
    }
    return nullptr;
}

std::size_t placeOf(const ChoiceOption& option, std::string_view value)
{
    return choiceOf(option.key, value, {option.values.data(), option.count()});
}

std::string line(const ChoiceOption& option, const OptionsForm& form)
{
    std::string text = std::string(option.key) + "=";
    for (std::size_t i = 0; i < option.count(); ++i) {
        if ((form.*option.choices[i]).Value)
            text += option.values[i];
    }
    return text;
}

bool isFreeText(std::string_view key)
{
    return key == "user_dictionary" || key == "scheme";
}

/// Letters in any case, or "x", which `options` prints for a game whose score is not recorded.
void checkPreset(const std::string& value)
{
    if (value.size() > std::size_t{PresetLetters::count} || !std::all_of(value.begin(), value.end(), ascii::isLetter))
        throw CommandError("preset must be up to 100 letters A to Z: " + value);
}

void choosePresetLetters(PresetLetters& preset, const std::string& value)
{
    if (value == "x")
        preset.markUnrecorded();
    else
        preset.choose(ascii::upperCase(value));
}

} // namespace

OptionSetting readOption(std::string_view text)
{
    const std::size_t equals = text.find('=');
    OptionSetting setting{std::string(text.substr(0, equals)), ""};
    if (equals != std::string_view::npos)
        setting.value = text.substr(equals + 1);
    const std::string& key = setting.key;
    const ChoiceOption* const option = findChoiceOption(key);
    if (option == nullptr && key != "computer" && key != "preset" && key != "computer_knows" && key != "pressure" &&
        !isFreeText(key))
        throw CommandError("unknown option: " + key);
    if (equals == std::string_view::npos)
        throw CommandError("missing value: " + key);
    if (option != nullptr)
        placeOf(*option, setting.value);
    else if (key == "computer")
        choiceOf(key, setting.value, yesNo);
    else if (key == "computer_knows")
        choiceOf(key, setting.value, vocabularies);
    else if (key == "pressure")
        choiceOf(key, setting.value, pressures);
    else if (key == "preset")
        checkPreset(setting.value);
    return setting;
}

std::vector<OptionSetting> readOptions(Arguments& arguments)
{
    std::vector<OptionSetting> settings;
    while (const auto argument = arguments.next()) {
        const bool goesOn =
            argument->find('=') == std::string::npos && !settings.empty() && isFreeText(settings.back().key);
        if (goesOn)
            settings.back().value += ' ' + *argument;
        else
            settings.push_back(readOption(*argument));
    }
    return settings;
}

void applyOption(OptionsForm& form, const OptionSetting& setting)
{
    const auto& [key, value] = setting;
    if (const ChoiceOption* const option = findChoiceOption(key)) {
        Choice& choice = form.*option->choices[placeOf(*option, value)];
        form.select(choice);
        form.mouseReleased(choice);
    } else if (key == "computer") {
        form.setValue(form.Check1, value == "yes");
        form.mouseReleased(form.Check1);
    } else if (key == "computer_knows") {
        form.settings.vocabulary = static_cast<Vocabulary>(choiceOf(key, value, vocabularies));
    } else if (key == "pressure") {
        form.settings.pressure = static_cast<Pressure>(choiceOf(key, value, pressures));
    } else if (key == "user_dictionary") {
        form.typeUserDictName(value);
    } else if (key == "scheme") {
        form.chooseScheme(value);
    } else {
        choosePresetLetters(form.settings.presetLetters, value);
    }
}

Lines optionLines(const OptionsForm& form, const std::string& schemeName)
{
    Lines lines{line(arrangement, form),
                line(dictionary, form),
                "user_dictionary=" + form.UsrDictName.Text,
                std::string("computer=") + (form.Check1.Value ? "yes" : "no"),
                line(strategy, form),
                line(sound, form),
                line(animation, form),
                line(meanings, form),
                "scheme=" + schemeName,
                "preset=" + form.settings.presetLetters.text()};
    if (form.settings.vocabulary != Vocabulary::Every)
        lines.push_back("computer_knows=" +
                        std::string(vocabularies[static_cast<std::size_t>(form.settings.vocabulary)]));
    if (form.settings.pressure != Pressure::On)
        lines.push_back("pressure=" + std::string(pressures[static_cast<std::size_t>(form.settings.pressure)]));
    return lines;
}

} // namespace lexigrove
