#include "opponent/computer_turn.hpp"

#include "opponent/board_snapshot.hpp"

#include <algorithm>

namespace lexigrove
{

void ComputerTurn::take()
{
    GameState& state = game_.state;
    if (state.computerTurnInProgress)
        return;
    {
        const BusyPointer busy(game_.ports.screen);
        begin();
        search_.sweep(snapshotOf(game_.board), game_.dictionary.words);
    }
    const CandidateList& candidates = search_.candidates();
    if (candidates.count() < 1) {
        state.Picture1.Enabled = true;
        state.EnterWord.Visible = true;
        game_.ports.status.show("Computer has no move to make!");
        end();
        return;
    }

    showSelected(candidates, choosePosition(candidates));
    state.EnterWord.Visible = true;
    game_.ports.status.Warn = false;
    game_.ports.status.write("Press any key to continue");
    game_.ports.screen.waitForAnyInput();
    play();
    end();
}

/// The player cannot act while the turn lasts, and the clock stands still.
void ComputerTurn::begin()
{
    GameState& state = game_.state;
    Dc1_.SuspendCountDown();
    state.EnterWord.Visible = false;
    state.WordTried.backColor = game_.scheme.plain(scheme_entry::computer);
    state.WordTried.foreColor = game_.scheme.computerFore();
    state.WordTried.Caption = "Computer move...";
    state.Frame3.Enabled = false;
    state.Picture1.Enabled = false;
    state.computerTurnInProgress = true;
    game_.ports.screen.yield();
}

/// "Any" takes the first candidate twice as often as any other and never the last one of several.
int ComputerTurn::choosePosition(const CandidateList& candidates) const
{
    const GameSettings& settings = game_.options.settings;
    if (settings.anyWordMode) {
        const double draw = game_.ports.random.reseedAndDraw(game_.ports.clock);
        return std::max(1, static_cast<int>(candidates.count() * draw));
    }
    const int position = settings.longestWordMode ? candidates.bestLengthPosition() : candidates.bestScorePosition();
    return std::max(1, position); // no candidate is best where none scores: letters outside A to Z have no value
}

void ComputerTurn::showSelected(const CandidateList& candidates, int position)
{
    game_.state.WordTried.Caption = candidates.word(position);
    game_.selection.clearPath();
    for (const std::uint8_t tile : candidates.path(position))
        game_.selection.append(tile);
}

void ComputerTurn::play()
{
    const std::string word = game_.state.WordTried.Caption;
    game_.removal.removePathTiles();
    game_.board.rebuildNeighbours();
    const int score = letterSum(word);
    Label& CompScore = game_.state.CompScore;
    CompScore.Caption = std::to_string(numberOf(CompScore.Caption) + score);
    game_.state.WordsMade.insertOnTop({.score = score, .word = word, .maker = Maker::Computer});
    refillBoard();
    game_.state.statistics.recordWord(word, Statistics::computerBase);
}

void ComputerTurn::refillBoard()
{
    Board& board = game_.board;
    for (int col = 1; col <= Board::columns; ++col) {
        while (!board.isVisible(board.Grid(1, col)) && board.TopDrop[static_cast<std::size_t>(col)].Visible())
            game_.dropRow.dropIntoColumn(col);
    }
}

void ComputerTurn::end()
{
    GameState& state = game_.state;
    game_.selection.clear();
    state.WordTried.backColor = GameState::ownBack;
    state.WordTried.foreColor = GameState::ownFore;
    state.WordTried.Caption = "Your move";
    state.Picture1.Enabled = true;
    Dc1_.ResumeCountDown();
    state.computerTurnInProgress = false;
    state.Frame3.Enabled = true;
}

} // namespace lexigrove
