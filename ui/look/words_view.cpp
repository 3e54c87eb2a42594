#include "ui/look/words_view.hpp"

#include "ui/look/text.hpp"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace lexigrove
{

namespace
{

constexpr int cellTextSize = 13;
const char* const spokenHeadings[WordsGrid::columnCount] = {"Number", "Score", "Length", "Word"};

int heightOfRow()
{
    return Theme::scaled(3 * Theme::grid);
}

/// Where a column begins, in the grid's units; that of the column after the last one is the grid's width.
int leftOf(int column)
{
    int left = 0;
    for (int c = 0; c < column; ++c)
        left += WordsGrid::columns[static_cast<std::size_t>(c)].width;
    return left;
}

int alignmentOf(int column)
{
    const bool left = WordsGrid::columns[static_cast<std::size_t>(column)].alignment == CellAlignment::Left;
    return static_cast<int>(Qt::AlignVCenter | (left ? Qt::AlignLeft : Qt::AlignHCenter));
}

/// Paints the cells: the current row and the computer's words stand out, whatever has the focus.
class CellPainter : public QStyledItemDelegate
{
public:
    CellPainter(const WordsGrid& grid, const Theme& theme, QObject* parent)
        : QStyledItemDelegate(parent), grid_(grid), theme_(theme)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int row = index.row() + 1;
        if (row >= grid_.Rows()) // the grid was emptied, and the view is yet to hear of it
            return;
        const WindowColours& colours = theme_.colours();
        const bool current = row == grid_.Row();
        const bool word = index.column() == WordsGrid::wordColumn;
        const bool computers = word && grid_.row(row).maker == Maker::Computer;
        const QRect& cell = option.rect;
        painter->fillRect(cell, toQColor(computers ? colours.computerBack
                                         : current ? colours.cardSelection
                                                   : colours.card));
        painter->setPen(toQColor(computers ? colours.computerFore
                                 : current ? colours.cardSelectionText
                                           : colours.cardText));
        painter->setFont(Theme::font(cellTextSize, word));
        painter->drawText(cell.adjusted(word ? Theme::grid : 0, 0, 0, 0), alignmentOf(index.column()),
                          index.data().toString());
        if (current && index.column() == 0)
            painter->fillRect(QRect(cell.left(), cell.top(), 3, cell.height()), toQColor(colours.accent));
    }

private:
    const WordsGrid& grid_;
    const Theme& theme_;
};

/// Headings that tell of every press, also of one on the edge of a section and of the second one of a double click. The
/// sort mark stands beside the text, where there is room for it.
class Headings : public QHeaderView
{
public:
    explicit Headings(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) { setSortIndicator(-1, {}); }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton)
            emit sectionPressed(logicalIndexAt(event->pos()));
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

    void paintSection(QPainter* painter, const QRect& place, int column) const override
    {
        painter->save();
        QHeaderView::paintSection(painter, place, column);
        painter->restore();
        if (column != sortIndicatorSection())
            return;
        const int width = fontMetrics().horizontalAdvance(model()->headerData(column, Qt::Horizontal).toString());
        const bool left = (alignmentOf(column) & Qt::AlignLeft) != 0;
        const int end = left ? place.left() + Theme::grid + width : place.center().x() + width / 2;
        QStyleOptionHeader mark;
        initStyleOption(&mark);
        mark.rect = QRect(end + 2, place.center().y() - 4, 10, 10);
        mark.sortIndicator =
            sortIndicatorOrder() == Qt::AscendingOrder ? QStyleOptionHeader::SortDown : QStyleOptionHeader::SortUp;
        style()->drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &mark, painter, this);
    }
};

} // namespace

/// The grid's rows, without the headings, as a table of texts.
class WordsModel : public QAbstractTableModel
{
public:
    WordsModel(const WordsGrid& grid, const Theme& theme, Colour WindowColours::*headings, QObject* parent)
        : QAbstractTableModel(parent), grid_(grid), theme_(theme), headings_(headings)
    {
    }

