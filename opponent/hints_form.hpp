#pragma once

#include "controls/box_control.hpp"
#include "controls/words_grid.hpp"
#include "game/game.hpp"
#include "opponent/candidate_list.hpp"
#include "word_services/meanings.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// The hints window `Form2`: every word on the board, each with its path. Picking a row shows its path on the board.
class HintsForm
{
public:
    HintsForm(Game& game, Meanings& meanings);

    /// Fills the grid for a new showing and forgets the path picked before.
    void activate(const CandidateList& candidates);

    /// Picks a row of the grid, 1 to Rows - 1: restores the look of the previous path and shows this one.
    void pickRow(int row);

    /// The heading was clicked at a horizontal position (units): sorts the grid.
    void headingClicked(int x) { WordsMade.headingClicked(x); }

    /// `BoxControl2`: makes the picked path the selection and its word the window's result, and hides the window.
    void pressSelect();

    /// `BoxControl1`: gives the path its normal look and hides the window; the result stays empty.
    void pressClose();

    /// `Meaning`: the meaning of the word in the current row.
    void pressMeaning();

    [[nodiscard]] bool isVisible() const { return visible_; }

    /// The word chosen; empty if none was.
    [[nodiscard]] const std::string& result() const { return result_; }

    /// The tiles of the path shown on the board, in order; empty if none is.
    [[nodiscard]] const std::vector<int>& shownPath() const { return shownPath_; }

    std::string Caption; ///< "12 hints"
    WordsGrid WordsMade;
    BoxControl BoxControl1; ///< "Close"
    BoxControl BoxControl2; ///< "Select"
    BoxControl Meaning;

private:
    void restoreLooks();

    Game& game_;
    Meanings& meanings_;
    std::vector<std::uint8_t> pickedPath_; ///< of the hint picked last
    std::vector<int> shownPath_;
    std::string result_;
    bool visible_ = false;
};

} // namespace lexigrove
