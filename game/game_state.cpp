#include "game/game_state.hpp"

#include <cstdint>
#include <limits>

namespace lexigrove
{

void GameState::resetForNewGame()
{
    yourScore = 0;
    compScore = 0;
    prompt = Prompt::None;
    currScore.reset();
    letterDraw = LetterDraw::NotDealt;
    hoveredTile = 0;
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

std::string GameState::tilesLeftText() const
{
    switch (letterDraw) {
    case LetterDraw::NotDealt:
        return {};
    case LetterDraw::Ended:
        return "NONE";
    case LetterDraw::Going:
        break;
    }
    return std::to_string(tilesLeft);
}

std::string GameState::currScoreText() const
{
    return currScore ? std::to_string(currScore->score) : "";
}

void countUp(int& counter)
{
    if (counter < std::numeric_limits<std::int16_t>::max())
        ++counter;
}

} // namespace lexigrove
