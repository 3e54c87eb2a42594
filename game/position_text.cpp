#include "game/board.hpp"
#include "game/board_position.hpp"
#include "platform/ascii.hpp"

#include <algorithm>
#include <vector>

namespace lexigrove
{

namespace
{

constexpr std::string_view arrangementNames[] = {"square", "staggered"};

/// The characters of a text one after the other, with the field that they belong to for errors.
class FieldReader
{
public:
    FieldReader(std::string_view name, std::string_view text) : name_(name), text_(text) {}

    [[nodiscard]] bool atEnd() const { return place_ == text_.size(); }
    [[nodiscard]] char peek() const { return atEnd() ? '\0' : text_[place_]; }
    char next() { return text_[place_++]; }

    /// The next letter in upper case, or one of the other characters that may stand in its place.
    char letter(std::string_view others)
    {
        if (atEnd())
            fail("ends too soon");
        const char c = ascii::toUpper(next());
        if (!ascii::isUpper(c) && others.find(c) == std::string_view::npos) {
            --place_;
            fail(std::string("'") + peek() + "' is no letter");
        }
        return c;
    }

    void expect(char c)
    {
        if (atEnd())
            fail("ends too soon");
        if (peek() != c)
            fail(std::string("'") + c + "' is missing before '" + peek() + "'");
        ++place_;
    }

    void expectEnd()
    {
        if (!atEnd())
            fail("goes on with '" + std::string(text_.substr(place_, 8)) + "'");
    }

    [[noreturn]] void fail(const std::string& what) const
    {
        throw PositionError(name_ + ", place " + std::to_string(place_ + 1) + ": " + what);
    }

private:
    std::string name_;
    std::string_view text_;
    std::size_t place_ = 0;
};

void readBoard(FieldReader field, BoardPosition& position)
{
    for (int col = 1; col <= Board::columns; ++col) {
        if (col > 1)
            field.expect('/');
        bool hangs = false; // whether a tile stands above
        for (int row = 1; row <= Board::columnHeight(position.arrangement, col); ++row) {
            BoardPosition::Cell& cell = position.cells[static_cast<std::size_t>(Board::Grid(row, col))];
            if (hangs && field.peek() == BoardPosition::none)
                field.fail("a tile hangs over this empty cell");
            cell.letter = field.letter("._");
            if (cell.letter == BoardPosition::none)
                continue;
            hangs = true;
            if (field.peek() == '*') {
                cell.multiplier = multiplier::red;
                field.next();
            } else if (field.peek() >= '2' && field.peek() <= '4') {
                cell.multiplier = static_cast<Colour>(field.next() - '0');
            }
        }
    }
    field.expectEnd();
}

/// The fields of a line, which blanks separate; a line that was copied may end in others than blanks.
std::vector<std::string_view> fieldsOf(std::string_view text)
{
    std::vector<std::string_view> fields;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" \t\r\n"), text.size());
        if (end > 0)
            fields.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return fields;
}

} // namespace

std::string textOf(const BoardPosition& position)
{
    std::string text(arrangementNames[position.arrangement == Arrangement::Square ? 0 : 1]);
    text += ' ' + std::to_string(position.level) + ' ';
    for (int col = 1; col <= Board::columns; ++col) {
        if (col > 1)
            text += '/';
        for (int row = 1; row <= Board::columnHeight(position.arrangement, col); ++row) {
            const BoardPosition::Cell& cell = position.cells[static_cast<std::size_t>(Board::Grid(row, col))];
            text += cell.letter;
            if (cell.multiplier == multiplier::red)
                text += '*';
            else if (cell.multiplier != multiplier::plain)
                text += std::to_string(cell.multiplier);
        }
    }
    text += ' ';
    text.append(position.waiting.begin() + 1, position.waiting.end());
    return text + ' ' + (position.queue.empty() ? "-" : position.queue);
}

BoardPosition boardPositionOf(std::string_view text)
{
    constexpr std::string_view names[] = {"arrangement", "level", "board", "drop row", "queue"};
    const std::vector<std::string_view> fields = fieldsOf(text);
    if (fields.empty())
        throw PositionError("arrangement is missing");
    if (fields.size() > std::size(names))
        throw PositionError("after the queue: '" + std::string(fields[std::size(names)]) + "' is too much");

    BoardPosition position;
    if (fields[0] != arrangementNames[0] && fields[0] != arrangementNames[1])
        throw PositionError("arrangement: '" + std::string(fields[0]) + "' is neither square nor staggered");
    position.arrangement = fields[0] == arrangementNames[0] ? Arrangement::Square : Arrangement::Staggered;
    if (fields.size() > 1 && (fields[1].size() != 1 || fields[1][0] < '0' || fields[1][0] > '3'))
        throw PositionError("level: '" + std::string(fields[1]) + "' is not 0 to 3");
    if (fields.size() < std::size(names))
        throw PositionError(std::string(names[fields.size()]) + " is missing");
    position.level = fields[1][0] - '0';
    readBoard(FieldReader(names[2], fields[2]), position);

    FieldReader dropRow(names[3], fields[3]);
    for (std::size_t col = 1; col < position.waiting.size(); ++col)
        position.waiting[col] = dropRow.letter(".");
    dropRow.expectEnd();
    if (fields[4] == "-")
        return position;
    constexpr std::size_t longestQueue = 1000; // a game against the computer holds 107 at the most
    FieldReader queue(names[4], fields[4]);
    while (!queue.atEnd() && position.queue.size() < longestQueue)
        position.queue += queue.letter("_");
    queue.expectEnd();
    return position;
}

} // namespace lexigrove
