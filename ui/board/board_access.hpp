#pragma once

#include "ui/board/board_cursor.hpp"

#include <QString>

#include <array>

namespace lexigrove
{

class BoardView;
class GameFlow;

/// The board as assistive tools see it: a table of nine rows and eight columns, the waiting letters as row 0. Each cell
/// has a name, can have the focus and can be pressed.
class BoardAccess
{
public:
    static constexpr int rows = Board::rows + 1;
    static constexpr int cells = rows * Board::columns;

    /// For the toolkit, which asks it for every board's interface from then on.
    static void install();

    BoardAccess(BoardView& view, const GameFlow& flow) : view_(view), flow_(flow) {}

    /// "Q, row 3, column 5, triple word, selected"; "empty, row 1, column 2"; "waiting, column 4, Y".
    [[nodiscard]] static QString nameOf(const GameFlow& flow, const BoardSpot& spot);

    /// The spot of a cell, which are numbered row by row from 0, and the cell of a spot.
    [[nodiscard]] static BoardSpot spotOf(int cell);
    [[nodiscard]] static int cellOf(const BoardSpot& spot);

    /// Reports the cells whose names have changed, where somebody listens.
    void synchronise();
    void reportFocus(const BoardSpot& spot);

private:
    BoardView& view_;
    const GameFlow& flow_;
    std::array<QString, cells> names_;
};

} // namespace lexigrove
