#include "game/board.hpp"

#include "dictionary/letter_tables.hpp"

namespace lexigrove
{

namespace
{

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

    for (int number = 1; number <= tileCount; ++number) {
        BoxControl& control = tile(number);
        control.Left(columnLeft(col(number)));
        control.Top(cellTop(row(number), col(number)));
        control.Visible(isInPlay(number));
    }
    for (int col = 1; col <= columns; ++col) {
        waiting(col).Left(columnLeft(col));
        waiting(col).Top(layout::dropRowTop);
        waiting(col).Visible(true);
    }
    touching_ = arrangement == Arrangement::Square ? squareNeighbours() : staggeredNeighbours();
}

std::vector<int> Board::specialTiles() const
{
    std::vector<int> special;
    for (int tile = 1; tile <= tileCount; ++tile) {
        if (isVisible(tile) && maskcolor(tile) > multiplier::plain)
            special.push_back(tile);
    }
    return special;
}

void Board::clear()
{
    for (BoxControl& tile : Tiles)
        tile.Visible(false);
    for (BoxControl& waiting : TopDrop)
        waiting.Visible(false);
}

/// Short columns are shifted down by half a cell.
int Board::cellTop(int row, int col) const
{
    const int shift = columnHeight(col) < rows ? layout::cellSize / 2 : 0;
    return layout::boardTop + (row - 1) * layout::cellSize + shift;
}

NeighbourList Board::neighbours(int tile) const
{
    NeighbourList visible;
    for (const int neighbour : touching_[index(tile)]) {
        if (isVisible(neighbour))
            visible.append(neighbour);
    }
    return visible;
}

int Board::emptyCells(int col) const
{
    int count = 0;
    for (int row = 1; row <= columnHeight(col); ++row)
        count += tile(row, col).Visible() ? 0 : 1;
    return count;
}

std::string Board::description(int number) const
{
    std::string neighbourLetters;
    for (const int neighbour : neighbours(number))
        neighbourLetters += letter(neighbour) + ',';
    return "index=" + std::to_string(number) + ", seq=" + std::to_string(number) + "<" + letter(number) +
           "> row=" + std::to_string(row(number)) + ", col=" + std::to_string(col(number)) +
           ", Neibors=" + Neibors(number) + neighbourLetters + ", value=" + std::to_string(valueOf(letter(number))) +
           ", maskcolor=" + std::to_string(maskcolor(number)) + ", tag= " + tile(number).Tag();
}

std::string Board::hoverCaption(int number) const
{
    std::string caption = "Letter " + letter(number) + " - score =" + std::to_string(valueOf(letter(number)));
    if (multiplier::isBonus(maskcolor(number))) {
        static constexpr const char* names[] = {"double", "triple", "quadruple"};
        caption += std::string(", will give ") + names[maskcolor(number) - multiplier::doubled] + " word score";
    }
    return caption;
}

} // namespace lexigrove
