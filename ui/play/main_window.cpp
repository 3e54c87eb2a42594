#include "ui/play/main_window.hpp"

#include "ui/look/text.hpp"
#include "ui/word_typing.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

namespace lexigrove
{

MainWindow::MainWindow(Host& host, GameFlow& flow, const StatusLine& status) : host_(host), flow_(flow)
{
    setObjectName("MainWindow");
    host_.theme.follow(flow_.scheme); // before the widgets: each is then dressed once
    auto* centre = new QWidget(this);
    area_ = new PlayArea(flow, host.theme, centre);
    status_ = new StatusLineView(status, flow.game.state, host.theme, centre);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(area_, 1);
    column->addWidget(status_);
    setCentralWidget(centre);
    area_->board->setFocus();
    addMenus();
    connectArea();

    addTimer("UpdateRedTriggerTimer", RedTiles::redTimerInterval, &GameFlow::redTimerTick);
    addTimer("MoveColDownTimer", RedTiles::pushTimerInterval, &GameFlow::pushTimerTick);
    addTimer("PauseTimer", GameFlow::pauseTimerInterval, &GameFlow::pauseTimerTick);
    addTimer("Clock", Dc::timerInterval, &GameFlow::clockTimerTick);

    host_.setView(this);
    showModels();
}

MainWindow::~MainWindow()
{
    host_.setView(nullptr);
}

void MainWindow::addMenus()
{
    for (const Menu& menu : mainMenus()) {
        QMenu* const list = menuBar()->addMenu(menu.title);
        for (const MenuItem& item : menu.items) {
            if (item.afterLine)
                list->addSeparator();
            QAction* action = list->addAction(item.keyText.isEmpty() ? item.text : item.text + '\t' + item.keyText);
            action->setObjectName(item.command == &GameFlow::showStatistics ? "showstatx" : QString());
            action->setShortcuts(item.keys);
            action->setCheckable(item.command == &GameFlow::soundButton);
            connect(action, &QAction::triggered, this, [this, command = item.command] { run(command); });
            menuEntries_.push_back({item, action});
        }
    }
    auto* corner = new QWidget;
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, Theme::spacing, 0);
    addCornerButton(*row, "Helpx", QStringLiteral("Help"), &GameFlow::showHelp);
    addCornerButton(*row, "Aboutx", QStringLiteral("About"), &GameFlow::showAbout);
    menuBar()->setCornerWidget(corner);
}

void MainWindow::addCornerButton(QHBoxLayout& row, const QString& name, const QString& caption, Command command)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(caption);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, command] { run(command); });
    row.addWidget(button);
}

void MainWindow::connectArea()
{
    BoardView* board = area_->board;
    connect(board, &BoardView::tileReleased, this,
            [this](int tile, MouseButton button, bool shift) { input([&] { flow_.clickTile(tile, button, shift); }); });
    connect(board, &BoardView::dropReleased, this, [this](int col) { input([&] { flow_.drop(col); }); });
    connect(board, &BoardView::tileHovered, this, [this](int tile) { input([&] { flow_.hoverTile(tile); }); });
    connect(area_->clock, &ClockFrame::released, this, [this](Qt::MouseButton button) {
        if (button == Qt::LeftButton || button == Qt::RightButton)
            input([&] { flow_.releaseClockFrame(button == Qt::LeftButton ? MouseButton::Left : MouseButton::Right); });
    });
    connect(&area_->clock->view(), &ClockView::focusReceived, this, [this] { run(&GameFlow::clockGotFocus); });
    connect(area_->buttons, &ButtonPanel::triggered, this, &MainWindow::run);
    connect(area_->words, &WordsView::headingClicked, this, [this](int x) { input([&] { flow_.sortWordsMade(x); }); });
    connect(area_->words, &WordsView::rowPicked, this, &MainWindow::pickWord);
    connect(area_->words, &WordsView::rowActivated, this, [this](int row) {
        pickWord(row);
        run(&GameFlow::showMeaning);
    });
    connect(area_, &PlayArea::pauseCoverClicked, this, [this] {
        if (flow_.isPaused())
            run(&GameFlow::pause);
    });
}

void MainWindow::addTimer(const QString& name, int interval, Command tick)
{
    auto* timer = new QTimer(this);
    timer->setObjectName(name);
    timer->setInterval(interval);
    connect(timer, &QTimer::timeout, this, [this, tick] { run(tick); });
    timer->start();
}

// ---- Inputs

void MainWindow::run(Command command)
{
    input([&] { std::invoke(command, flow_); });
}

