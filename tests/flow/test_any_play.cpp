#include "platform/text_file.hpp"
#include "record/saved_game.hpp"
#include "tests/support/random_play.hpp"

#include <cstdlib>

namespace lexigrove
{
namespace
{

/// A new game of one of all kinds, in either arrangement.
void startAny(PlayedGame& played, unsigned seed)
{
    const bool square = seed % 2 == 0;
    const auto start = [&](const std::string& preset = {}) {
        played.start(square ? Arrangement::Square : Arrangement::Staggered, preset);
    };
    played.clock.seconds = seed % 86'400;
    played.choose(seed % 5 == 0 ? &OptionsForm::Option10 : &OptionsForm::Option11);
    switch (seed / 2 % 6) {
    case 0:
        played.choose(std::array{&OptionsForm::Option3, &OptionsForm::Option4, &OptionsForm::Option5}[seed % 3]);
        start();
        EXPECT_EQ(played.flow.view().dictionary.level(), static_cast<int>(1 + seed % 3));
        return;
    case 1:
        played.choose(&OptionsForm::Check1);
        played.choose(std::array{&OptionsForm::Option12, &OptionsForm::Option13, &OptionsForm::Option14}[seed % 3]);
        return start();
    case 2:
        played.study.chooseOptions([](OptionsForm& form) { form.settings.pressure = Pressure::Relaxed; });
        return start();
    case 3:
        return start("QCATSXEERINGTHE");
    case 4:
        return played.flow.perform(Command::Daily);
    default:
        start();
        played.flow.perform(Command::CopyBoard);
        EXPECT_EQ(played.screen.clipboard, played.state.start);
        return played.flow.playShared(played.screen.clipboard);
    }
}

void expectWhatAlwaysHolds(const PlayedGame& played)
{
    expectSoundBoard(played);
    for (const int tile : played.path.tiles())
        EXPECT_TRUE(played.board.isVisible(tile)) << "a hidden tile is in the path";
    int players = 0;
    int score = 0;
    for (const Turn& turn : played.state.turns) {
        players += turn.maker == Maker::Player ? 1 : 0;
        score += turn.maker == Maker::Computer ? turn.score : 0;
    }
    EXPECT_EQ(players, played.state.wordsMade);
    EXPECT_EQ(score, played.state.compScore);
    EXPECT_EQ(std::ssize(played.state.turns) + 1, played.state.WordsMade.Rows());
    EXPECT_FALSE(played.state.computerTurnInProgress);
    const Position position = played.flow.position();
    EXPECT_EQ(savedGameOf(textOf(SavedGame{"2026-11-23 04:15", position})).position, position);
}

/// Guards whatever nobody has thought of: anything may be done in any game, and what always holds goes on holding.
/// LEXIGROVE_ACTIONS and LEXIGROVE_SEED in the environment play more games or others.
TEST(AnyPlay, WhatAlwaysHolds)
{
    const auto number = [](const char* name, unsigned otherwise) {
        const char* const value = std::getenv(name);
        return value != nullptr ? static_cast<unsigned>(std::stoul(value)) : otherwise;
    };
    const std::string words = readFile(LEXIGROVE_DATA "/L1Ascii.txt");
    const unsigned actions = number("LEXIGROVE_ACTIONS", 10'000);
    unsigned done = 0;
    for (unsigned seed = number("LEXIGROVE_SEED", 1); done < actions; ++seed) {
        PlayedGame played(words);
        for (unsigned i = 0; i < 150 && !played.flow.ended(); ++i, ++done) {
            SCOPED_TRACE("LEXIGROVE_SEED=" + std::to_string(seed) + ", action " + std::to_string(i));
            if (i % 75 == 0) { // a game, and another in its place
                startAny(played, seed + i);
                EXPECT_FALSE(played.flow.view().letterSwap.isPending());
            }
            step(played, 1000 * seed + i);
            if (!played.flow.ended())
                expectWhatAlwaysHolds(played);
            ASSERT_FALSE(HasFailure());
        }
    }
}

} // namespace
} // namespace lexigrove
