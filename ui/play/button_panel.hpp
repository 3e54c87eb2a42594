#pragma once

#include "flow/game_flow.hpp"

#include <QWidget>

#include <map>
#include <vector>

class QPushButton;

namespace lexigrove
{

/// The buttons for the player's actions, `Frame3`: in two rows, or in more where the font is large.
class ButtonPanel : public QWidget
{
    Q_OBJECT

public:
    ButtonPanel(GameFlow& flow, QWidget* parent);

    void synchronise();

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* /*event*/) override { place(); }

private:
    struct Placed {
        QPushButton* button;
        int row;    ///< in which the button begins where there is room for all of it
        int weight; ///< its share of the row
    };
    using Rows = std::vector<std::vector<Placed>>;
    [[nodiscard]] Rows rowsFor(int width) const;
    void place();
    void setText(Command command, const QString& text);

    GameFlow& flow_;
    std::vector<Placed> placed_;
    std::map<Command, QPushButton*> buttons_;
};

} // namespace lexigrove
