#include "ui/board/first_steps.hpp"

#include "game/board.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"

#include <QCoreApplication>

namespace lexigrove
{

namespace
{

struct StepText {
    const char* name; ///< in the settings
    const char* text;
};
constexpr StepText stepTexts[] = {
    {"touching-letters", QT_TRANSLATE_NOOP("BoardView", "Click letters that touch, or type a word")},
    {"enter", QT_TRANSLATE_NOOP("BoardView", "Press Enter to enter the word")},
    {"waiting-letter", QT_TRANSLATE_NOOP("BoardView", "Click a waiting letter over a gap: it drops in")},
    {"red-tile", QT_TRANSLATE_NOOP("BoardView", "Use the red tile in a word before it sinks out")},
    {"bonus-tile", QT_TRANSLATE_NOOP("BoardView", "A word over the coloured tile scores double or more")},
};

bool showsTile(const Board& board, bool (*wanted)(Colour multiplier))
{
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (board.isVisible(tile) && wanted(board.maskcolor(tile)))
            return true;
    }
    return false;
}

} // namespace

bool FirstSteps::isDone(Step step) const
{
    return settings_.isHintDone(stepTexts[static_cast<int>(step)].name);
}

void FirstSteps::done(Step step)
{
    if (!isDone(step))
        settings_.setHintDone(stepTexts[static_cast<int>(step)].name);
}

bool FirstSteps::areLeft() const
{
    using enum Step;
    return !(isDone(Touch) && isDone(Enter) && isDone(Drop) && isDone(RedTile) && isDone(BonusTile));
}

int FirstSteps::tilesOnBoard() const
{
    int count = 0;
    for (int tile = 1; tile <= Board::tileCount; ++tile)
        count += flow_.view().board.isVisible(tile) ? 1 : 0;
    return count;
}

void FirstSteps::noteWhatWasFollowed()
{
    const GameView& view = flow_.view();
    const int tiles = tilesOnBoard();
    if (view.state.begun != begun_)
        hadRedTile_ = hadBonusTile_ = false; // another game's tiles are no merit
    begun_ = view.state.begun;
    if (view.selection.tiles().size() > 1)
        done(Step::Touch);
    if (view.state.wordsMade > 0) {
        done(Step::Enter);
        if (tilesBefore_ > 0 && tiles > tilesBefore_)
            done(Step::Drop);
    }
    tilesBefore_ = tiles;
    const bool redTile = showsTile(view.board, [](Colour mark) { return mark == multiplier::red; });
    const bool bonusTile = showsTile(view.board, multiplier::isBonus);
    if (hadRedTile_ && !redTile)
        done(Step::RedTile);
    if (hadBonusTile_ && !bonusTile)
        done(Step::BonusTile);
    hadRedTile_ = redTile;
    hadBonusTile_ = bonusTile;
}

bool FirstSteps::hasDrop() const
{
    const Board& board = flow_.view().board;
    for (int col = 1; col <= Board::columns; ++col) {
        if (board.waiting(col).Visible() && !board.isVisible(Board::Grid(1, col)))
            return true;
    }
    return false;
}

QString FirstSteps::next()
{
    if (!flow_.inGame() || flow_.view().state.computerTurnInProgress)
        return shown_ = {};
    if (flow_.isBusy())
        return shown_; // tiles come and go while letters slide
    shown_ = {};
    if (!areLeft())
        return shown_;
    noteWhatWasFollowed();
    using enum Step;
    const GameView& view = flow_.view();
    const bool gap = view.state.wordsMade > 0 && hasDrop();
    const bool picked = view.selection.tiles().size() > 1;
    const std::pair<Step, bool> steps[] = {
        {RedTile, hadRedTile_}, {BonusTile, hadBonusTile_}, {Touch, true}, {Enter, picked}, {Drop, gap},
    };
    for (const auto& [step, helps] : steps) {
        if (helps && !isDone(step))
            shown_ = QCoreApplication::translate("BoardView", stepTexts[static_cast<int>(step)].text);
        if (!shown_.isEmpty())
            break;
    }
    return shown_;
}

} // namespace lexigrove
