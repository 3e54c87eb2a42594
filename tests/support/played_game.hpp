#pragma once

#include "flow/game_parts.hpp"
#include "flow/study.hpp"
#include "record/continue_form.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lexigrove
{

/// Windows that are noted ("top ten 22") and closed at once, unless a test does something in them.
class ScriptedWindows : public Windows
{
public:
    std::vector<std::string> shown;
    std::function<void(OptionsForm&)> onOptions = [](OptionsForm& form) { form.pressStart(); };
    std::function<void(HintsForm&)> onHints = [](HintsForm& form) { form.pressClose(); };
    std::function<void(ContinueForm&)> onContinue = [](ContinueForm& form) { form.accepted = true; };
    std::function<void(ReviewForm&)> onReview = [](ReviewForm& form) { form.pressClose(); };

    void show(OptionsForm& form) override
    {
        shown.emplace_back("options");
        onOptions(form);
    }
    void show(ScoreForm& form) override
    {
        shown.push_back("top ten " + form.requestCode());
        form.activate();
        form.pressCloseForm();
    }
    void show(HintsForm& form) override
    {
        shown.push_back(form.Caption);
        onHints(form);
    }
    void show(ContinueForm& form) override
    {
        shown.emplace_back(ContinueForm::question);
        onContinue(form);
    }
    void show(PastGamesForm& form) override
    {
        shown.push_back("past games " + std::to_string(form.rows().size()));
        form.pressClose();
    }
    void show(ReviewForm& form) override
    {
        shown.push_back(form.caption());
        onReview(form);
    }
    void show(const MeaningForm& form) override { shown.push_back("meaning " + form.address); }
    void show(const StatisticsForm& /*form*/) override { shown.emplace_back("statistics"); }
    void show(DictionaryMaintenance& form) override { shown.push_back("maintenance " + form.word); }
    void showHelp(const std::string& address) override { shown.push_back("help " + address); }
    void showAbout() override { shown.emplace_back("about"); }
};

/// The outside of a game: a program folder with the same words at every level, a player, and a still clock.
struct QuietWorld {
    explicit QuietWorld(const std::string& words)
    {
        for (const char* name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt", "UsrDict.txt"})
            folder.write(name, words);
    }
    [[nodiscard]] Ports ports() { return {dialogs, screen, sounds, clock, random, status, windows}; }

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    QuietScreen screen;
    RecordedSounds sounds;
    StillClock clock;
    Random random{20'050'101};
    StatusLine status;
    ScriptedWindows windows;
};

/// A game to be played: the flow's inputs, what it shows, and the study that sets up positions.
struct PlayedGame : QuietWorld {
    explicit PlayedGame(const std::string& words = "CAT\r\nQUIZ\r\n") : QuietWorld(words) { flow.startUp(); }

    void choose(Choice OptionsForm::*choice)
    {
        study.chooseOptions([=](OptionsForm& form) { form.select(form.*choice); });
    }
    void start(Arrangement arrangement, const std::string& presetLetters = {})
    {
        choose(arrangement == Arrangement::Square ? &OptionsForm::s8x8 : &OptionsForm::s7x8);
        study.chooseOptions([&](OptionsForm& form) { form.settings.presetLetters.choose(presetLetters); });
        flow.startGame();
        ASSERT_TRUE(flow.inGame());
    }
    void click(const std::vector<int>& tiles)
    {
        for (const int tile : tiles)
            flow.clickTile(tile, MouseButton::Left, false);
    }

    GameFlow flow{ports(), folder.path(), SystemPalette()};
    Study study{flow};
    const GameState& state = flow.view().state;
    const Board& board = flow.view().board;
    const Selection& path = flow.view().selection;
};

/// 100 preset letters: what is given for tiles 1, 2, ..., and "E" for the rest.
inline std::string presetOf(std::string letters)
{
    letters.resize(100, 'E');
    return letters;
}

} // namespace lexigrove
