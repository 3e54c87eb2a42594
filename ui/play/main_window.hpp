#pragma once

#include "flow/game_flow.hpp"
#include "ui/machine/host.hpp"
#include "ui/play/commands.hpp"
#include "ui/play/play_area.hpp"
#include "ui/play/speaker.hpp"
#include "ui/play/status_line_view.hpp"

#include <QMainWindow>

#include <vector>

class QHBoxLayout;
class QTimer;

namespace lexigrove
{

/// The main window: passes keys, menus and ticks to the flow, and shows the models after every input.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(Host& host, GameFlow& flow, const StatusLine& status);
    ~MainWindow() override;

    [[nodiscard]] BoardView& board() { return *area_->board; }

signals:
    void painted();
    /// The program is over.
    void ended();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct MenuEntry {
        MenuItem item;
        QAction* action;
    };

    void showModels();
    void inputEnded();
    void addMenus();
    void addCornerButton(QHBoxLayout& row, const QString& name, const QString& caption, Command command);
    void connectArea();
    void warnBefore(QTimer& push);
    QTimer* addTimer(const QString& name, Timer timer);
    void watchLeaving();
    void pauseIfLeft();
    [[nodiscard]] bool typed(const QKeyEvent& event);

    Host& host_;
    GameFlow& flow_;
    PlayArea* area_;
    StatusLineView* status_;
    std::vector<MenuEntry> menuEntries_;
    Speaker speaker_;
    bool away_ = false; ///< left, while the game is busy with something that cannot be paused
    QTimer* blinking_;  ///< runs while the game is paused: a game at rest is not to be woken up
    QTimer* left_;      ///< runs while the window is minimised or another program's has the keys
    QTimer* saving_;    ///< fires once the events of an input are done
    bool endReported_ = false;
};

} // namespace lexigrove
