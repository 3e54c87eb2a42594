#pragma once

#include "record/review_texts.hpp"
#include "word_services/meanings.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// The window of one past game: a turn's board, the turns as a list, and what was there. It begins at the first turn,
/// with the word that was made.
class ReviewForm
{
public:
    /// Which word of the current turn has its path lit.
    enum class Lit { Made, Best, Longest };

    /// A row of the turns, and one of those that left most behind.
    using TurnRow = lexigrove::TurnRow;

    /// The lists and the meanings outlive the form.
    ReviewForm(GameRecord record, LevelLists& lists, Meanings& meanings);

    // The game

    [[nodiscard]] std::string caption() const { return "Game of " + review_.record().begun; }
    [[nodiscard]] std::string summary() const { return summaryText(review_, list_); }
    /// The turns that left most behind: three or fewer, the greatest loss first.
    [[nodiscard]] std::vector<TurnRow> mostLeftBehind() const;
    [[nodiscard]] static std::string textOf(const TurnRow& left) { return leftBehindText(left); }
    [[nodiscard]] std::string rarestText() const { return lexigrove::rarestText(review_); }
    /// What a game on the board of a day tells others, in UTF-8; empty for other games.
    [[nodiscard]] std::string dailySummary() const;
    [[nodiscard]] std::string notice() const { return noticeText(review_, list_); }
    [[nodiscard]] std::vector<TurnRow> rows() const; ///< every turn, in order

    // The turn

    /// The current turn, 1 to `turnCount`; 0 in a game without words, whose board is that of the start.
    [[nodiscard]] int turn() const { return turn_; }
    [[nodiscard]] int turnCount() const { return review_.turnCount(); }
    void goTo(int turn); ///< to a turn of the game; other numbers change nothing
    void first() { goTo(1); }
    void previous() { goTo(turn_ - 1); }
    void next() { goTo(turn_ + 1); }
    void last() { goTo(turnCount()); }
    [[nodiscard]] bool hasPrevious() const { return turn_ > 1; }
    [[nodiscard]] bool hasNext() const { return turn_ < turnCount(); }
    [[nodiscard]] const BoardPosition& board() const; ///< before the current turn

    // What was there

    void choose(ReviewList list) { list_ = list; }
    [[nodiscard]] ReviewList list() const { return list_; }
    /// What a side of the switch says: "Level 2", "User dictionary".
    [[nodiscard]] static std::string textOf(ReviewList list, int level) { return listText(list, level); }
    /// Whether the switch has two sides: a game of level 3 has one.
    [[nodiscard]] bool hasTwoLists() const { return review_.record().start.level != 3; }
    [[nodiscard]] std::string thereText() const; ///< "214 words were on the board"; empty without a turn
    /// A word of the current turn; empty where there was none.
    [[nodiscard]] FoundWord word(Lit which) const;

    void light(Lit which) { lit_ = which; }
    [[nodiscard]] Lit lit() const { return lit_; }
    [[nodiscard]] std::vector<int> litPath() const { return word(lit_).path; }

    // Buttons

    void pressMeaning(); ///< of the lit word
    void pressClose() { visible_ = false; }
    void activate() { visible_ = true; }
    [[nodiscard]] bool isVisible() const { return visible_; }

    [[nodiscard]] const Review& review() const { return review_; }

private:
    Review review_;
    Meanings& meanings_;
    int turn_ = 0;
    ReviewList list_ = ReviewList::Own;
    Lit lit_ = Lit::Made;
    bool visible_ = false;
};

} // namespace lexigrove
