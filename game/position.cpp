#include "game/position.hpp"

#include "game/game.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

char letterOf(const BoxControl& tile)
{
    if (!tile.Visible())
        return BoardPosition::none;
    return tile.Caption().empty() ? BoardPosition::blank : tile.Caption().front();
}

std::string captionOf(char letter)
{
    return letter == BoardPosition::none || letter == BoardPosition::blank ? std::string() : std::string(1, letter);
}

void setUp(Game& game, const BoardPosition& position)
{
    game.selection.clear();
    game.letterSwap.cancel();
    showOn(game.board, position);
    game.supply.RandomLetters.clear();
    for (const char letter : position.queue)
        game.supply.RandomLetters.push_back(captionOf(letter));
}

/// A path of visible tiles, none twice, each touching the one before.
void checkPath(const Position& position)
{
    const NeighbourTable table =
        position.board.arrangement == Arrangement::Square ? squareNeighbours() : staggeredNeighbours();
    const auto& path = position.path;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const auto tile = static_cast<std::size_t>(path[i]);
        const bool onBoard =
            tile >= 1 && tile <= Board::tileCount && position.board.cells[tile].letter != BoardPosition::none;
        const bool twice = std::count(path.begin(), path.end(), path[i]) > 1;
        const bool touches = i == 0 || table[static_cast<std::size_t>(path[i - 1])].contains(path[i]);
        if (!onBoard || twice || !touches)
            throw PositionError("path: place " + std::to_string(i + 1) + " cannot be tile " + std::to_string(path[i]));
    }
}

} // namespace

BoardPosition::BoardPosition()
{
    waiting.fill(none);
}

void showOn(Board& board, const BoardPosition& position)
{
    board.layOut(position.arrangement);
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        const BoardPosition::Cell& cell = position.cells[static_cast<std::size_t>(tile)];
        BoxControl& control = board.tile(tile);
        control.Caption(captionOf(cell.letter));
        control.MaskColor(cell.multiplier);
        control.Visible(cell.letter != BoardPosition::none);
    }
    for (int col = 1; col <= Board::columns; ++col) {
        const char letter = position.waiting[static_cast<std::size_t>(col)];
        board.waiting(col).Caption(captionOf(letter));
        board.waiting(col).Visible(letter != BoardPosition::none);
    }
}

BoardPosition boardOf(const Game& game)
{
    BoardPosition position;
    position.arrangement = game.board.arrangement();
    position.level = game.dictionary.loadedLevel();
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        const BoxControl& control = game.board.tile(tile);
        if (control.Visible())
            position.cells[static_cast<std::size_t>(tile)] = {letterOf(control), control.MaskColor()};
    }
    for (int col = 1; col <= Board::columns; ++col)
        position.waiting[static_cast<std::size_t>(col)] = letterOf(game.board.waiting(col));
    for (const std::string& letter : game.supply.RandomLetters)
        position.queue += letter.empty() ? BoardPosition::blank : letter.front();
    return position;
}

Turn turnOf(const Game& game, Maker maker)
{
    return {.before = boardOf(game),
            .word = game.selection.word(),
            .path = game.selection.tiles(),
            .maker = maker,
            .hintsUsed = game.state.hintsUsed,
            .redTilesMade = game.state.redTilesMade,
            .pushes = game.state.pushes};
}

Position positionOf(const Game& game)
{
    Position position;
    position.board = boardOf(game);
    position.userDictionary = game.dictionary.loadedLevel() == 0 ? game.dictionary.fileTable[0] : "";
    position.words = game.dictionary.fingerprint();
    position.strategy = game.options.settings.strategy;
    position.vocabulary = game.options.settings.vocabulary;
    position.state = game.state;
    position.redThreshold = game.dictionary.redThreshold();
    position.letterCounts = game.dictionary.letters.letterCounts;
    const auto& pool = game.dictionary.letters.pool;
    position.pool.assign(pool.begin() + 1, pool.end());
    position.path = game.selection.tiles();
    position.entryPending = game.selection.entryPending;
    position.swapTile = game.letterSwap.tile();
    return position;
}

void restore(Game& game, const Position& position)
{
    checkPath(position);
    const auto swapTile = static_cast<std::size_t>(position.swapTile);
    if (swapTile > Board::tileCount || (swapTile != 0 && position.board.cells[swapTile].letter == BoardPosition::none))
        throw PositionError("swap: no tile " + std::to_string(position.swapTile) + " on the board");
    if (position.pool.size() != LetterTables::poolSize)
        throw PositionError("pool: " + std::to_string(position.pool.size()) + " letters instead of 100");

    setUp(game, position.board);
    for (const int tile : position.path)
        game.selection.append(tile);
    game.selection.entryPending = position.entryPending;
    game.letterSwap.mark(position.swapTile);
    game.state = position.state;
    game.options.settings.strategy = position.strategy;
    game.options.settings.vocabulary = position.vocabulary;
    game.dictionary.setRedThreshold(position.redThreshold);
    game.dictionary.letters.letterCounts = position.letterCounts;
    std::copy(position.pool.begin(), position.pool.end(), game.dictionary.letters.pool.begin() + 1);
    game.refreshLooks();
}

void restore(Game& game, const BoardPosition& board)
{
    setUp(game, board);
    game.state.letterDraw = LetterDraw::Going;
    game.state.tilesLeft = static_cast<int>(board.queue.size());
    game.countSpecialTiles();
    game.refreshLooks();
}

} // namespace lexigrove
