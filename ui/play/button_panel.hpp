#pragma once

#include "ui/play/commands.hpp"

#include <QWidget>

#include <vector>

class QPushButton;

namespace lexigrove
{

/// The buttons of the player's actions, `Frame3`.
class ButtonPanel : public QWidget
{
    Q_OBJECT

public:
    ButtonPanel(const GameFlow& flow, QWidget* parent);

    void synchronise();

signals:
    void triggered(lexigrove::Command command);

private:
    struct Entry {
        PanelButton description;
        QPushButton* button;
    };

    [[nodiscard]] QPushButton* add(const PanelButton& description);

    const GameFlow& flow_;
    std::vector<Entry> entries_;
    QPushButton* enterWord_ = nullptr;
    QPushButton* pause_ = nullptr;
    QPushButton* sound_ = nullptr;
};

/// Whether a command of this kind does something now.
bool isTimeFor(CommandTime time, const GameFlow& flow);

} // namespace lexigrove
