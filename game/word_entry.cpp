#include "game/word_entry.hpp"

#include <algorithm>

namespace lexigrove
{

EnterResult WordEntry::enterWord()
{
    const std::string word = selection_.word();
    if (state_.computerGame && word.empty())
        return EnterResult::Passed;
    if (word.size() < 2)
        return EnterResult::TooShort;
    if (!isAccepted(word)) {
        sounds_.play(cue::error);
        ports_.status.show(word + " not in dictionary");
        return EnterResult::NotFound;
    }

    state_.redTileHold = true;
    defuseRedTiles();
    const WordScore score = wordScore(selection_, board_);
    removal_.removePathTiles();
    state_.bonusTilesOnBoard = static_cast<std::int16_t>(state_.bonusTilesOnBoard - score.bonusCount);
    if (word.size() > 5)
        sounds_.play(cue::longWord);
    state_.yourScore += score.score;
    awardBonusFor(word.size());
    ++state_.wordsMade;
    state_.statistics.recordWord(word, Statistics::playerBase);
    selection_.clear();
    state_.WordsMade.insertOnTop({.score = score.score, .word = word});
    state_.redTileHold = false;
    return EnterResult::Entered;
}

bool WordEntry::isAccepted(const std::string& word) const
{
    if (state_.developerMode)
        return true;
    const BusyPointer busy(ports_.screen);
    return dictionary_.words.findWord(word) != -1;
}

void WordEntry::defuseRedTiles()
{
    for (const int number : selection_.tiles()) {
        BoxControl& tile = board_.tile(number);
        if (tile.MaskColor() != multiplier::red)
            continue;
        --state_.redTilesOnBoard;
        tile.MaskColor(multiplier::plain);
        ++state_.redTilesUsed;
    }
}

/// The length that earns a double grows with the level: 4, 5 and 6 letters, and 5 with a user dictionary.
void WordEntry::awardBonusFor(std::size_t wordLength)
{
    const int level = dictionary_.level();
    const int threshold = level == 0 ? 5 : level + 3;
    const int beyond = static_cast<int>(wordLength) - threshold;
    if (beyond >= 0)
        awardBonusTile(multiplier::doubled + static_cast<Colour>(std::min(beyond, 2)));
}

void WordEntry::awardBonusTile(Colour multiplier)
{
    constexpr int mostBonusTiles = 4;
    if (state_.bonusTilesOnBoard >= mostBonusTiles || state_.computerGame)
        return;
    const auto isPlain = [](const BoxControl& tile) { return tile.Visible() && tile.MaskColor() == multiplier::plain; };
    if (std::none_of(board_.Tiles.begin() + 1, board_.Tiles.end(), isPlain))
        return;

    int number = 0;
    do {
        ports_.screen.yield();
        number = placeFromDraw(ports_.random.reseedAndDraw(ports_.clock), Board::tileCount);
    } while (!isPlain(board_.tile(number)));

    board_.tile(number).MaskColor(multiplier);
    look_.showNormal(board_.tile(number));
    ++state_.bonusTilesOnBoard;
}

} // namespace lexigrove
