#pragma once

#include "flow/command.hpp"

#include <QKeySequence>
#include <QList>
#include <QString>

#include <vector>

namespace lexigrove
{

/// An item of a menu.
struct MenuItem {
    Command command;
    QString text;
    QList<QKeySequence> keys;
    QString keyText;             ///< a key that the window handles itself, shown beside the text
    bool afterSeparator = false; ///< a line separates it from the one above
};

struct Menu {
    QString title;
    std::vector<MenuItem> items;
};

/// The menus of the main window: everything that its buttons do, and more.
std::vector<Menu> mainMenus();

/// A button of the main window.
struct PanelButton {
    Command command;
    QString name; ///< the object name
    QString text;
    QString toolTip;
    int row = 0;
    int width = 1; ///< relative to the other buttons of the row
};

std::vector<PanelButton> panelButtons();

} // namespace lexigrove
