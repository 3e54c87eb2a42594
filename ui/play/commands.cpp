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
    return {
        {text("&Game"),
         {
             {Command::NewGame, text("&New Game..."), {QKeySequence::New}, {}, false},
             {Command::Daily, text("Board of the &Day"), {Qt::CTRL | Qt::Key_B}, {}, false},
             {Command::SharedBoard, text("P&lay a Shared Board..."), {}, {}, false},
             {Command::CopyBoard, text("&Copy Board"), {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, {}, false},
             {Command::PastGames, text("Past &Games..."), {Qt::CTRL | Qt::Key_G}, {}, true},
             {Command::Pause, text("&Pause"), {Qt::CTRL | Qt::Key_P, Qt::Key_Pause}, {}, true},
             {Command::Sound, text("&Sound"), {Qt::CTRL | Qt::Key_M}, {}, false},
             {Command::KeepForLater, text("&Keep for Later"), {Qt::CTRL | Qt::SHIFT | Qt::Key_Q}, {}, true},
             {Command::Exit, text("E&xit"), {QKeySequence(Qt::CTRL | Qt::Key_Q)}, {}, false},
         }},
        {text("&Words"),
         {
             {Command::EnterWord, text("&Enter Word"), {}, text("Enter"), false},
             {Command::ClearWord, text("&Clear Word"), {}, text("Esc"), false},
             {Command::OtherPath, text("&Other Path"), {Qt::CTRL | Qt::Key_O}, {}, false},
             {Command::SwapLetter, text("&Swap Letter"), {Qt::CTRL | Qt::Key_W}, {}, false},
             {Command::GetHint, text("Get &Hint..."), {Qt::CTRL | Qt::Key_H}, {}, true},
             {Command::CheckWord, text("Chec&k Spelling"), {Qt::CTRL | Qt::Key_K}, {}, false},
             {Command::ShowMeaning, text("&Meaning..."), {Qt::CTRL | Qt::Key_I}, {}, false},
             {Command::AddWord, text("&Add Word..."), {Qt::CTRL | Qt::Key_D}, {}, false},
         }},
        {text("&View"),
         {
             {Command::TopTen, text("&Top Ten..."), {Qt::CTRL | Qt::Key_T}, {}, false},
             {Command::Statistics, text("&Statistics..."), {Qt::CTRL | Qt::Key_S}, {}, false},
         }},
        {text("&Help"),
         {
             {Command::Help, text("&Help"), {Qt::CTRL | Qt::Key_F1}, {}, false},
             {Command::About, text("&About LexiGrove..."), {}, {}, true},
         }},
    };
}

std::vector<PanelButton> panelButtons()
{
    return {
        {Command::EnterWord, "EnterWord", text("Enter Word"), text("Enter the selected word"), 0, 8},
        {Command::GetHint, "Hintx", text("Get Hint"), text("Let computer give you hints"), 0, 4},
        {Command::CheckWord, "CheckDict", text("Check"), text("Look up the word without entering it"), 0, 4},
        {Command::ShowMeaning, "Meaning", text("Meaning"), text("Get meaning of the word selected"), 1, 4},
        {Command::AddWord, "AddWord", text("Add Word"), text("Add words to the dictionary or remove them"), 1, 4},
        {Command::Pause, "Pause", text("Pause"), text("Stop the clock and cover the board"), 1, 4},
        {Command::Sound, "SoundOnOff", text("Sound is on"), text("Switch the sound on or off"), 1, 5},
    };
}

} // namespace lexigrove