    void refresh()
    {
        if (rows_ == grid_.Rows() - 1 && rows_ > 0) {
            emit dataChanged(index(0, 0), index(rows_ - 1, WordsGrid::wordColumn));
            return;
        }
        beginResetModel();
        rows_ = grid_.Rows() - 1;
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }

    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return WordsGrid::columnCount; }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole || index.row() + 1 >= grid_.Rows())
            return {};
        return toQString(grid_.text(index.row() + 1, index.column()));
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Vertical)
            return {};
        switch (role) {
        case Qt::DisplayRole:
            return toQString(grid_.text(0, section));
        case Qt::AccessibleTextRole:
            return QObject::tr(spokenHeadings[section]);
        case Qt::ToolTipRole:
            return QObject::tr("%1: click or press Ctrl+%2 to sort").arg(spokenHeadings[section]).arg(section + 1);
        case Qt::TextAlignmentRole:
            return alignmentOf(section);
        case Qt::ForegroundRole:
            return toQColor(theme_.colours().*headings_);
        default:
            return {};
        }
    }

private:
    const WordsGrid& grid_;
    const Theme& theme_;
    Colour WindowColours::*headings_;
    int rows_ = 0; ///< as the view knows them
};

WordsView::WordsView(const WordsGrid& grid, const Theme& theme, QWidget* parent, Colour WindowColours::*headings)
    : QTableView(parent), grid_(grid), theme_(theme), model_(new WordsModel(grid, theme, headings, this))
{
    setModel(model_);
    setItemDelegate(new CellPainter(grid, theme, this));
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::StrongFocus);
    setShowGrid(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMinimumSize(24 * Theme::grid, 2 * heightOfRow()); // the headings and a row
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(heightOfRow());

    auto* const headingBar = new Headings(this);
    headingBar->setFont(Theme::font(Theme::quietTextSize, true));
    headingBar->setFixedHeight(heightOfRow());
    headingBar->setMinimumSectionSize(1);
    headingBar->setStretchLastSection(true);
    setHorizontalHeader(headingBar);

    connect(headingBar, &QHeaderView::sectionPressed, this,
            [this](int column) { emit headingClicked(leftOf(column)); });
    connect(this, &QTableView::pressed, this, [this](const QModelIndex& cell) { emit rowPicked(cell.row() + 1); });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& cell) { emit rowActivated(cell.row() + 1); });
}

void WordsView::synchronise()
{
    if (grid_.revision() == shownRevision_)
        return;
    shownRevision_ = grid_.revision();
    horizontalHeader()->setSortIndicator(grid_.sortedColumn(),
                                         grid_.Tag == "A" ? Qt::AscendingOrder : Qt::DescendingOrder);
    const bool rowsCame = grid_.Rows() - 1 > model_->rowCount();
    model_->refresh();
    showCurrent(); // and scrolls there
    if (rowsCame)
        scrollToTop();
}

void WordsView::setEmptyText(const QString& text)
{
    emptyText_ = text;
    viewport()->update();
}

void WordsView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (grid_.Rows() > 1)
        return;
    QPainter painter(viewport());
    painter.setPen(toQColor(theme_.colours().cardQuietText));
    painter.drawText(viewport()->rect().adjusted(Theme::gap, Theme::gap, -Theme::gap, -Theme::gap),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
}

void WordsView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    const auto place = [this](int column) {
        return leftOf(column) * viewport()->width() / leftOf(WordsGrid::columnCount);
    };
    for (int column = 0; column < WordsGrid::wordColumn; ++column) // the last one takes what is left
        setColumnWidth(column, place(column + 1) - place(column));
}

void WordsView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QTableView::mousePressEvent(event);
}

void WordsView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        QTableView::mouseDoubleClickEvent(event);
}

void WordsView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        showCurrent(); // the focus brings a current cell of its own
        QTableView::keyPressEvent(event);
        if (currentIndex().isValid())
            emit rowPicked(currentIndex().row() + 1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (activatesOnEnter && grid_.Row() > 0)
            emit rowActivated(grid_.Row());
        else
            event->ignore();
        return;
    default:
        const int column = event->key() - Qt::Key_1;
        if (event->modifiers() == Qt::ControlModifier && column >= 0 && column < WordsGrid::columnCount)
            emit headingClicked(leftOf(column));
        else
            event->ignore(); // letters are for the board
    }
}

void WordsView::showCurrent()
{
    setCurrentIndex(model_->index(grid_.Row() - 1, WordsGrid::wordColumn));
}

} // namespace lexigrove
