#pragma once

#include "controls/dc.hpp"
#include "dictionary/level_lists.hpp"
#include "dictionary/maintenance.hpp"
#include "game/game.hpp"
#include "opponent/board_search.hpp"
#include "opponent/computer_turn.hpp"
#include "opponent/hints.hpp"
#include "platform/ports.hpp"
#include "record/past_games.hpp"
#include "record/record_folder.hpp"
#include "record/saved_game_file.hpp"
#include "scores/score_file.hpp"
#include "scores/score_form.hpp"
#include "scores/statistics_form.hpp"
#include "settings/configuration.hpp"
#include "word_services/meaning_services.hpp"
#include "word_services/meanings.hpp"

#include <string>

namespace lexigrove
{

/// Everything below the front end, put together. Only the flow and its study access it.
struct GameParts {
    GameParts(const Ports& outside, const std::string& programFolder) : ports(outside), folder(programFolder) {}
    GameParts(const GameParts&) = delete;
    GameParts& operator=(const GameParts&) = delete;

    const Ports ports;
    const std::string folder; ///< the program folder with its trailing separator

    Dictionary dictionary{folder};
    ColourScheme scheme{folder, ports.dialogs};
    SoundCues sounds{ports.sound, folder};
    OptionsForm options{{ports.dialogs, ports.screen, dictionary, scheme, sounds, folder}};
    Dc Dc1;
    Game game{ports, dictionary, sounds, scheme, options};
    MeaningServices services{folder};
    ScoreFile scoreFile{folder, ports.dialogs};
    ScoreForm scoreForm{scoreFile, ports.dialogs};
    StatisticsForm statisticsForm{game.state.statistics};
    DictionaryMaintenance maintenance{dictionary, ports.dialogs, ports.screen, ports.clock};
    SavedGameFile savedGame{folder};
    RecordFolder records{folder};
    BoardSearch search;
    LevelLists levelLists{folder};
    ComputerTurn computerTurn{game, search, levelLists, Dc1};
    Meanings meanings{game.state, ports.status, sounds, services, ports.windows};
    HintsForm hintsForm{game, meanings};
    Hints hints{game, search, computerTurn, hintsForm};
    PastGamesForm pastGames{folder, levelLists, meanings};
    Configuration configuration{{ports.dialogs, ports.clock, options, Dc1, scheme, dictionary, folder}};
};

} // namespace lexigrove
