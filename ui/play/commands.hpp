#pragma once

#include "flow/game_flow.hpp"

#include <QKeySequence>
#include <QList>
#include <QString>

#include <vector>

namespace lexigrove
{

/// An input of the game that takes nothing but its name.
using Command = void (GameFlow::*)();

/// When a command does something.
enum class CommandTime { Always, InGame, InPlay }; ///< in play: in a game that is not paused

/// A line of a menu.
struct MenuItem {
    Command command = nullptr;
    QString text;
    QList<QKeySequence> keys;
    QString keyText; ///< a key that the window takes itself, shown beside the text
    CommandTime time = CommandTime::Always;
    bool afterLine = false; ///< a line separates it from the one above
};

struct Menu {
    QString title;
    std::vector<MenuItem> items;
};

/// The menus of the main window: all that its buttons do, and more.
std::vector<Menu> mainMenus();

/// A button of the main window.
struct PanelButton {
    Command command = nullptr;
    QString name; ///< the object name
    QString text;
    QString toolTip;
    CommandTime time = CommandTime::InPlay;
    int row = 0;
    int width = 1; ///< compared with the other buttons of the row
};

std::vector<PanelButton> panelButtons();

} // namespace lexigrove
