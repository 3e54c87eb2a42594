#pragma once

#include "controls/dc.hpp"
#include "dictionary/level_lists.hpp"
#include "game/game.hpp"
#include "opponent/board_search.hpp"

#include <cstdint>
#include <span>

namespace lexigrove
{

/// The computer's turn: it finds every word on the board, picks one by the strategy of the options, shows it like a
/// player's selection, waits for the player to acknowledge it, and plays it. Its words are scored by their letters
/// alone.
class ComputerTurn
{
public:
    ComputerTurn(Game& game, BoardSearch& search, LevelLists& lists, Dc& Dc1)
        : game_(game), search_(search), lists_(lists), Dc1_(Dc1)
    {
    }

    /// Takes one whole turn; does nothing while a turn is in progress.
    void take();

private:
    void begin();
    [[nodiscard]] const WordList& knownWords();
    [[nodiscard]] int choosePosition(const CandidateList& candidates) const;
    void showSelected(std::span<const std::uint8_t> path);
    void play();
    void refillBoard();
    void end();

    Game& game_;
    BoardSearch& search_;
    LevelLists& lists_;
    Dc& Dc1_;
    WordList players_; ///< the dictionary that `known_` is a part of
    Vocabulary vocabulary_ = Vocabulary::Every;
    WordList known_;
};

/// Enter Word and what follows: the player's word and, in a game against the computer, its answer.
EnterResult enterWord(Game& game, ComputerTurn& computer);

} // namespace lexigrove
