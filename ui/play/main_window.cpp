#include "ui/play/main_window.hpp"

#include "dictionary/dictionary.hpp"
#include "settings/sound_cues.hpp"
#include "ui/look/text.hpp"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace lexigrove
{

MainWindow::MainWindow(Host& host, GameFlow& flow, const StatusLine& status) : host_(host), flow_(flow), speaker_(flow)
{
    setObjectName("MainWindow");
    BoardAccess::install();
    host_.theme.apply(flow_.view().scheme); // before the widgets, so that each is styled only once
    auto* centre = new QWidget(this);
    area_ = new PlayArea(flow, host, centre);
    status_ = new StatusLineView(status, flow, host.theme, centre);
    speaker_.speakFrom(centre);
    connect(status_, &StatusLineView::shows, this, [this](const QString& text) { speaker_.sayStatus(text); });
    connect(&host_, &Host::waitingChanged, this, [this](bool waits) {
        if (waits)
            speaker_.lookAtComputersWord();
    });
    connect(&host_, &Host::gameOver, this, [this](const EndOfGame& end) {
        speaker_.say(tr("%1. Your score is %2").arg(toQString(end.reason)).arg(end.score));
        for (const std::string& line : end.memorable)
            speaker_.say(toQString(line));
    });
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(area_, 1);
    column->addWidget(status_);
    setCentralWidget(centre);
    area_->board->setFocus();
    addMenus();
    connectArea();

    addTimer("UpdateRedTriggerTimer", Timer::Red);
    addTimer("MoveColDownTimer", Timer::Push);
    addTimer("Clock", Timer::Clock);
    blinking_ = addTimer("PauseTimer", Timer::Pause);

    saving_ = new QTimer(this);
    saving_->setSingleShot(true);
    connect(saving_, &QTimer::timeout, this, [this] { flow_.saveIfChanged(); });
    left_ = new QTimer(this);
    left_->setInterval(3'000);
    connect(left_, &QTimer::timeout, this, &MainWindow::pauseIfLeft);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &MainWindow::watchLeaving);
    constexpr double mostOfScreen = 0.86;
    resize(sizeHint().boundedTo(screen()->availableSize() * mostOfScreen));
    restoreGeometry(host_.settings.windowPlace());
    host_.mainWindow = this;
    connect(&host_, &Host::modelsChanged, this, &MainWindow::showModels);
    connect(&host_, &Host::inputEnded, this, &MainWindow::inputEnded);
    showModels();
}

MainWindow::~MainWindow()
{
    host_.settings.setWindowPlace(saveGeometry());
}

void MainWindow::addMenus()
{
    for (const Menu& menu : mainMenus()) {
        QMenu* const list = menuBar()->addMenu(menu.title);
        for (const MenuItem& item : menu.items) {
            if (item.afterSeparator)
                list->addSeparator();
            QAction* action = list->addAction(item.keyText.isEmpty() ? item.text : item.text + '\t' + item.keyText);
            action->setObjectName(item.command == Command::Statistics ? "showstatx" : QString());
            action->setShortcuts(item.keys);
            action->setCheckable(item.command == Command::Sound);
            connect(action, &QAction::triggered, this, [this, command = item.command] { flow_.perform(command); });
            menuEntries_.push_back({item, action});
        }
    }
    auto* corner = new QWidget;
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, Theme::spacing, 0);
    addCornerButton(*row, "Helpx", QStringLiteral("Help"), Command::Help);
    addCornerButton(*row, "Aboutx", QStringLiteral("About"), Command::About);
    menuBar()->setCornerWidget(corner);
}

void MainWindow::addCornerButton(QHBoxLayout& row, const QString& name, const QString& caption, Command command)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(caption);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, command] { flow_.perform(command); });
    row.addWidget(button);
}

void MainWindow::connectArea()
{
    connect(area_->words, &WordsView::headingClicked, this, [this](int x) { flow_.sortWordsMade(x); });
    connect(area_->words, &WordsView::rowPicked, this, [this](int row) { flow_.pickWord(row); });
    connect(area_->words, &WordsView::rowActivated, this, [this](int row) {
        flow_.pickWord(row);
        flow_.perform(Command::ShowMeaning);
    });
}

