#pragma once

#include "flow/game_flow.hpp"

#include <QWidget>

#include <map>

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
    GameFlow& flow_;
    std::map<Command, QPushButton*> buttons_;
};

} // namespace lexigrove
