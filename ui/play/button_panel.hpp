#pragma once

#include "flow/game_flow.hpp"
#include "ui/play/commands.hpp"

#include <QWidget>

#include <vector>

class QPushButton;

namespace lexigrove
{

/// The buttons for the player's actions, `Frame3`.
class ButtonPanel : public QWidget
{
    Q_OBJECT

public:
    ButtonPanel(GameFlow& flow, QWidget* parent);

    void synchronise();

private:
    struct Entry {
        PanelButton description;
        QPushButton* button;
    };

    [[nodiscard]] QPushButton* add(const PanelButton& description);

    GameFlow& flow_;
    std::vector<Entry> entries_;
    QPushButton* enterWord_ = nullptr;
    QPushButton* pause_ = nullptr;
    QPushButton* sound_ = nullptr;
};

} // namespace lexigrove
