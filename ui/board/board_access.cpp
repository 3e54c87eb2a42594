#include "ui/board/board_access.hpp"

#include "game/selection.hpp"
#include "ui/board/board_view.hpp"
#include "ui/look/text.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

#include <memory>
#include <vector>

namespace lexigrove
{

namespace
{

class BoardTable;

/// A cell of the board. The toolkit owns it from the moment it is registered.
class BoardCell : public QAccessibleInterface, public QAccessibleTableCellInterface, public QAccessibleActionInterface
{
public:
    BoardCell(BoardTable& table, int number) : table_(table), spot_(BoardAccess::spotOf(number)), number_(number) {}

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override;
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface*>(this);
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    // A cell of a table
    [[nodiscard]] bool isSelected() const override;
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] int columnIndex() const override { return number_ % Board::columns; }
    [[nodiscard]] int rowIndex() const override { return number_ / Board::columns; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

    // What can be done with it
    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    BoardTable& table_;
    const BoardSpot spot_;
    const int number_;
};

class BoardTable : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit BoardTable(BoardView& view)
        : QAccessibleWidget(&view, QAccessible::Table, view.accessibleName()), view_(view)
    {
        for (int cell = 0; cell < BoardAccess::cells; ++cell)
            ids_.push_back(QAccessible::registerAccessibleInterface(new BoardCell(*this, cell)));
    }
    ~BoardTable() override
    {
        for (const QAccessible::Id id : ids_)
            QAccessible::deleteAccessibleInterface(id);
    }

    [[nodiscard]] BoardView& view() const { return view_; }
    [[nodiscard]] int childCount() const override { return BoardAccess::cells; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        const auto number = static_cast<std::size_t>(index);
        return number < ids_.size() ? QAccessible::accessibleInterface(ids_[number]) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (int index = 0; index < childCount(); ++index) {
            if (this->child(index) == child)
                return index;
        }
        return -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const BoardSpot spot = view_.spotAt(view_.mapFromGlobal(QPoint(x, y)));
        return spot == BoardSpot{} ? nullptr : child(BoardAccess::cellOf(spot));
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        const BoardSpot cursor = view_.cursor();
        return cursor == BoardSpot{} ? QAccessibleWidget::focusChild() : child(BoardAccess::cellOf(cursor));
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    // The table
    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override
    {
        return child(row * Board::columns + column);
    }
    [[nodiscard]] int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> cells;
        for (const int tile : view_.flow().view().selection.tiles())
            cells.append(child(BoardAccess::cellOf({tile, 0})));
        return cells;
    }
    [[nodiscard]] QString columnDescription(int column) const override { return QString::number(column + 1); }
    [[nodiscard]] QString rowDescription(int row) const override
    {
        return row == 0 ? BoardView::tr("waiting") : QString::number(row);
    }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override { return 0; }
    [[nodiscard]] int columnCount() const override { return Board::columns; }
    [[nodiscard]] int rowCount() const override { return BoardAccess::rows; }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override { return {}; }
    [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
    [[nodiscard]] bool isRowSelected(int /*row*/) const override { return false; }
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

private:
    BoardView& view_;
    std::vector<QAccessible::Id> ids_;
};

bool BoardCell::isValid() const
{
    return table_.isValid();
}

QWindow* BoardCell::window() const
{
    return table_.window();
}

QAccessibleInterface* BoardCell::parent() const
{
    return &table_;
}

bool BoardCell::isSelected() const
{
    return spot_.tile != 0 && table_.view().flow().view().selection.contains(spot_.tile);
}

QAccessible::State BoardCell::state() const
{
    QAccessible::State state = table_.state();
    state.focusable = true;
    state.focused = table_.view().cursor() == spot_;
    state.selectable = spot_.tile != 0;
    state.selected = isSelected();
    state.invisible = state.invisible || text(QAccessible::Name).isEmpty();
    return state;
}

QString BoardCell::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? BoardAccess::nameOf(table_.view().flow(), spot_) : QString();
}

QRect BoardCell::rect() const
{
    const QRect place = table_.view().cellRect(spot_);
    return {table_.view().mapToGlobal(place.topLeft()), place.size()};
}

void BoardCell::doAction(const QString& action)
{
    if (action == setFocusAction()) {
        table_.view().setFocus();
        table_.view().moveCursor(spot_);
    } else if (action == pressAction()) {
        table_.view().press(spot_, MouseButton::Left, false);
    }
}

QAccessibleInterface* boardInterface(const QString& /*className*/, QObject* object)
{
    auto* const view = qobject_cast<BoardView*>(object);
    return view != nullptr ? new BoardTable(*view) : nullptr;
}

} // namespace

void BoardAccess::install()
{
    QAccessible::installFactory(boardInterface);
}

BoardSpot BoardAccess::spotOf(int cell)
{
    const int row = cell / Board::columns;
    const int col = cell % Board::columns + 1;
    return row == 0 ? BoardSpot{0, col} : BoardSpot{Board::Grid(row, col), 0};
}

int BoardAccess::cellOf(const BoardSpot& spot)
{
    return spot.tile == 0 ? spot.col - 1 : Board::row(spot.tile) * Board::columns + Board::col(spot.tile) - 1;
}

QString BoardAccess::nameOf(const GameFlow& flow, const BoardSpot& spot)
{
    const Board& board = flow.view().board;
    if (!flow.inGame())
        return {};
    if (spot.tile == 0) {
        const BoxControl& waiting = board.waiting(spot.col);
        return BoardView::tr("waiting, column %1, %2")
            .arg(spot.col)
            .arg(waiting.Visible() ? toQString(waiting.Caption()) : BoardView::tr("empty"));
    }
    if (!board.isInPlay(spot.tile))
        return {};
    if (flow.isPaused()) // as the cover has it
        return BoardView::tr("covered, row %1, column %2").arg(Board::row(spot.tile)).arg(Board::col(spot.tile));
    QString name = BoardView::tr("%1, row %2, column %3")
                       .arg(board.isVisible(spot.tile) ? toQString(board.letter(spot.tile)) : BoardView::tr("empty"))
                       .arg(Board::row(spot.tile))
                       .arg(Board::col(spot.tile));
    if (!board.isVisible(spot.tile))
        return name;
    const Colour mark = board.maskcolor(spot.tile);
    const char* const bonuses[] = {"double word", "triple word", "quadruple word"};
    if (multiplier::isBonus(mark))
        name += ", " + BoardView::tr(bonuses[mark - multiplier::doubled]);
    else if (mark == multiplier::red)
        name += ", " + BoardView::tr("red, pushes left: %1").arg(board.pushesLeft(spot.tile));
    if (flow.view().selection.contains(spot.tile))
        name += ", " + BoardView::tr("selected");
    return name;
}

void BoardAccess::synchronise()
{
    if (!QAccessible::isActive())
        return;
    for (int cell = 0; cell < cells; ++cell) {
        QString name = nameOf(flow_, spotOf(cell));
        QString& known = names_[static_cast<std::size_t>(cell)];
        if (name == known)
            continue;
        known = std::move(name);
        QAccessibleEvent event(&view_, QAccessible::NameChanged);
        event.setChild(cell);
        QAccessible::updateAccessibility(&event);
    }
}

void BoardAccess::reportFocus(const BoardSpot& spot)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&view_, QAccessible::Focus);
    event.setChild(cellOf(spot));
    QAccessible::updateAccessibility(&event);
}

} // namespace lexigrove
