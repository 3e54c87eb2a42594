#pragma once

#include "game/game.hpp"
#include "opponent/board_search.hpp"
#include "opponent/computer_turn.hpp"
#include "opponent/hints_form.hpp"

namespace lexigrove
{

/// What a hint costs: 10, 15 and 20 points at levels 1 to 3, 15 with a user dictionary (level 0).
int hintPrice(int level);

/// `Hintx`: sells the player a look at every word on the board.
class Hints
{
public:
    Hints(Game& game, BoardSearch& search, ComputerTurn& computer, HintsForm& form)
        : game_(game), search_(search), computer_(computer), form_(form)
    {
    }

    /// Charges the price, which is not refunded if there is no word; shows the hints; enters the word chosen.
    void getHint();

private:
    [[nodiscard]] bool pay();

    Game& game_;
    BoardSearch& search_;
    ComputerTurn& computer_;
    HintsForm& form_;
};

} // namespace lexigrove