QTimer* MainWindow::addTimer(const QString& name, Timer timer)
{
    auto* clock = new QTimer(this);
    clock->setObjectName(name);
    clock->setInterval(intervalOf(timer));
    connect(clock, &QTimer::timeout, this, [this, timer] {
        if (timer != Timer::Clock || !away_)
            host_.gate.runTick([&] { flow_.tick(timer); });
    });
    clock->start();
    if (timer == Timer::Push)
        warnBefore(*clock);
    return clock;
}

/// In the last seconds before a push the columns that it may strike are marked.
void MainWindow::warnBefore(QTimer& push)
{
    constexpr int warning = 5'000; // milliseconds
    auto* const near = new QTimer(this);
    near->setSingleShot(true);
    near->setInterval(push.interval() - warning);
    connect(near, &QTimer::timeout, this, [this] {
        host_.gate.runTick([&] { flow_.warnOfPush(); });
        area_->board->setPushNear(true);
    });
    connect(&push, &QTimer::timeout, this, [this, near] {
        area_->board->setPushNear(false);
        near->start();
    });
    near->start();
}

// ---- Inputs

/// A close request that came during the input is carried out after it.
void MainWindow::inputEnded()
{
    if (!flow_.isBusy()) {
        while (!flow_.ended() && host_.gate.takeRequest())
            flow_.perform(Command::Exit);
    }
    showModels();
    saving_->start();
    if (flow_.ended() && !endReported_) {
        endReported_ = true;
        emit ended();
    }
}

bool MainWindow::typed(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers != Qt::NoModifier || event.isAutoRepeat() || event.text().size() != 1)
        return false;
    const QChar character = event.text().front().toUpper();
    if (character >= u'1' && character <= u'8') {
        flow_.drop(character.unicode() - u'0');
        return true;
    }
    if (!character.isLetter())
        return false;
    flow_.typeLetter(fromQString(character).front());
    return true;
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers plain = Qt::ShiftModifier | Qt::KeypadModifier;
    if ((event->modifiers() & ~plain) != Qt::NoModifier)
        return QMainWindow::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_F1:
        return flow_.perform(Command::AskPassword);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) // a key that is held does not pass turn after turn
            flow_.perform(Command::EnterWord);
        return;
    case Qt::Key_Escape:
        return flow_.perform(Command::ClearWord);
    case Qt::Key_Backspace:
        return flow_.perform(Command::TakeBack);
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

/// Closing means leaving, with the flow's questions; an input in progress unwinds first.
void MainWindow::closeEvent(QCloseEvent* event)
{
    if (qApp->isSavingSession()) { // the session ends: the next start continues the game
        flow_.saveIfChanged();
        event->accept();
        return;
    }
    if (!flow_.ended()) {
        if (flow_.isBusy())
            host_.gate.requestLeaving();
        else
            flow_.perform(Command::Exit);
    }
    event->setAccepted(flow_.ended());
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        watchLeaving();
}

/// A glance at another window does not count.
void MainWindow::watchLeaving()
{
    if (isMinimized() || QGuiApplication::applicationState() != Qt::ApplicationActive) {
        if (!left_->isActive())
            left_->start();
        return;
    }
    left_->stop();
    away_ = false;
}

/// Tries again after whatever the game is busy with; the clock of a game against the computer stands still meanwhile.
void MainWindow::pauseIfLeft()
{
    if (!flow_.inGame() || flow_.isPaused() || !host_.settings.pausesWhenLeft())
        return;
    away_ = flow_.isBusy() && flow_.view().state.computerGame;
    if (!flow_.isBusy())
        flow_.perform(Command::Pause);
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    emit painted();
}

// ---- The models

void MainWindow::showModels()
{
    host_.theme.apply(flow_.view().scheme);
    const QString caption = messageToQString(flow_.view().dictionary.caption());
    if (caption != windowTitle())
        setWindowTitle(caption);
    for (const MenuEntry& entry : menuEntries_) {
        entry.action->setEnabled(flow_.isTime(GameFlow::timeOf(entry.item.command)));
        if (entry.action->isCheckable())
            entry.action->setChecked(flow_.view().sounds.isOn());
        if (entry.item.command == Command::Pause)
            entry.action->setText(flow_.isPaused() ? tr("&Resume") : tr("&Pause"));
    }
    if (!flow_.isPaused())
        blinking_->stop();
    else if (!blinking_->isActive())
        blinking_->start();
    area_->synchronise();
    status_->synchronise();
    speaker_.lookAtGame();
}

} // namespace lexigrove
