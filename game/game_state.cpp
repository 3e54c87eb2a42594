#include "game/game_state.hpp"

#include <limits>

namespace lexigrove
{

void GameState::resetForNewGame()
{
    WordTried = {"", ownBack, ownFore};
    CurrScore = {"", ownBack, ownFore};
    YourScore.Caption = "0";
    CompScore.Caption = "0";
    TilesLeft.Caption.clear();
    Label4.Caption.clear();
    EnterWord.Visible = true;
    Frame3.Enabled = true;
    Picture1.Enabled = true;
    WordsMade.clear();
    computerTurnInProgress = false;

    statistics.reset();
    bonusTilesOnBoard = 0;
    redTilesOnBoard = 0;
    redTilesUsed = 0;
    wordsMade = 0;
    hintsUsed = 0;
    tickCount = 0;
    pressure = 0;
    lastPressure = 0;
}

void countUp(std::int16_t& counter)
{
    if (counter < std::numeric_limits<std::int16_t>::max())
        ++counter;
}

} // namespace lexigrove
