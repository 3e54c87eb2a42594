#include "ui/play/play_area.hpp"

#include "game/game_state.hpp"
#include "ui/look/text.hpp"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace lexigrove
{

namespace
{

int sideMinimum()
{
    return std::max(48 * Theme::grid, Theme::scaled(38 * Theme::grid));
}

constexpr int sideMaximum = 80 * Theme::grid;
constexpr double smallestCell = 34;
constexpr double usualCell = 60;
constexpr int topMargin = Theme::gap;
constexpr double numberSize = 24;
constexpr const char* captionProperty = "caption";

/// The label of a number of the game, on a card of its own under what it counts.
QLabel* newNumber(const char* name, const QString& caption, const QString& toolTip)
{
    auto* card = new QFrame;
    card->setProperty("card", true);
    card->setToolTip(toolTip);
    auto* heading = new QLabel(caption);
    heading->setProperty("quiet", true);
    heading->setFont(Theme::font(Theme::smallestText));
    auto* number = new QLabel;
    number->setObjectName(name);
    number->setProperty(captionProperty, caption);
    number->setAccessibleName(caption);
    number->setFont(Theme::font(numberSize, true));
    number->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(Theme::grid + Theme::grid / 2, Theme::grid - 2, Theme::grid, Theme::grid - 2);
    column->setSpacing(0);
    column->addWidget(heading);
    column->addWidget(number, 1, Qt::AlignVCenter);
    return number;
}

/// A card is read with its value: "Your score, 33".
void showNumber(QLabel& number, const QString& text)
{
    if (text == number.text())
        return;
    number.setText(text);
    number.setAccessibleName(number.property(captionProperty).toString() + ", " + text);
}

} // namespace

PlayArea::PlayArea(GameFlow& flow, Host& host, QWidget* parent)
    : QWidget(parent), board(new BoardView(flow, host, this)), flow_(flow), side_(new QWidget(this))
{
    const Theme& theme = host.theme;
    clock = new ClockFrame(flow, theme, side_);
    yourScore_ = newNumber("YourScore", tr("Your score"), tr("Points that you have scored"));
    compScore_ = newNumber("CompScore", tr("Computer"), tr("Points that the computer has scored"));
    tilesLeft_ = newNumber("TilesLeft", tr("Tiles left"), tr("Letters still to come"));
    word = new WordBox(flow, theme, side_);
    buttons = new ButtonPanel(flow, side_);
    words = new WordsView(flow.view().state.WordsMade, theme, side_);
    words->setObjectName("WordsMade");
    words->setAccessibleName(tr("Words made"));
    words->setEmptyText(tr("Your words will be listed here.\nClick touching letters, then Enter Word. "
                           "Then click the waiting letters on top to fill the gaps."));
    words->activatesOnEnter = false; // Enter is for the word on the board
    buildSide();

    boardCover_ = new PauseCover(theme, tr("Click here or press Ctrl+P to resume"), this);
    wordsCover_ = new PauseCover(theme, {}, this);
    wordsCover_->setObjectName("PauseCoverOfWords");
    waits_ = new Banner(theme, "AnyKey", this);
    end_ = new Banner(theme, "End", this);
    connect(&host, &Host::waitingChanged, this, [this](bool waits) {
        if (waits)
            waits_->tell(tr("Press any key to continue"));
        else
            waits_->hide();
    });
    connect(&host, &Host::gameOver, end_, [this](const EndOfGame& end) { end_->tell(end); });
    connect(&host, &Host::inputRefused, word, &WordBox::refuse);
    for (const PauseCover* cover : {boardCover_, wordsCover_}) {
        connect(cover, &PauseCover::clicked, this, [this] {
            if (flow_.isPaused())
                flow_.perform(Command::Pause);
        });
    }
}

void PlayArea::buildSide()
{
    auto* numbers = new QHBoxLayout;
    numbers->setSpacing(Theme::spacing);
    numbers->addWidget(clock, 4);
    for (const QLabel* number : {yourScore_, compScore_, tilesLeft_})
        numbers->addWidget(number->parentWidget(), 3);
    auto* column = new QVBoxLayout(side_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::gap);
    column->addLayout(numbers);
    column->addWidget(word);
    column->addWidget(buttons);
    column->addWidget(words, 1);
}

QSize PlayArea::sizeHint() const
{
    const QSize boardSize = board->geometryOfBoard().sizeFor(usualCell * Theme::textScale()).toSize();
    return {boardSize.width() + Theme::scaled(62 * Theme::grid) + 3 * Theme::margin,
            boardSize.height() + Theme::margin + topMargin};
}

QSize PlayArea::minimumSizeHint() const
{
    const QSize boardSize = board->geometryOfBoard().sizeFor(smallestCell).toSize();
    const int height = std::max(boardSize.height(), side_->layout()->minimumHeightForWidth(sideMinimum()));
    return {boardSize.width() + sideMinimum() + 3 * Theme::margin, height + Theme::margin + topMargin};
}

/// The board takes all the height, and the side takes the remaining width, up to what it can use; together they are
/// centred.
void PlayArea::resizeEvent(QResizeEvent* /*event*/)
{
    const int height = this->height() - Theme::margin - topMargin;
    const int width = this->width() - 3 * Theme::margin;
    BoardGeometry shape = board->geometryOfBoard();
    shape.fit(QSizeF(width - sideMinimum(), height), devicePixelRatioF());
    const QSizeF boardSize = shape.size();
    const int boardWidth = static_cast<int>(std::ceil(boardSize.width()));
    const int boardHeight = static_cast<int>(std::ceil(boardSize.height()));
    const int sideWidth = std::min(width - boardWidth, std::max(Theme::scaled(sideMaximum), boardWidth));
    const int left = Theme::margin + (width - boardWidth - sideWidth) / 2;

    board->setGeometry(left, topMargin, boardWidth, boardHeight);
    side_->setGeometry(left + boardWidth + Theme::margin, topMargin, sideWidth, height);
    word->setLetterSize(std::clamp(shape.cell() * 0.55, 24.0 * Theme::textScale(), 44.0 * Theme::textScale()));
    placeCovers();
}

void PlayArea::placeCovers()
{
    side_->layout()->activate();
    boardCover_->setGeometry(board->geometry());
    wordsCover_->setGeometry(words->geometry().translated(side_->pos()));
    waits_->setGeometry(board->geometryOfBoard().strip().toAlignedRect().translated(board->pos()));
    const int height = board->height() / 4;
    end_->setGeometry(board->geometry().adjusted(Theme::margin, height, -Theme::margin, -height));
}

void PlayArea::synchronise()
{
    const GameState& state = flow_.view().state;
    board->synchronise();
    clock->synchronise();
    showNumber(*yourScore_, QString::number(state.yourScore));
    showNumber(*compScore_, QString::number(state.compScore));
    compScore_->parentWidget()->setVisible(state.computerGame); // a solo player needs no second score
    const bool counted = state.letterDraw != LetterDraw::Going || state.tilesLeft >= 0; // nobody understands -2
    showNumber(*tilesLeft_, counted ? toQString(state.tilesLeftText()) : QStringLiteral("0"));
    word->synchronise();
    buttons->synchronise();
    words->synchronise();
    if (!flow_.inGame())
        end_->hide();
    showPause();
}

void PlayArea::showPause()
{
    const bool paused = flow_.isPaused();
    boardCover_->setCaption(toQString(flow_.pauseCaption()));
    if (boardCover_->isHidden() != paused)
        return;
    placeCovers();
    boardCover_->setVisible(paused);
    wordsCover_->setVisible(paused);
    boardCover_->raise();
    wordsCover_->raise();
}

} // namespace lexigrove
