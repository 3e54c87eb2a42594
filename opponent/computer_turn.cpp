#include "opponent/computer_turn.hpp"

#include "game/position.hpp"

#include <algorithm>
#include <exception>
#include <string_view>
#include <vector>

namespace lexigrove
{

void ComputerTurn::take()
{
    GameState& state = game_.state;
    if (state.computerTurnInProgress)
        return;
    try {
        const BusyPointer busy(game_.ports.screen);
        begin();
        search_.sweep(snapshotOf(game_.board), knownWords(), [this] { game_.ports.screen.yield(); });
    } catch (const std::exception&) { // the search has failed, and the player moves again
        end();
        throw;
    }
    const CandidateList& candidates = search_.candidates();
    if (candidates.count() < 1) {
        game_.ports.status.show("Computer has no move to make!");
        end();
        return;
    }

    showSelected(candidates.path(choosePosition(candidates)));
    game_.ports.status.Warn = false;
    game_.ports.status.write("Press any key to continue");
    game_.ports.screen.waitForAnyInput();
    game_.ports.status.forget();
    play();
    end();
}

/// The player cannot act during the turn, and the clock is stopped.
void ComputerTurn::begin()
{
    Dc1_.SuspendCountDown();
    game_.state.prompt = Prompt::ComputerMove;
    game_.state.computerTurnInProgress = true;
    game_.ports.screen.yield();
}

/// Never a word that the player's dictionary does not have.
const WordList& ComputerTurn::knownWords()
{
    const WordList& players = game_.dictionary.words;
    const Vocabulary vocabulary = game_.options.settings.vocabulary;
    if (vocabulary == Vocabulary::Every)
        return players;
    if (vocabulary == vocabulary_ && players.isCopyOf(players_))
        return known_;
    const WordList& level = lists_.level(vocabulary == Vocabulary::Common ? 2 : 1);
    std::vector<std::string_view> words;
    for (int entry = 1; entry <= level.count(); ++entry) {
        if (players.findWord(level.entry(entry)) > 0)
            words.push_back(level.entry(entry));
    }
    known_ = WordList::of(words);
    players_ = players;
    vocabulary_ = vocabulary;
    return known_;
}

/// "Any" picks the first candidate twice as often as any other, and never the last one of several.
int ComputerTurn::choosePosition(const CandidateList& candidates) const
{
    const Strategy strategy = game_.options.settings.strategy;
    if (strategy == Strategy::Any) {
        const double draw = game_.ports.random.reseedAndDraw(game_.ports.clock);
        return std::max(1, static_cast<int>(candidates.count() * draw));
    }
    const int position =
        strategy == Strategy::LongestWord ? candidates.bestLengthPosition() : candidates.bestScorePosition();
    return std::max(1, position); // no candidate is best where none scores: letters outside A to Z have no value
}

void ComputerTurn::showSelected(std::span<const std::uint8_t> path)
{
    game_.state.prompt = Prompt::None;
    game_.selection.clearPath();
    for (const int tile : path)
        game_.selection.append(tile);
}

void ComputerTurn::play()
{
    const std::string word = game_.selection.word();
    const int score = letterSum(word);
    for (const int tile : game_.selection.tiles())
        game_.state.redTilesOnBoard -= game_.board.maskcolor(tile) == multiplier::red ? 1 : 0;
    game_.state.turns.push_back(turnOf(game_, Maker::Computer));
    game_.state.turns.back().score = score;
    game_.removal.removePathTiles();
    game_.state.compScore += score;
    game_.state.WordsMade.insertOnTop({.score = score, .word = word, .maker = Maker::Computer});
    refillBoard();
    game_.state.statistics.recordWord(word, Statistics::computerBase);
}

void ComputerTurn::refillBoard()
{
    Board& board = game_.board;
    for (int col = 1; col <= Board::columns; ++col) {
        while (!board.tile(1, col).Visible() && board.waiting(col).Visible())
            game_.dropRow.dropIntoColumn(col);
    }
}

void ComputerTurn::end()
{
    game_.selection.clear();
    game_.state.prompt = Prompt::YourMove;
    Dc1_.ResumeCountDown();
    game_.state.computerTurnInProgress = false;
}

EnterResult enterWord(Game& game, ComputerTurn& computer)
{
    const EnterResult result = game.wordEntry.enterWord();
    const bool turnPasses = result == EnterResult::Passed || result == EnterResult::Entered;
    if (game.state.computerGame && turnPasses)
        computer.take();
    return result;
}

} // namespace lexigrove
