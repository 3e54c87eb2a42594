#include "settings/options_form.hpp"

#include "platform/ascii.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace lexigrove
{

namespace
{

/// Restores the working folder after a file dialog, which may change it.
class WorkingFolder
{
public:
    WorkingFolder() : folder_(std::filesystem::current_path(failure_)) {}
    ~WorkingFolder()
    {
        if (!failure_)
            std::filesystem::current_path(folder_, failure_);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::error_code failure_;
    std::filesystem::path folder_;
};

/// Asks for the letters of a preset board until they are complete; an empty answer returns an empty string. Excess
/// letters are discarded; missing ones are asked for, keeping those typed.
std::string askForPresetLetters(Dialogs& dialogs)
{
    constexpr std::size_t count = PresetLetters::count;
    const std::string prompt = "Enter " + std::to_string(count) + " letters A to Z in any sequence";
    std::string defaultAnswer;
    for (;;) {
        const std::string typed = dialogs.input("Preset Letters", prompt, defaultAnswer);
        if (typed.empty())
            return {};
        if (typed.find(' ') != std::string::npos)
            continue;
        std::string letters = ascii::upperCase(typed);
        if (letters.size() < count) {
            dialogs.message("enter " + std::to_string(count - letters.size()) + " more letters");
            defaultAnswer = typed;
            continue;
        }
        if (letters.size() > count) {
            dialogs.message("last " + std::to_string(letters.size() - count) + " too many, will be discarded");
            letters.resize(count);
        }
        if (std::all_of(letters.begin(), letters.end(), ascii::isUpper))
            return letters;
        dialogs.message("Only A-Z allowed, please re-enter");
    }
}

} // namespace

OptionsForm::OptionsForm(const OptionsContext& context) : context_(context)
{
    for (Choice* choice : {&Option15, &s7x8, &Option11, &Option7, &Option4, &Option12})
        select(*choice);
    StrategyFrame.Enabled = Check1.Value;

    Combo1.Text = "Default";
    UsrDictName.Text = "UsrDict.txt";
    GetUserDictName.Caption("...");
    GetUserDictName.ToolTipText("Browse for a user dictionary");
    enableUserDictionary(false);
}

std::vector<ChoiceFrame*> OptionsForm::choiceFrames()
{
    return {&SoundFrame, &ArrangementFrame, &DropFrame, &MeaningsFrame, &DictionaryFrame, &StrategyFrame};
}

Choice* OptionsForm::find(const std::string& name)
{
    if (name == Check1.name)
        return &Check1;
    for (const ChoiceFrame* frame : choiceFrames()) {
        for (Choice* choice : frame->choices) {
            if (choice->name == name)
                return choice;
        }
    }
    return nullptr;
}

void OptionsForm::setValue(Choice& choice, bool value)
{
    choice.Value = value;
    if (!value || &choice == &Check1)
        return;
    for (const ChoiceFrame* frame : choiceFrames()) {
        const auto& group = frame->choices;
        if (std::find(group.begin(), group.end(), &choice) == group.end())
            continue;
        for (Choice* other : group)
            other->Value = other == &choice;
    }
}

void OptionsForm::mouseReleased(Choice& choice)
{
    if (&choice == &Check1) {
        StrategyFrame.Enabled = Check1.Value;
    } else if (&choice == &Option15 || &choice == &Option16) {
        if (choice.Value)
            context_.sounds.setOn(&choice == &Option15);
    } else if (&choice == &Option11) {
        if (Option11.Value)
            settings.dropDelay = 0;
    } else if (&choice == &Option10) {
        if (!Option10.Value) // if it is selected, the delay stays whatever it was last set to
            settings.dropDelay = 0;
    } else if (&choice == &Option12 || &choice == &Option13 || &choice == &Option14) {
        if (choice.Value)
            setStrategy();
    } else if (&choice == &Option2) {
        enableUserDictionary(Option2.Value);
        applyDictionaryChoice();
    } else if (&choice == &Option3 || &choice == &Option4 || &choice == &Option5) {
        if (choice.Value)
            enableUserDictionary(false);
        applyDictionaryChoice();
    }
}

void OptionsForm::browseUserDictionary()
{
    const std::string patterns = "*.txt;*.dat;*.dic";
    OpenFileRequest request;
    request.title = "Select User Dictionary file to open";
    request.filter = "Text Files (" + patterns + ")" + '\0' + patterns + '\0';
    request.initialFolder = context_.folder;

    std::string file;
    {
        const WorkingFolder back;
        file = context_.dialogs.openFile(request);
    }
    if (file.empty())
        return;
    UsrDictName.Text = file;
    UsrDictName.ToolTipText = file;
    applyDictionaryChoice();
}

void OptionsForm::typeUserDictName(const std::string& text)
{
    UsrDictName.Text = text;
    applyDictionaryChoice();
}

bool OptionsForm::presetBoard()
{
    const std::string letters = askForPresetLetters(context_.dialogs);
    if (letters.empty())
        return false;
    settings.presetLetters.choose(letters);
    context_.dialogs.message("Tiles preset, press Start to commence game");
    return true;
}

void OptionsForm::chooseScheme(const std::string& name)
{
    const BusyPointer busy(context_.screen);
    Combo1.Text = name;
    context_.scheme.load(name);
    colourSchemeBox();
}

void OptionsForm::loadSchemes()
{
    context_.scheme.load(context_.scheme.currentName);
    Combo1.list = context_.scheme.filesInFolder();
    Combo1.Text = context_.scheme.currentName;
    colourSchemeBox();
}

void OptionsForm::soundButton()
{
    if (context_.sounds.isOn()) {
        context_.sounds.setOn(false);
        select(Option16);
    } else {
        context_.sounds.setOn(true);
        context_.sounds.play(cue::soundOn);
        select(Option15);
    }
}

void OptionsForm::open(LookBack lookBack)
{
    lookBack_ = lookBack;
    answer_ = Answer::None;
    visible_ = true;
}

void OptionsForm::hide(Answer answer)
{
    answer_ = answer;
    visible_ = false;
}

void OptionsForm::takeChoices()
{
    setSound();
    if (!animates())
        settings.dropDelay = 0;
    setStrategy();
    applyDictionaryChoice();
}

void OptionsForm::setSound()
{
    if (Option15.Value)
        context_.sounds.setOn(true);
    if (Option16.Value)
        context_.sounds.setOn(false);
}

void OptionsForm::setStrategy()
{
    if (Option12.Value)
        settings.strategy = Strategy::HighestScore;
    if (Option13.Value)
        settings.strategy = Strategy::LongestWord;
    if (Option14.Value)
        settings.strategy = Strategy::Any;
}

void OptionsForm::applyDictionaryChoice()
{
    const Choice* const choices[] = {&Option2, &Option3, &Option4, &Option5};
    for (int level = 0; level <= 3; ++level) {
        if (choices[level]->Value)
            context_.dictionary.applyChoice(level, UsrDictName.Text);
    }
}

bool OptionsForm::lacksUserDictionary() const
{
    std::error_code failure;
    return Option2.Value &&
           !std::filesystem::is_regular_file(context_.folder / std::filesystem::path(UsrDictName.Text), failure);
}

void OptionsForm::enableUserDictionary(bool enabled)
{
    UsrDictName.Enabled = enabled;
    GetUserDictName.Enabled(enabled);
}

void OptionsForm::colourSchemeBox()
{
    Combo1.backColor = context_.scheme.entry(scheme_entry::wordList);
    SchemeFrame.backColor = context_.scheme.entry(scheme_entry::background);
}

} // namespace lexigrove
