#pragma once

#include "record/review.hpp"
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
    struct TurnRow {
        int turn = 0;
        std::string maker; ///< "You" or "Computer"
        std::string word;
        int score = 0;
        std::string bestWord;
        int bestScore = 0;
    };

    /// The lists and the meanings outlive the form.
    ReviewForm(GameRecord record, ReviewLists& lists, Meanings& meanings);

    // The game

    [[nodiscard]] std::string caption() const; ///< "Game of 2026-11-23 04:15"
    /// "You took 187 of the 412 points that the best word of each turn would have given".
    [[nodiscard]] std::string summary() const;
    /// The turns that left most behind: three or fewer, the greatest loss first.
    [[nodiscard]] std::vector<TurnRow> mostLeftBehind() const;
    /// "Turn 4: you made CAT for 5, QUIZ would have given 22".
    [[nodiscard]] static std::string textOf(const TurnRow& left);
    [[nodiscard]] std::string rarestText() const; ///< "Your rarest word was QUIRE"; empty without a word
    /// Says that the game's own dictionary cannot be read any more, so that nothing is found with it; else empty.
    [[nodiscard]] std::string notice() const;
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
    [[nodiscard]] static std::string textOf(ReviewList list, int level); ///< "Level 2", "User dictionary", "Level 3"
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
    [[nodiscard]] TurnRow rowOf(int turn) const;

    Review review_;
    Meanings& meanings_;
    int turn_ = 0;
    ReviewList list_ = ReviewList::Own;
    Lit lit_ = Lit::Made;
    bool visible_ = false;
};

} // namespace lexigrove
