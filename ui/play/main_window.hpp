#pragma once

#include "flow/game_flow.hpp"
#include "ui/machine/host.hpp"
#include "ui/play/commands.hpp"
#include "ui/play/play_area.hpp"
#include "ui/play/status_line_view.hpp"

#include <QMainWindow>

#include <concepts>
#include <vector>

class QHBoxLayout;

namespace lexigrove
{

/// The main window: gives every click, key and tick to the flow, and shows the models afterwards.
class MainWindow : public QMainWindow, public ModelsView
{
    Q_OBJECT

public:
    MainWindow(Host& host, GameFlow& flow, const StatusLine& status);
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    void showModels() override;
    QWidget* widget() override { return this; }

    /// Runs an input of the flow and shows what came of it.
    template <std::invocable Action>
    void input(Action action)
    {
        action();
        afterInput();
    }

    [[nodiscard]] BoardView& board() { return *area_->board; }

signals:
    /// The program is over.
    void ended();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct MenuEntry {
        MenuItem item;
        QAction* action;
    };

    void addMenus();
    void addCornerButton(QHBoxLayout& row, const QString& name, const QString& caption, Command command);
    void connectArea();
    void addTimer(const QString& name, int interval, Command tick);
    void afterInput();
    void run(Command command);
    void typeLetter(char letter);
    void takeBackLetter();
    void pickWord(int row);
    [[nodiscard]] bool typed(const QKeyEvent& event);

    Host& host_;
    GameFlow& flow_;
    PlayArea* area_;
    StatusLineView* status_;
    std::vector<MenuEntry> menuEntries_;
    bool toldEnd_ = false;
};

} // namespace lexigrove
