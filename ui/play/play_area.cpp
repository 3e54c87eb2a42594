#include "ui/play/play_area.hpp"

#include "game/game_state.hpp"
#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace lexigrove
{

namespace
{

constexpr int sideMinimum = 48 * Theme::grid;
constexpr int sideMaximum = 80 * Theme::grid;
constexpr double smallestCell = 40;
constexpr double usualCell = 60;
constexpr int topMargin = Theme::gap;

} // namespace

PlayArea::PlayArea(GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent), board(new BoardView(flow, theme, this)), flow_(flow), theme_(theme), side_(new QWidget(this))
{
    clock = new ClockFrame(flow.view().clock, theme, side_);
    yourScore_ = new NumberCard("YourScore", tr("Your score"), tr("Points that you have scored"), side_);
    compScore_ = new NumberCard("CompScore", tr("Computer"), tr("Points that the computer has scored"), side_);
    tilesLeft_ = new NumberCard("TilesLeft", tr("Tiles left"), tr("Letters still to come"), side_);
    word_ = new WordBox(flow, theme, side_);
    buttons = new ButtonPanel(flow, side_);
    words = new WordsView(flow.view().state.WordsMade, theme, side_);
    words->setObjectName("WordsMade");
    words->setAccessibleName(tr("Words made"));
    words->setEmptyText(tr("Your words will be listed here.\nClick touching letters, then Enter Word. "
                           "Then click the waiting letters on top to fill the gaps."));
    words->activatesOnEnter = false; // Enter is for the word on the board
    buildSide();

    boardCover_ = new PauseCover(theme, this);
    wordsCover_ = new PauseCover(theme, this);
    wordsCover_->setObjectName("PauseCoverOfWords");
    for (const PauseCover* cover : {boardCover_, wordsCover_}) {
        connect(cover, &PauseCover::clicked, this, [this] {
            if (flow_.isPaused())
                flow_.perform(Command::Pause);
        });
    }
    connect(&theme, &Theme::changed, this, &PlayArea::applyColours);
    applyColours();
}

void PlayArea::buildSide()
{
    auto* numbers = new QHBoxLayout;
    numbers->setSpacing(Theme::spacing);
    numbers->addWidget(clock, 4);
    for (NumberCard* card : {yourScore_, compScore_, tilesLeft_})
        numbers->addWidget(card, 3);
    auto* column = new QVBoxLayout(side_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::gap);
    column->addLayout(numbers);
    column->addWidget(word_);
    column->addWidget(buttons);
    column->addWidget(words, 1);
}

void PlayArea::applyColours()
{
    compScore_->setNumberColour(toQColor(theme_.colours().computerText));
}

QSize PlayArea::sizeHint() const
{
    const QSize boardSize = BoardGeometry::sizeFor(usualCell).toSize();
    return {boardSize.width() + 62 * Theme::grid + 3 * Theme::margin, boardSize.height() + Theme::margin + topMargin};
}

QSize PlayArea::minimumSizeHint() const
{
    const QSize boardSize = BoardGeometry::sizeFor(smallestCell).toSize();
    const int height = std::max(boardSize.height(), side_->minimumSizeHint().height());
    return {boardSize.width() + sideMinimum + 3 * Theme::margin, height + Theme::margin + topMargin};
}

void PlayArea::resizeEvent(QResizeEvent* /*event*/)
{
    layOut();
}

/// The board takes all the height, and the side takes the remaining width, up to what it can use; together they are
/// centred.
void PlayArea::layOut()
{
    const int height = this->height() - Theme::margin - topMargin;
    const int width = this->width() - 3 * Theme::margin;
    BoardGeometry shape;
    shape.fit(QSizeF(width - sideMinimum, height), devicePixelRatioF());
    const QSizeF boardSize = shape.size();
    const int boardWidth = static_cast<int>(std::ceil(boardSize.width()));
    const int boardHeight = static_cast<int>(std::ceil(boardSize.height()));
    const int sideWidth = std::min(width - boardWidth, std::max(sideMaximum, boardWidth));
    const int left = Theme::margin + (width - boardWidth - sideWidth) / 2;

    board->setGeometry(left, topMargin, boardWidth, boardHeight);
    side_->setGeometry(left + boardWidth + Theme::margin, topMargin, sideWidth, height);
    word_->setLetterSize(std::clamp(shape.cell() * 0.55, 24.0, 44.0));
    placeCovers();
}

void PlayArea::placeCovers()
{
    side_->layout()->activate();
    boardCover_->setGeometry(board->geometry());
    wordsCover_->setGeometry(words->geometry().translated(side_->pos()));
}

void PlayArea::synchronise()
{
    const GameState& state = flow_.view().state;
    board->synchronise();
    clock->synchronise();
    yourScore_->setNumber(std::to_string(state.yourScore));
    compScore_->setNumber(std::to_string(state.compScore));
    tilesLeft_->setNumber(state.tilesLeftText());
    if (compScore_->isHidden() == state.computerGame) // a solo player needs no second score
        compScore_->setVisible(state.computerGame);
    word_->synchronise();
    buttons->synchronise();
    words->synchronise();
    showPause();
}

void PlayArea::showPause()
{
    const bool paused = flow_.isPaused();
    boardCover_->setCaption(toQString(flow_.pauseCaption()), paused ? tr("Click here to resume") : QString());
    if (boardCover_->isHidden() != paused)
        return;
    placeCovers();
    boardCover_->setVisible(paused);
    wordsCover_->setVisible(paused);
    boardCover_->raise();
    wordsCover_->raise();
}

} // namespace lexigrove