/// An input that was refused changes nothing; the one that runs has its own end.
void MainWindow::afterInput()
{
    if (!flow_.isBusy()) {
        while (!flow_.ended() && host_.gate.takeRequest())
            flow_.exit();
    }
    showModels();
    if (flow_.ended() && !toldEnd_) {
        toldEnd_ = true;
        emit ended();
    }
}

void MainWindow::pickWord(int row)
{
    if (flow_.isPaused()) // the words are covered
        return;
    input([&] { flow_.asInput([&] { flow_.game.state.WordsMade.setCurrent(row); }); });
}

/// Spells on with a touching tile; where none shows the letter, the whole word is spelt anew along another path.
void MainWindow::typeLetter(char letter)
{
    if (flow_.swapTile() != 0)
        flow_.escape(); // typing is another action, also on the marked tile
    const Selection& selection = flow_.game.selection;
    const auto path = typedPath(flow_.game.board, selection, letter);
    if (!path) {
        const std::string word = selection.word() + letter;
        flow_.asInput([&] { flow_.game.ports.status.show(word + " cannot be spelled on the board"); });
        return;
    }
    std::size_t from = static_cast<std::size_t>(selection.length());
    bool goesOn = from < path->size();
    for (std::size_t i = 0; goesOn && i < from; ++i)
        goesOn = selection.tileAt(static_cast<int>(i) + 1) == (*path)[i];
    if (!goesOn) {
        flow_.escape();
        from = 0;
    }
    for (std::size_t i = from; i < path->size(); ++i)
        flow_.clickTile((*path)[i], MouseButton::Left, false);
}

void MainWindow::takeBackLetter()
{
    if (const int last = flow_.game.selection.lastTile(); last != 0)
        flow_.clickTile(last, MouseButton::Left, false);
}

bool MainWindow::typed(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers != Qt::NoModifier || event.isAutoRepeat() || event.text().size() != 1)
        return false;
    const QChar character = event.text().front().toUpper();
    if (character >= u'1' && character <= u'8') {
        input([&] { flow_.drop(character.unicode() - u'0'); });
        return true;
    }
    if (!character.isLetter())
        return false;
    if (flow_.inGame() && !flow_.isPaused() && !flow_.isBusy())
        input([&] { typeLetter(fromQString(character).front()); });
    return true;
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers plain = Qt::ShiftModifier | Qt::KeypadModifier;
    if ((event->modifiers() & ~plain) != Qt::NoModifier)
        return QMainWindow::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_F1:
        return run(&GameFlow::askDeveloperPassword);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return run(&GameFlow::enterWord);
    case Qt::Key_Escape:
        return run(&GameFlow::escape);
    case Qt::Key_Backspace:
        return input([this] { takeBackLetter(); });
    default:
        if (!typed(*event))
            QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::keyReleaseEvent(QKeyEvent* event)
{
    const bool keypad = event->modifiers().testFlag(Qt::KeypadModifier);
    const auto release = [this](DeveloperKey key) { flow_.releaseDeveloperKey(key); };
    if (event->isAutoRepeat())
        return;
    if (event->key() == Qt::Key_End)
        release(DeveloperKey::End);
    else if (event->key() == Qt::Key_Home)
        release(DeveloperKey::Home);
    else if (event->key() == Qt::Key_Minus && keypad)
        release(DeveloperKey::NumpadMinus);
    else if (event->key() == Qt::Key_Plus && keypad)
        release(DeveloperKey::NumpadPlus);
    else
        QMainWindow::keyReleaseEvent(event);
}

/// Closing is leaving, with the flow's questions; in the middle of an input that input unwinds first.
void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!flow_.ended()) {
        if (flow_.isBusy())
            host_.gate.requestLeaving();
        else
            run(&GameFlow::exit);
    }
    event->setAccepted(flow_.ended());
}

// ---- The models

void MainWindow::showModels()
{
    host_.theme.follow(flow_.scheme);
    const QString caption = messageToQString(flow_.caption());
    if (caption != windowTitle())
        setWindowTitle(caption);
    for (const MenuEntry& entry : menuEntries_) {
        entry.action->setEnabled(isTimeFor(entry.item.time, flow_));
        if (entry.action->isCheckable())
            entry.action->setChecked(flow_.sounds.isOn());
        if (entry.item.command == &GameFlow::pause)
            entry.action->setText(flow_.isPaused() ? tr("&Resume") : tr("&Pause"));
    }
    area_->synchronise();
    status_->synchronise();
}

} // namespace lexigrove
