#pragma once

#include "game/game.hpp"
#include "opponent/computer_turn.hpp"

namespace lexigrove
{

/// Enter Word and what follows: the player's word and, in a game against the computer, the computer's answer.
class WordRound
{
public:
    WordRound(Game& game, ComputerTurn& computer) : game_(game), computer_(computer) {}

    EnterResult enterWord()
    {
        const EnterResult result = game_.wordEntry.enterWord();
        const bool turnPasses = result == EnterResult::Passed || result == EnterResult::Entered;
        if (game_.state.computerGame && turnPasses)
            computer_.take();
        return result;
    }

private:
    Game& game_;
    ComputerTurn& computer_;
};

} // namespace lexigrove
