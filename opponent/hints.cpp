#include "opponent/hints.hpp"

#include <algorithm>
#include <exception>

namespace lexigrove
{

int hintPrice(int level)
{
    switch (level) {
    case 1:
        return 10;
    case 3:
        return 20;
    default:
        return 15;
    }
}

void Hints::getHint()
{
    GameState& state = game_.state;
    const int scoreBefore = state.yourScore;
    if (state.computerTurnInProgress || !pay())
        return;

    try {
        const BusyPointer busy(game_.ports.screen);
        search_.sweep(snapshotOf(game_.board), game_.dictionary.words, [this] { game_.ports.screen.yield(); });
    } catch (const std::exception&) { // the search has failed: nothing was sold
        state.yourScore = scoreBefore;
        state.redTileHold = false;
        throw;
    }
    const CandidateList& candidates = search_.candidates();
    if (candidates.count() == 0) {
        game_.ports.status.show("There are no valid hints"); // the pressure is held until the next word
        return;
    }

    game_.selection.clear();
    countUp(state.hintsUsed);
    form_.activate(candidates);
    game_.ports.windows.show(form_);
    if (!form_.result().empty())
        enterWord(game_, computer_);
    game_.refreshLooks();
    state.redTileHold = false;
}

/// If the score is too low, only shows a message and returns false.
bool Hints::pay()
{
    const int price = hintPrice(game_.dictionary.level());
    int& score = game_.state.yourScore;
    if (score < price && !game_.state.developerMode) {
        game_.sounds.play(cue::error);
        game_.ports.status.show("your score must be at least" + std::to_string(price) + " to get a hint");
        return false;
    }
    game_.sounds.play(cue::menu);
    game_.state.redTileHold = true;
    score = std::max(0, score - price);
    return true;
}

} // namespace lexigrove
