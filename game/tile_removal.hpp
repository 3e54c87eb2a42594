#pragma once

#include "game/board.hpp"
#include "game/selection.hpp"
#include "game/tile_look.hpp"
#include "platform/screen.hpp"
#include "settings/options_form.hpp"
#include "settings/sound_cues.hpp"

namespace lexigrove
{

/// Takes letters off the board; the letters above them move down.
class TileRemoval
{
public:
    TileRemoval(Board& board, Selection& selection, const TileLook& look, SoundCues& sounds, Screen& screen,
                const OptionsForm& options)
        : board_(board), selection_(selection), look_(look), sounds_(sounds), screen_(screen), options_(options)
    {
    }

    /// Removes the tiles of the current path, column by column from the left, top to bottom.
    void removePathTiles();

    /// Removes the letter at a cell: the letters above it move down one cell with their multipliers and colours, and
    /// the topmost occupied cell becomes empty. An emptied cell is plain.
    void moveColumnDown(int row, int col);

private:
    void animateColumn(int firstRow, int row, int col);
    void emptyCell(BoxControl& tile);

    Board& board_;
    Selection& selection_;
    const TileLook& look_;
    SoundCues& sounds_;
    Screen& screen_;
    const OptionsForm& options_;
};

} // namespace lexigrove
