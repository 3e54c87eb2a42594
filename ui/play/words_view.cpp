#include "ui/play/words_view.hpp"

#include "ui/look/text.hpp"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace lexigrove
{

namespace
{

constexpr int textSize = 13;
constexpr int shownRowsWanted = 8;
constexpr int edge = 1;   ///< of the card
constexpr int corner = 4; ///< rows keep off the card's round corners

int gridWidth()
{
    int width = 0;
    for (const WordsGridColumn& column : WordsGrid::columns)
        width += column.width;
    return width;
}

} // namespace

WordsView::WordsView(const WordsGrid& grid, const Theme& theme, QWidget* parent)
    : QAbstractScrollArea(parent), grid_(grid), theme_(theme)
{
    setProperty("card", true);
    setViewportMargins(edge, corner, edge, corner);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    connect(&theme, &Theme::changed, this, [this] { viewport()->update(); });
}

void WordsView::synchronise()
{
    if (grid_.revision() == shownRevision_)
        return;
    shownRevision_ = grid_.revision();
    const bool rowsCame = grid_.Rows() > shownRows_;
    const bool currentMoved = grid_.Row() != shownCurrent_;
    shownRows_ = grid_.Rows();
    shownCurrent_ = grid_.Row();
    updateScrollBar();
    if (currentMoved && !rowsCame)
        showRow(shownCurrent_);
    else if (rowsCame)
        verticalScrollBar()->setValue(0);
    viewport()->update();
}

void WordsView::setEmptyText(const QString& text)
{
    emptyText_ = text;
    viewport()->update();
}

int WordsView::rowHeight() const
{
    const int height = QFontMetrics(Theme::font(textSize, true)).height() + Theme::grid;
    return std::max(height, 3 * Theme::grid);
}

QRect WordsView::rowRect(int row) const
{
    const int height = rowHeight();
    const int top = row == 0 ? 0 : row * height - verticalScrollBar()->value();
    return {0, top, viewport()->width(), height};
}

QRect WordsView::columnRect(int column) const
{
    int left = 0;
    for (int c = 0; c < column; ++c)
        left += WordsGrid::columns[static_cast<std::size_t>(c)].width;
    const int right = left + WordsGrid::columns[static_cast<std::size_t>(column)].width;
    const int width = viewport()->width();
    const int from = left * width / gridWidth();
    return {from, 0, right * width / gridWidth() - from, viewport()->height()};
}

int WordsView::rowAt(const QPoint& place) const
{
    if (!viewport()->rect().contains(place))
        return -1;
    const int height = rowHeight();
    if (place.y() < height)
        return 0;
    const int row = (place.y() + verticalScrollBar()->value()) / height;
    return row < grid_.Rows() ? row : -1;
}

QSize WordsView::sizeHint() const
{
    return {40 * Theme::grid, shownRowsWanted * rowHeight()};
}

QSize WordsView::minimumSizeHint() const
{
    return {24 * Theme::grid, 3 * rowHeight()};
}

void WordsView::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(viewport());
    const QRect whole = viewport()->rect();
    painter.fillRect(whole, toQColor(colours.card));

    const QRect heading = rowRect(0);
    painter.setClipRect(whole.adjusted(0, heading.bottom() + 1, 0, 0));
    for (int row = 1; row < grid_.Rows(); ++row) {
        const QRect place = rowRect(row);
        if (place.bottom() > heading.bottom() && place.top() < whole.bottom())
            paintRow(painter, row);
    }
    if (grid_.Rows() == 1 && !emptyText_.isEmpty()) {
        painter.setFont(Theme::font(textSize));
        painter.setPen(toQColor(colours.cardQuietText));
        const QRect room = whole.adjusted(Theme::gap, heading.bottom() + Theme::gap, -Theme::gap, -Theme::gap);
        painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
    }

    painter.setClipping(false);
    paintRow(painter, 0);
    painter.fillRect(QRect(0, heading.bottom(), whole.width(), 1), toQColor(colours.line));
}

void WordsView::paintRow(QPainter& painter, int row) const
{
    const WindowColours& colours = theme_.colours();
    const QRect place = rowRect(row);
    const bool current = row > 0 && row == grid_.Row();
    for (int column = 0; column < WordsGrid::columnCount; ++column) {
        const bool word = column == WordsGrid::wordColumn;
        const bool own = row == 0 || !word || grid_.row(row).maker == Maker::Player;
        const Colour ground = own ? (current ? colours.cardSelection : colours.card) : colours.computerBack;
        // Headings are the computer's fore colour, which is made for its own ground: on the card it is the computer's
        // colour as a text.
        const Colour text = row == 0 ? colours.computerText
                            : own    ? (current ? colours.cardSelectionText : colours.cardText)
                                     : colours.computerFore;

        const QRect cellPlace = columnRect(column).intersected(place);
        painter.fillRect(cellPlace, toQColor(ground));
        painter.setFont(Theme::font(row == 0 ? Theme::quietTextSize : textSize, row == 0 || word));
        painter.setPen(toQColor(text));
        const bool left = WordsGrid::columns[static_cast<std::size_t>(column)].alignment == CellAlignment::Left;
        painter.drawText(cellPlace.adjusted(left ? Theme::grid : 0, 0, 0, 0),
                         Qt::AlignVCenter | static_cast<int>(left ? Qt::AlignLeft : Qt::AlignHCenter),
                         toQString(grid_.text(row, column)));
    }
    if (current)
        painter.fillRect(QRect(place.left(), place.top(), 3, place.height()), toQColor(colours.accent));
}

void WordsView::updateScrollBar()
{
    const int room = viewport()->height();
    QScrollBar* bar = verticalScrollBar();
    bar->setRange(0, std::max(0, grid_.Rows() * rowHeight() - room));
    bar->setPageStep(std::max(1, room - rowHeight()));
    bar->setSingleStep(rowHeight());
}

void WordsView::showRow(int row)
{
    if (row < 1)
        return;
    const int height = rowHeight();
    QScrollBar* bar = verticalScrollBar();
    const int highest = (row - 1) * height; // the row then stands right below the headings
    const int lowest = (row + 1) * height - viewport()->height();
    bar->setValue(std::clamp(bar->value(), std::min(lowest, highest), highest));
}

void WordsView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBar();
}

void WordsView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int row = rowAt(event->pos());
    if (row == 0)
        emit headingClicked(event->pos().x() * gridWidth() / std::max(1, viewport()->width()));
    else if (row > 0)
        emit rowPicked(row);
}

void WordsView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int row = rowAt(event->pos());
    if (row > 0 && event->button() == Qt::LeftButton)
        emit rowActivated(row);
    else
        mousePressEvent(event); // quick clicks on the headings sort each time
}

void WordsView::keyPressEvent(QKeyEvent* event)
{
    const int row = grid_.Row();
    const int last = grid_.Rows() - 1;
    const int page = std::max(1, viewport()->height() / rowHeight() - 2);
    const auto pick = [&](int wanted) {
        if (last >= 1)
            emit rowPicked(std::clamp(wanted, 1, last));
    };
    switch (event->key()) {
    case Qt::Key_Up:
        return pick(row - 1);
    case Qt::Key_Down:
        return pick(row + 1);
    case Qt::Key_PageUp:
        return pick(row - page);
    case Qt::Key_PageDown:
        return pick(row + page);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (row >= 1 && activatesOnEnter)
            emit rowActivated(row);
        else
            event->ignore();
        return;
    default:
        event->ignore(); // the arrow keys of the scroll area would move the rows and not the mark
    }
}

} // namespace lexigrove
