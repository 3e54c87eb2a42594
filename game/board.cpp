#include "game/board.hpp"

#include "dictionary/letter_tables.hpp"

namespace lexigrove
{

namespace
{

bool isShortColumn(Arrangement arrangement, int col)
{
    return arrangement == Arrangement::Staggered && col % 2 == 1;
}

int valueOf(const std::string& letter)
{
    return letter.empty() ? 0 : letterValue(letter.front());
}

void prepare(BoxControl& control)
{
    control.Visible(false);
    control.Caption("");
    control.BorderWidth(2);
    control.FontBold(true);
    control.MaskColor(multiplier::plain);
    control.Move(0, 0, layout::cellSize, layout::cellSize);
}

} // namespace

Board::Board()
{
    for (BoxControl& control : Tiles)
        prepare(control);
    for (BoxControl& control : TopDrop)
        prepare(control);
    for (BoxControl& control : Picture2.DummyTile)
        prepare(control);
}

void Board::setScreen(Screen* screen)
{
    for (BoxControl& control : Tiles)
        control.setScreen(screen);
    for (BoxControl& control : TopDrop)
        control.setScreen(screen);
}

void Board::layOut(Arrangement arrangement)
{
    arrangement_ = arrangement;
    clear();

    int number = 0;
    for (int col = 1; col <= columns; ++col) {
        for (int row = 1; row <= 8; ++row) {
            ++number;
            const int left = homeLeft(col);
            int top = (row - 1) * layout::cellSize + layout::boardTop;
            if (isShortColumn(arrangement, col))
                top += (layout::cellSize + 1) / 2;
            tile(number).Left(left);
            tile(number).Top(top);
            tile(number).Visible(row <= columnHeight(col));
            grid_[index(row)][index(col)] = static_cast<std::int16_t>(number);
            row_[index(number)] = static_cast<std::int16_t>(row);
            col_[index(number)] = static_cast<std::int16_t>(col);
            cellLeft_[index(row)][index(col)] = left;
            cellTop_[index(row)][index(col)] = top;
        }
        TopDrop[index(col)].Left(homeLeft(col));
        TopDrop[index(col)].Top(layout::dropRowTop);
        TopDrop[index(col)].Visible(true);
    }

    neighbours_ = arrangement == Arrangement::Square ? squareNeighbours() : staggeredNeighbours();
    savedNeighbours_ = neighbours_;
}

void Board::clear()
{
    for (BoxControl& tile : Tiles)
        tile.Visible(false);
    for (BoxControl& waiting : TopDrop)
        waiting.Visible(false);
}

void Board::rebuildNeighbours()
{
    for (int n = 1; n <= tileCount; ++n) {
        NeighbourList list;
        for (const int m : savedNeighbours(n)) {
            const int standing = Grid(initialRow(m), initialCol(m));
            if (isVisible(standing))
                list.append(standing);
        }
        neighbours_[index(n)] = list;
    }
}

int Board::columnHeight(int col) const
{
    return isShortColumn(arrangement_, col) ? 7 : 8;
}

bool Board::isBonus(int number) const
{
    return maskcolor(number) > multiplier::plain && maskcolor(number) <= multiplier::highestBonus;
}

int Board::emptyCells(int col) const
{
    int count = 0;
    for (int row = 1; row <= columnHeight(col); ++row)
        count += isVisible(Grid(row, col)) ? 0 : 1;
    return count;
}

std::string Board::description(int number) const
{
    std::string neighbourLetters;
    for (const int neighbour : neighbours(number))
        neighbourLetters += letter(neighbour) + ',';
    return "index=" + std::to_string(number) + ", seq=" + std::to_string(seq(number)) + "<" + letter(number) +
           "> row=" + std::to_string(row(number)) + ", col=" + std::to_string(col(number)) +
           ", Neibors=" + Neibors(number) + neighbourLetters + ", value=" + std::to_string(valueOf(letter(number))) +
           ", maskcolor=" + std::to_string(maskcolor(number)) + ", tag= " + tile(number).Tag();
}

std::string Board::hoverCaption(int number) const
{
    std::string caption = "Letter " + letter(number) + " - score =" + std::to_string(valueOf(letter(number)));
    if (isBonus(number)) {
        static constexpr const char* names[] = {"double", "triple", "quadruple"};
        caption += std::string(", will give ") + names[maskcolor(number) - 2] + " word score";
    }
    return caption;
}

} // namespace lexigrove
