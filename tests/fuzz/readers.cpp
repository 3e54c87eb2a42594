#include "tests/fuzz/readers.hpp"

#include "record/saved_game.hpp"
#include "tests/support/played_game.hpp"

#include <cstdlib>
#include <iostream>

namespace lexigrove
{

namespace
{

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::cerr << "Not so: " << what << '\n';
    std::abort();
}

/// A game in whose folder one file holds the text. The player answers every question, and no name.
struct GameWithFile : QuietWorld {
    GameWithFile(const std::string& name, const std::string& text) : QuietWorld("CAT\r\nQUIZ\r\n")
    {
        folder.write(name, text);
        dialogs.answers = {"yes", "yes", "yes", "yes"};
        flow.startUp();
    }

    GameFlow flow{ports(), folder.path(), SystemPalette()};
    Study study{flow};
};

void readDictionary(const std::string& text)
{
    GameWithFile game("L2Ascii.txt", text);
    game.flow.startGame();
    if (!game.flow.inGame())
        return; // too long, and the program has ended
    game.study.sweep();
    game.study.maintain(Study::Maintenance::AddWord, "EMU");
    game.study.maintain(Study::Maintenance::RemoveWord, "EMU");
    game.flow.perform(Command::ExportWords);
}

void readConfiguration(const std::string& text)
{
    GameWithFile game("Lexigrove.cfg", text);
    game.flow.startGame();
    game.study.saveConfiguration();
    const std::string written = game.folder.read("Lexigrove.cfg");
    game.study.loadConfiguration();
    game.study.saveConfiguration();
    require(game.folder.read("Lexigrove.cfg") == written, "a configuration is read as it was written");
}

void readScheme(const std::string& text)
{
    GameWithFile game("Night.sch", text);
    game.study.loadScheme("Night.sch");
    game.flow.startGame();
}

void readScores(const std::string& text)
{
    GameWithFile game("LexigroveScores.txt", text);
    game.study.showTopTen(500);
    require(game.study.scores().size() == 10, "there are ten scores");
}

void readSavedGame(const std::string& text)
{
    GameWithFile game("LexigroveGame.txt", text);
    game.windows.onContinue = [](ContinueForm& form) { form.accepted = true; };
    game.flow.continueGame();
    if (!game.flow.inGame())
        return;
    const Position position = game.flow.position();
    require(savedGameOf(textOf(SavedGame{"2026-11-23 04:15", position})).position == position,
            "a saved game is read as it was written");
    for (const Timer timer : {Timer::Red, Timer::Push, Timer::Clock})
        game.flow.tick(timer);
    game.flow.perform(Command::GetHint);
    game.flow.perform(Command::EnterWord);
}

void readRecord(const std::string& text)
{
    try {
        const std::string written = textOf(gameRecordOf(text));
        require(textOf(gameRecordOf(written)) == written, "a record is read as it was written");
    } catch (const PositionError&) {
        return;
    }
}

void readPosition(const std::string& text)
{
    GameWithFile game("Mine.txt", "CAT\r\n");
    try {
        const BoardPosition board = boardPositionOf(text);
        require(boardPositionOf(textOf(board)) == board, "a position is read as it was written");
        game.flow.playPosition(board);
        game.flow.perform(Command::GetHint);
    } catch (const PositionError&) {
        game.flow.playShared(text);
    }
}

} // namespace

const std::map<std::string, Reader>& readers()
{
    static const std::map<std::string, Reader> all{
        {"configuration", readConfiguration},
        {"dictionary", readDictionary},
        {"position", readPosition},
        {"record", readRecord},
        {"saved_game", readSavedGame},
        {"scheme", readScheme},
        {"scores", readScores},
    };
    return all;
}

} // namespace lexigrove
