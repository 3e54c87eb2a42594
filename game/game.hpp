#pragma once

#include "dictionary/dictionary.hpp"
#include "game/board.hpp"
#include "game/drop_row.hpp"
#include "game/game_state.hpp"
#include "game/letter_supply.hpp"
#include "game/letter_swap.hpp"
#include "game/red_tiles.hpp"
#include "game/selection.hpp"
#include "game/tile_look.hpp"
#include "game/tile_removal.hpp"
#include "game/word_entry.hpp"
#include "platform/ports.hpp"
#include "settings/colour_scheme.hpp"
#include "settings/options_form.hpp"
#include "settings/sound_cues.hpp"

namespace lexigrove
{

/// The board and the rules that play on it, put together. The constructor's arguments outlive it.
struct Game {
    Game(const Ports& outside, Dictionary& words, SoundCues& cues, ColourScheme& colours, OptionsForm& form)
        : ports(outside), dictionary(words), sounds(cues), scheme(colours), options(form)
    {
        board.setScreen(&ports.screen);
    }
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    const Ports ports;
    Dictionary& dictionary;
    SoundCues& sounds;
    ColourScheme& scheme;
    OptionsForm& options;

    GameState state;
    Board board;
    TileLook look{scheme};
    LetterSupply supply{*this};
    Selection selection{*this};
    TileRemoval removal{*this};
    DropRow dropRow{*this};
    WordEntry wordEntry{*this};
    RedTiles redTiles{*this};
    LetterSwap letterSwap{*this};

    /// Takes the counts of red and bonus tiles from the board.
    void countSpecialTiles();

    /// Gives a tile its look in the current scheme: that of the path for a tile in it, else that of its multiplier.
    void refreshLook(int tile);
    /// The same for every tile, and for the waiting ones.
    void refreshLooks();
};

} // namespace lexigrove
