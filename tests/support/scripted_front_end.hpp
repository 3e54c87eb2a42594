#pragma once

#include "flow/game_flow.hpp"
#include "platform/leaving.hpp"
#include "tests/support/temporary_folder.hpp"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lexigrove
{

/// A front end without a screen: it notes what it is told and answers from the test's functions. The clock stands still
/// unless a test moves it. A question that no test function answers fails the test and leaves the game.
class ScriptedFrontEnd : public Dialogs,
                         public Screen,
                         public SoundDevice,
                         public Clock,
                         public StatusLine,
                         public OptionsWindow,
                         public ScoreWindow,
                         public HintsWindow,
                         public MeaningWindow,
                         public StatisticsWindow,
                         public MaintenanceWindow,
                         public HelpWindow,
                         public AboutWindow
{
public:
    /// Everything that was told, in order: "message ...", "confirm ...", "input ...", "sound ...", "status ...",
    /// "window ...".
    std::vector<std::string> log;

    std::function<bool(const std::string&)> onConfirm = unexpected<bool, const std::string&>("a question");
    std::function<std::string(const std::string&)> onInput =
        unexpected<std::string, const std::string&>("an input box");
    std::function<void()> onYield = [] {};
    std::function<void()> onAnimationStep = [] {};
    std::function<void()> onWait = [] {};
    std::function<void(OptionsForm&)> onOptions = [](OptionsForm& form) { form.pressStart(); };
    std::function<void(ScoreForm&)> onScores = [](ScoreForm& form) { form.pressCloseForm(); };
    std::function<void(HintsForm&)> onHints = [](HintsForm& form) { form.pressClose(); };

    double timeOfDay = 43'200;
    int animationSteps = 0;
    bool busyPointer = false;
    bool locked = false;
    Random random{20'050'101};

    [[nodiscard]] Ports ports() { return {*this, *this, *this, *this, random, *this}; }
    [[nodiscard]] Windows windows() { return {*this, *this, *this, *this, *this, *this, *this, *this}; }

    [[nodiscard]] int count(const std::string& entry) const
    {
        return static_cast<int>(std::count(log.begin(), log.end(), entry));
    }

    void message(const std::string& text) override { log.push_back("message " + text); }
    bool confirm(const std::string& text) override
    {
        log.push_back("confirm " + text);
        return onConfirm(text);
    }
    std::string input(const std::string& title, const std::string& prompt, const std::string& /*answer*/) override
    {
        log.push_back("input " + title + ": " + prompt);
        return onInput(prompt);
    }
    std::string openFile(const OpenFileRequest& /*request*/) override { return {}; }

    void yield() override { onYield(); }
    void animationStep(int /*rounds*/) override
    {
        ++animationSteps;
        onAnimationStep();
    }
    void setBusyPointer(bool busy) override { busyPointer = busy; }
    void lockBoardUpdates(bool lock) override
    {
        EXPECT_NE(locked, lock) << "a single lock is held at a time";
        locked = lock;
    }
    void waitForAnyInput() override { onWait(); }

    void send(const std::string& command) override { log.push_back("sound " + command.substr(command.rfind('/') + 1)); }

    [[nodiscard]] double secondsSinceMidnight() const override { return timeOfDay; }
    [[nodiscard]] std::string shortDate() const override { return "11/22/26"; }
    [[nodiscard]] std::string shortTime() const override { return "12:00:00"; }

    void show(OptionsForm& form) override
    {
        log.emplace_back("window options");
        onOptions(form);
    }
    void show(ScoreForm& form) override
    {
        log.push_back("window top ten " + form.requestCode());
        form.activate();
        onScores(form);
    }
    void show(HintsForm& form) override
    {
        log.push_back("window hints " + form.Caption);
        onHints(form);
    }
    void show(const MeaningForm& form) override { log.push_back("window meaning " + form.address); }
    void show(const StatisticsForm& /*form*/) override { log.emplace_back("window statistics"); }
    void show(DictionaryMaintenance& form) override { log.push_back("window maintenance " + form.word); }
    void show(const HelpForm& form) override { log.push_back("window help " + form.Tag); }
    void show(const AboutForm& /*form*/) override { log.emplace_back("window about"); }

protected:
    void written(const std::string& caption) override { log.push_back("status " + caption); }

private:
    template <typename Answer, typename Argument>
    static std::function<Answer(Argument)> unexpected(const std::string& what)
    {
        return [what](Argument text) -> Answer {
            ADD_FAILURE() << what << " that nobody expected: " << text;
            throw Leaving{};
        };
    }
};

/// A game in a folder of its own, with a dictionary of the test's words at every level.
class PlayedGame
{
public:
    explicit PlayedGame(const std::string& words)
    {
        for (const char* name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt"})
            folder.write(name, words);
        folder.write("Default.sch", defaultScheme());
        flow.startUp();
        flow.options.select(flow.options.Option16); // silent unless a test wants sounds
    }

    void start(Arrangement arrangement, const std::string& presetLetters = {})
    {
        flow.options.select(arrangement == Arrangement::Square ? flow.options.s8x8 : flow.options.s7x8);
        flow.options.settings.presetLetters = presetLetters;
        flow.startGame();
        ASSERT_TRUE(flow.inGame());
    }

    /// Clicks the tiles with the left button.
    void click(const std::vector<int>& tiles)
    {
        for (const int tile : tiles)
            flow.clickTile(tile, MouseButton::Left, false);
    }

    [[nodiscard]] Board& board() { return flow.game.board; }
    [[nodiscard]] GameState& state() { return flow.game.state; }
    [[nodiscard]] int yourScore() { return numberOf(state().YourScore.Caption); }

    TemporaryFolder folder;
    ScriptedFrontEnd frontEnd;
    GameFlow flow{frontEnd.ports(), frontEnd.windows(), folder.path()};

private:
    static std::string defaultScheme()
    {
        std::string scheme;
        for (int i = 0; i < 13; ++i)
            scheme += "&H" + std::to_string(100000 + 64 * i) + ";\r\n";
        return scheme;
    }
};

/// 100 preset letters: what is given for tiles 1, 2, ..., and "E" for the rest.
inline std::string presetOf(std::string letters)
{
    letters.resize(100, 'E');
    return letters;
}

} // namespace lexigrove
