#pragma once

#include "tests/support/played_game.hpp"

#include <array>
#include <random>

namespace lexigrove
{

/// The tiles of a word on the board, drawn at random; none where there is no word.
inline std::vector<int> anyWord(PlayedGame& played, std::mt19937& random)
{
    const CandidateList& found = played.study.sweep();
    if (found.count() == 0)
        return {};
    const auto path = found.path(1 + static_cast<int>(random() % static_cast<unsigned>(found.count())));
    return {path.begin(), path.end()};
}

/// What a player or a timer may do next. The same number does the same in two games that are the same.
inline void step(PlayedGame& played, unsigned seed)
{
    std::mt19937 random(seed);
    GameFlow& flow = played.flow;
    const auto anyOf = [&](int count) { return 1 + static_cast<int>(random() % static_cast<unsigned>(count)); };
    played.windows.onHints = [&, row = random()](HintsForm& form) {
        form.pickRow(1 + static_cast<int>(row % static_cast<unsigned>(form.WordsMade.Rows() - 1)));
        form.pressSelect();
    };
    switch (random() % 14) {
    case 0:
        for (int ticks = anyOf(300); ticks > 0; --ticks)
            flow.tick(Timer::Red);
        return;
    case 1:
        return flow.tick(Timer::Push);
    case 2:
    case 3:
    case 4:
        flow.perform(Command::ClearWord);
        played.click(anyWord(played, random));
        if (random() % 4 != 0)
            flow.perform(Command::EnterWord);
        return;
    case 5:
    case 6:
        return flow.drop(anyOf(8));
    case 7:
        return flow.clickTile(anyOf(64), random() % 2 == 0 ? MouseButton::Left : MouseButton::Right, random() % 2 == 0);
    case 8:
        return flow.typeLetter(static_cast<char>('A' + random() % 26));
    case 9:
        return flow.perform(Command::GetHint);
    case 10:
        return flow.perform(
            std::array{Command::TakeBack, Command::Statistics, Command::OtherPath, Command::SwapLetter}[random() % 4]);
    case 11:
        played.study.setRedThreshold(anyOf(400));
        if (!played.state.computerGame) { // it shows the time of day, and nobody's time is up
            const auto messages = played.dialogs.messages.size();
            flow.clockGotFocus();
            EXPECT_EQ(played.dialogs.messages.size(), messages);
        }
        return;
    case 12:
        flow.perform(Command::Pause);
        return flow.perform(Command::Pause);
    default:
        flow.sortWordsMade(anyOf(2500));
        return flow.tick(Timer::Clock);
    }
}

/// What holds after every step of a game, whatever was played.
inline void expectSoundBoard(const PlayedGame& played)
{
    const Board& board = played.board;
    int bonusTiles = 0;
    int redTiles = 0;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        EXPECT_EQ(board.tile(tile).Tag() == "X", std::ranges::count(played.path.tiles(), tile) == 1) << tile;
        EXPECT_EQ(board.tile(tile).BorderStyle() == 1, board.tile(tile).Tag() == "X") << tile << " is held down";
        if (!board.isVisible(tile)) {
            EXPECT_EQ(board.maskcolor(tile), multiplier::plain) << "an emptied cell is plain";
            continue;
        }
        const ColourScheme& scheme = played.flow.view().scheme;
        const BoxControl& shown = board.tile(tile);
        EXPECT_EQ(shown.ForeColor(),
                  shown.Tag() == "X" ? scheme.selectedLetter() : scheme.tileLetter(board.maskcolor(tile)));
        EXPECT_EQ((std::array{shown.BorderTop(), shown.BorderLeft(), shown.BorderBottom(), shown.BorderRight()}),
                  (std::array{scheme.entry(scheme_entry::tileTop), scheme.entry(scheme_entry::tileLeft),
                              scheme.entry(scheme_entry::tileBottom), scheme.entry(scheme_entry::tileRight)}));
        EXPECT_TRUE(shown.FontBold());
        bonusTiles += multiplier::isBonus(board.maskcolor(tile)) ? 1 : 0;
        redTiles += board.maskcolor(tile) == multiplier::red ? 1 : 0;
        const bool bottom = Board::row(tile) == board.columnHeight(Board::col(tile));
        EXPECT_TRUE(bottom || board.isVisible(tile + 1)) << "a letter above a gap";
        for (const std::uint8_t neighbour : board.neighbours(tile))
            EXPECT_TRUE(board.neighbours(neighbour).contains(tile)) << tile << " and " << int{neighbour};
    }
    EXPECT_EQ(redTiles, played.state.redTilesOnBoard);
    EXPECT_GE(played.state.bonusTilesOnBoard, bonusTiles); // a lower bonus tile behind a higher one goes uncounted
    for (std::size_t i = 1; i < played.path.tiles().size(); ++i)
        EXPECT_TRUE(board.neighbours(played.path.tiles()[i - 1]).contains(played.path.tiles()[i]));
    const LetterSwap& swap = played.flow.view().letterSwap;
    EXPECT_TRUE(!swap.isPending() || (board.isVisible(swap.tile()) && played.path.isEmpty()));
    EXPECT_LE(played.screen.mostLocks, 1);
    EXPECT_FALSE(played.screen.busy || board.Picture2.Visible || played.flow.view().dropRow.guideColumn() != 0);
}

