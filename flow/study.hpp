#pragma once

#include "controls/colour.hpp"
#include "flow/game_flow.hpp"
#include "opponent/board_search.hpp"
#include "scores/score_form.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// Sets up positions and inspects the rules, apart from playing: for the console, for tests, and for anyone who studies
/// a board. Each verb runs as one input of the flow and is refused while another runs.
class Study
{
public:
    /// The flow outlives its study.
    explicit Study(GameFlow& flow) : flow_(flow) {}

    void setDeveloperMode(bool on);

    /// Sets the letter and multiplier of a tile in play; an empty letter hides it. A path over the tile is cleared. The
    /// red and bonus tiles are counted again.
    void editTile(int tile, const std::string& letter, Colour maskcolor);
    /// The same for the waiting tile over a column.
    void editWaiting(int col, const std::string& letter);

    /// Sets a number of the game. The caller respects its bounds: 16 bits for the counters.
    void set(int GameState::*number, int value);
    void setRedThreshold(int threshold);
    /// Sets the number that `TilesLeft` shows, or none for "NONE": no more letters come from the queue.
    void setTilesLeft(std::optional<int> count);

    /// Makes choices in the options dialog while it is not shown.
    void chooseOptions(const std::function<void(OptionsForm&)>& choose);
    void loadScheme(const std::string& name);
    void loadConfiguration();
    void saveConfiguration();

    [[nodiscard]] TracedWord trace(std::string_view word);
    const CandidateList& sweep();
    void computerTurn();

    enum class Maintenance { SpellCheck, AddWord, RemoveWord, ShowDictionary };
    /// Runs an operation of the maintenance window on a text, as if the window had been opened with it. Returns false,
    /// after a message on the status line, for the user dictionary.
    bool maintain(Maintenance operation, const std::string& text);
    /// The number of lines in the maintenance window's list.
    [[nodiscard]] int listedWords() const;

    /// The ten score lines, highest first.
    [[nodiscard]] std::vector<std::string> scores();
    /// Shows the top-ten window, to record a score if there is one, and returns the code of its answer.
    std::string showTopTen(std::optional<int> score);

private:
    GameFlow& flow_;
};

} // namespace lexigrove
