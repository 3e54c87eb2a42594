#pragma once

#include "game/board.hpp"
#include "game/board_position.hpp"
#include "ui/board/board_painter.hpp"

#include <QWidget>

namespace lexigrove
{

/// The picture of a board that nobody plays on: one of a past game, or one that is kept. It takes no input.
class BoardPicture : public QWidget
{
public:
    /// The scheme gives the tiles their colours; both outlive the picture.
    BoardPicture(const ColourScheme& scheme, const Theme& theme, QWidget* parent = nullptr);

    /// Shows the board with a path lit on it.
    void show(const BoardPosition& position, const std::vector<int>& path);
    using QWidget::show;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const ColourScheme& scheme_;
    Board board_;
    BoardGeometry shape_;
    BoardPainter painter_;
    BoardMarks marks_;
};

} // namespace lexigrove