/// The letters in play as a player reckons with them: the plain way against which the rules are measured.
class Letters
{
public:
    explicit Letters(const PlayedGame& played) : board_(played.board), left_(played.state.tilesLeft)
    {
        for (int tile = 1; tile <= Board::tileCount; ++tile) {
            if (board_.isVisible(tile))
                column(Board::col(tile)) += board_.letter(tile) + std::to_string(board_.maskcolor(tile));
        }
        for (int col = 1; col <= Board::columns; ++col)
            waiting_ += board_.waiting(col).Visible() ? board_.waiting(col).Caption() : ".";
        for (const std::string& letter : played.flow.view().supply.RandomLetters)
            queue_ += letter;
    }

    /// The waiting letters, the queue, and the columns from the top down, each letter with its multiplier.
    [[nodiscard]] std::string text(bool multipliers = true) const
    {
        std::string text = waiting_ + " " + queue_ + " (" + std::to_string(left_) + ")";
        for (const std::string& letters : columns_)
            text += "\n" + letters;
        if (!multipliers)
            std::erase_if(text, [](char c) { return c >= '0' && c <= '9'; });
        return text;
    }

    void take(std::vector<int> path)
    {
        std::ranges::sort(path); // from the top down the places counted from below stay as they are
        for (const int tile : path) {
            std::string& letters = column(Board::col(tile));
            const int fromBelow = board_.columnHeight(Board::col(tile)) - Board::row(tile) + 1;
            letters.erase(letters.size() - 2 * static_cast<std::size_t>(fromBelow), 2);
        }
    }

    /// A waiting letter falls with its neighbours, first those on the left, then those on the right, up to a gap.
    void drop(int col)
    {
        std::vector<int> falling;
        const auto fall = [&](int j) {
            const auto tiles = static_cast<int>(column(col).size() / 2 + falling.size());
            if (j < 1 || j > Board::columns || letterOver(j) == '.' || tiles >= board_.columnHeight(col))
                return false;
            falling.push_back(j);
            return true;
        };
        fall(col);
        for (int j = col - 1; fall(j); --j) {
        }
        for (int j = col + 1; fall(j); ++j) {
        }
        for (const int j : falling)
            column(col).insert(0, std::string{std::exchange(letterOver(j), '.'), '1'});
        for (char& letter : waiting_) {
            if (letter != '.' || queue_.empty())
                continue;
            letter = queue_.front();
            queue_.erase(0, 1);
            --left_;
        }
    }

    /// The bottom tile leaves, and the waiting letter falls in.
    void push(int col)
    {
        column(col).resize(column(col).size() - 2);
        if (letterOver(col) != '.')
            drop(col);
    }

private:
    [[nodiscard]] std::string& column(int col) { return columns_.at(static_cast<std::size_t>(col - 1)); }
    [[nodiscard]] char& letterOver(int col) { return waiting_.at(static_cast<std::size_t>(col - 1)); }
    const Board& board_;
    std::array<std::string, Board::columns> columns_;
    std::string waiting_;
    std::string queue_;
    int left_;
};

} // namespace lexigrove
