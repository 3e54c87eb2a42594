#pragma once

#include "flow/game_flow.hpp"
#include "ui/machine/settings_file.hpp"

#include <QString>

#include <string>

namespace lexigrove
{

/// The short hints of the first games: one at a time, each gone for good once it was followed.
class FirstSteps
{
public:
    /// Both outlive this.
    FirstSteps(const GameFlow& flow, SettingsFile& settings) : flow_(flow), settings_(settings) {}

    /// Whether a hint is still to come; asked before the first game, for the room that it takes.
    [[nodiscard]] bool areLeft() const;

    /// Looks at the game, and returns the hint that helps now; empty for none.
    [[nodiscard]] QString next();

private:
    enum class Step { Touch, Enter, Drop, RedTile, BonusTile };

    [[nodiscard]] bool isDone(Step step) const;
    void done(Step step);
    [[nodiscard]] int tilesOnBoard() const;
    /// Whether a waiting letter can fall into a gap.
    [[nodiscard]] bool hasDrop() const;
    void noteWhatWasFollowed();

    const GameFlow& flow_;
    SettingsFile& settings_;
    QString shown_;
    std::string begun_; ///< of the game that is known
    int tilesBefore_ = 0;
    bool hadRedTile_ = false;
    bool hadBonusTile_ = false;
};

} // namespace lexigrove
