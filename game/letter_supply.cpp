#include "game/letter_supply.hpp"

#include "game/game.hpp"

#include <utility>

namespace lexigrove
{

namespace
{

constexpr int poolSize = LetterTables::poolSize;

std::string letterText(char letter)
{
    return std::string(1, letter);
}

/// Character `place` (1-based) of a preset text as a letter; empty if the text is too short.
std::string presetLetter(const std::string& preset, int place)
{
    const auto i = static_cast<std::size_t>(place - 1);
    return i < preset.size() ? letterText(preset[i]) : std::string();
}

} // namespace

void LetterSupply::shufflePool()
{
    for (std::size_t i = 1; i <= poolSize; ++i) {
        const int j = placeFromDraw(game_.ports.random.reseedAndDraw(game_.ports.clock), poolSize);
        std::swap(game_.dictionary.letters.pool[i], game_.dictionary.letters.pool[static_cast<std::size_t>(j)]);
    }
}

void LetterSupply::dealLetters()
{
    shufflePool();
    RandomLetters.clear();
    for (std::size_t i = Board::tileCount + 1; i <= poolSize; ++i)
        RandomLetters.push_back(letterText(game_.dictionary.letters.pool[i]));
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        game_.board.tile(tile).Caption(letterText(game_.dictionary.letters.pool[static_cast<std::size_t>(tile)]));
        game_.board.tile(tile).MaskColor(multiplier::plain);
    }
    const bool staggered = game_.board.arrangement() == Arrangement::Staggered;
    if (staggered) {
        for (const int hidden : {8, 24, 40, 56})
            RandomLetters.push_back(game_.board.letter(hidden));
    }

    if (const std::string& preset = game_.options.settings.presetLetters.letters(); !preset.empty()) {
        for (int tile = 1; tile <= Board::tileCount; ++tile)
            game_.board.tile(tile).Caption(presetLetter(preset, tile));
        RandomLetters.clear();
        for (int place = Board::tileCount + 1; place <= poolSize; ++place)
            RandomLetters.push_back(presetLetter(preset, place));
        game_.options.settings.presetLetters.dealt();
    }

    fillTopRow();
    game_.state.letterDraw = LetterDraw::Going;
    game_.state.tilesLeft = startCount(game_.board.arrangement());
    game_.state.bonusTilesOnBoard = 0;
    game_.state.redTilesOnBoard = 0;
}

/// Reads entry k while popping the front: columns show letters 1, 3, ... 15; 5 to 8's also stay queued.
void LetterSupply::fillTopRow()
{
    for (int k = 0; k <= 7; ++k) {
        const auto place = static_cast<std::size_t>(k);
        waitAtHome(k + 1, place < RandomLetters.size() ? RandomLetters[place] : std::string());
        if (!RandomLetters.empty())
            RandomLetters.pop_front();
    }
}

std::string LetterSupply::nextLetter()
{
    if (RandomLetters.empty())
        return {};
    std::string letter = std::move(RandomLetters.front());
    RandomLetters.pop_front();
    return letter;
}

void LetterSupply::refillTopRow()
{
    std::string pattern = "????????";
    for (int k = 1; k <= Board::columns; ++k) {
        const BoxControl& waiting = game_.board.waiting(k);
        if (waiting.Visible()) {
            const int column = (waiting.Left() - 30) / layout::cellSize + 1;
            pattern[static_cast<std::size_t>(column - 1)] = waiting.Caption().empty() ? ' ' : waiting.Caption().front();
        }
    }

    if (game_.state.letterDraw != LetterDraw::Ended) {
        for (int k = 1; k <= Board::columns; ++k) {
            if (pattern[static_cast<std::size_t>(k - 1)] != '?')
                continue;
            const std::string letter = nextLetter();
            if (letter.empty())
                break;
            --game_.state.tilesLeft;
            waitAtHome(k, letter);
        }
    }

    if (RandomLetters.size() < 8 && game_.state.computerGame) {
        shufflePool();
        for (std::size_t i = 1; i <= poolSize; ++i)
            RandomLetters.push_back(letterText(game_.dictionary.letters.pool[i]));
    }
}

void LetterSupply::waitAtHome(int col, const std::string& letter)
{
    BoxControl& waiting = game_.board.waiting(col);
    waiting.Caption(letter);
    waiting.Left(Board::columnLeft(col));
    waiting.Top(layout::dropRowTop);
    waiting.Visible(!letter.empty());
}

} // namespace lexigrove
