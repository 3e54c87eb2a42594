#pragma once

#include "opponent/board_snapshot.hpp"
#include "platform/text_file.hpp"
#include "tests/support/scripted_front_end.hpp"

#include <map>
#include <random>
#include <string>
#include <vector>

namespace lexigrove
{

/// The smallest of the built dictionaries.
inline std::string levelOneWords()
{
    return readFile(LEXIGROVE_DATA "/L1Ascii.txt");
}

/// A word on the board, drawn at random, as the tiles to click; empty when there is none.
inline std::vector<int> anyWordOnTheBoard(GameFlow& flow, std::mt19937& random)
{
    BoardSearch search;
    const CandidateList& found = search.sweep(snapshotOf(flow.game.board), flow.dictionary.words);
    if (found.count() == 0)
        return {};
    const auto path = found.path(std::uniform_int_distribution<int>(1, found.count())(random));
    return {path.begin(), path.end()};
}

/// How often each letter stands on the board, in the drop row and in the queue.
inline std::map<std::string, int> lettersInPlay(const Game& game)
{
    std::map<std::string, int> letters;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (game.board.isVisible(tile))
            ++letters[game.board.letter(tile)];
    }
    for (std::size_t k = 1; k <= Board::columns; ++k) {
        if (game.board.TopDrop[k].Visible())
            ++letters[game.board.TopDrop[k].Caption()];
    }
    for (const std::string& letter : game.supply.RandomLetters)
        ++letters[letter];
    return letters;
}

/// What holds after every step of a game, whatever was played.
inline void expectSoundBoard(const Game& game)
{
    const Board& board = game.board;
    for (int col = 1; col <= Board::columns; ++col) {
        for (int row = 2; row <= board.columnHeight(col); ++row) {
            if (board.isVisible(board.Grid(row - 1, col))) {
                EXPECT_TRUE(board.isVisible(board.Grid(row, col))) << "a letter above a gap in column " << col;
            }
        }
    }
    int bonusTiles = 0;
    int redTiles = 0;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (!board.isVisible(tile)) {
            EXPECT_EQ(board.maskcolor(tile), multiplier::plain) << "an emptied cell is plain";
            continue;
        }
        EXPECT_FALSE(board.letter(tile).empty());
        bonusTiles += board.isBonus(tile) ? 1 : 0;
        redTiles += board.maskcolor(tile) == multiplier::red ? 1 : 0;
        for (const int neighbour : board.neighbours(tile)) {
            EXPECT_TRUE(board.isVisible(neighbour));
            EXPECT_TRUE(board.neighbours(neighbour).contains(tile)) << tile << " and " << neighbour;
        }
        for (const int neighbour : board.savedNeighbours(tile))
            EXPECT_EQ(board.neighbours(tile).contains(neighbour), board.isVisible(neighbour));
    }
    EXPECT_EQ(redTiles, game.state.redTilesOnBoard);
    EXPECT_GE(game.state.bonusTilesOnBoard, bonusTiles); // a lower bonus tile behind a higher one goes uncounted

    const Selection& path = game.selection;
    for (int place = 1; place <= path.length(); ++place) {
        EXPECT_EQ(board.tile(path.tileAt(place)).Tag(), "X");
        if (place > 1) {
            EXPECT_TRUE(board.neighbours(path.tileAt(place - 1)).contains(path.tileAt(place)));
        }
    }
}

} // namespace lexigrove
