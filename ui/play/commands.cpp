#include "ui/play/commands.hpp"

#include <QCoreApplication>

namespace lexigrove
{

namespace
{

QString text(const char* english)
{
    return QCoreApplication::translate("MainWindow", english);
}

} // namespace

std::vector<Menu> mainMenus()
{
    using Flow = GameFlow;
    const auto none = CommandTime::Always;
    const auto inGame = CommandTime::InGame;
    const auto inPlay = CommandTime::InPlay;
    return {
        {text("&Game"),
         {
             {&Flow::menuNewGame, text("&New Game..."), {QKeySequence::New}, {}, inPlay, false},
             {&Flow::pause, text("&Pause"), {Qt::CTRL | Qt::Key_P, Qt::Key_Pause}, {}, inGame, false},
             {&Flow::soundButton, text("&Sound"), {Qt::CTRL | Qt::Key_M}, {}, none, true},
             {&Flow::exit, text("E&xit"), {QKeySequence(Qt::CTRL | Qt::Key_Q)}, {}, none, true},
         }},
        {text("&Words"),
         {
             {&Flow::enterWord, text("&Enter Word"), {}, text("Enter"), inPlay, false},
             {&Flow::escape, text("&Clear Word"), {}, text("Esc"), inPlay, false},
             {&Flow::getHint, text("Get &Hint..."), {Qt::CTRL | Qt::Key_H}, {}, inPlay, true},
             {&Flow::checkSpelling, text("Chec&k Spelling"), {Qt::CTRL | Qt::Key_K}, {}, inPlay, false},
             {&Flow::showMeaning, text("&Meaning..."), {Qt::CTRL | Qt::Key_I}, {}, inPlay, false},
             {&Flow::addWord, text("&Add Word..."), {Qt::CTRL | Qt::Key_D}, {}, inPlay, false},
         }},
        {text("&View"),
         {
             {&Flow::showTopTen, text("&Top Ten..."), {Qt::CTRL | Qt::Key_T}, {}, inPlay, false},
             {&Flow::showStatistics, text("&Statistics..."), {Qt::CTRL | Qt::Key_S}, {}, inPlay, false},
         }},
        {text("&Help"),
         {
             {&Flow::showHelp, text("&Help"), {Qt::CTRL | Qt::Key_F1}, {}, none, false},
             {&Flow::showAbout, text("&About LexiGrove..."), {}, {}, none, true},
         }},
    };
}

std::vector<PanelButton> panelButtons()
{
    using Flow = GameFlow;
    const auto inGame = CommandTime::InGame;
    const auto inPlay = CommandTime::InPlay;
    return {
        {&Flow::enterWord, "EnterWord", text("Enter Word"), text("Enter the selected word"), inPlay, 0, 8},
        {&Flow::getHint, "Hintx", text("Get Hint"), text("Let computer give you hints"), inPlay, 0, 4},
        {&Flow::checkSpelling, "CheckDict", text("Check"), text("Look the word up without entering it"), inPlay, 0, 4},
        {&Flow::showMeaning, "Meaning", text("Meaning"), text("Get meaning of the word selected"), inPlay, 1, 4},
        {&Flow::addWord, "AddWord", text("Add Word"), text("Add or remove words of the dictionary"), inPlay, 1, 4},
        {&Flow::pause, "Pause", text("Pause"), text("Stop the clock and cover the board"), inGame, 1, 4},
        {&Flow::soundButton, "SoundOnOff", text("Sound is on"), text("Switch the sound on or off"), CommandTime::Always,
         1, 5},
    };
}

} // namespace lexigrove
