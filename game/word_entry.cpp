#include "game/word_entry.hpp"

#include "game/game.hpp"
#include "game/position.hpp"
#include "platform/leaving.hpp"

#include <algorithm>

namespace lexigrove
{

EnterResult WordEntry::enterWord()
{
    const std::string word = game_.selection.word();
    if (game_.state.computerGame && word.empty())
        return EnterResult::Passed;
    if (word.size() < 2)
        return EnterResult::TooShort;
    if (!isAccepted(word)) {
        game_.sounds.play(cue::error);
        game_.ports.status.show(word + " not in dictionary");
        return EnterResult::NotFound;
    }

    game_.state.redTileHold = true;
    Turn turn = turnOf(game_, Maker::Player);
    defuseRedTiles();
    const WordScore score = wordScore(game_.selection, game_.board);
    turn.score = score.score;
    game_.state.turns.push_back(std::move(turn));
    try {
        game_.removal.removePathTiles();
    } catch (const Leaving&) {
        game_.state.yourScore += score.score; // the word was made, and whoever leaves now keeps its points
        throw;
    }
    game_.state.bonusTilesOnBoard -= score.bonusCount;
    if (word.size() > 5)
        game_.sounds.play(cue::longWord);
    game_.state.yourScore += score.score;
    awardBonusFor(word.size());
    countUp(game_.state.wordsMade);
    game_.state.statistics.recordWord(word, Statistics::playerBase);
    game_.selection.clear();
    game_.state.WordsMade.insertOnTop({.score = score.score, .word = word});
    game_.state.redTileHold = false;
    return EnterResult::Entered;
}

bool WordEntry::isAccepted(const std::string& word) const
{
    if (game_.state.developerMode)
        return true;
    const BusyPointer busy(game_.ports.screen);
    return game_.dictionary.words.findWord(word) != -1;
}

void WordEntry::defuseRedTiles()
{
    for (const int number : game_.selection.tiles()) {
        BoxControl& tile = game_.board.tile(number);
        if (tile.MaskColor() != multiplier::red)
            continue;
        --game_.state.redTilesOnBoard;
        tile.MaskColor(multiplier::plain);
        countUp(game_.state.redTilesUsed);
    }
}

/// The length that earns a double grows with the level: 4, 5 and 6 letters, and 5 with a user dictionary.
void WordEntry::awardBonusFor(std::size_t wordLength)
{
    const int level = game_.dictionary.level();
    const int threshold = level == 0 ? 5 : level + 3;
    const int beyond = static_cast<int>(wordLength) - threshold;
    if (beyond >= 0)
        awardBonusTile(multiplier::doubled + static_cast<Colour>(std::min(beyond, 2)));
}

void WordEntry::awardBonusTile(Colour multiplier)
{
    constexpr int maxBonusTiles = 4;
    if (game_.state.bonusTilesOnBoard >= maxBonusTiles || game_.state.computerGame)
        return;
    const auto isPlain = [](const BoxControl& tile) { return tile.Visible() && tile.MaskColor() == multiplier::plain; };
    if (std::ranges::none_of(game_.board.Tiles, isPlain))
        return;

    int number = 0;
    do {
        game_.ports.screen.yield();
        number = placeFromDraw(game_.ports.random.reseedAndDraw(game_.ports.clock), Board::tileCount);
    } while (!isPlain(game_.board.tile(number)));

    game_.board.tile(number).MaskColor(multiplier);
    game_.look.showNormal(game_.board.tile(number));
    countUp(game_.state.bonusTilesOnBoard);
    game_.ports.screen.happened(Moment::BonusEarned, number);
}

} // namespace lexigrove
