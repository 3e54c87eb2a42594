#pragma once

#include "controls/words_grid.hpp"
#include "ui/look/theme.hpp"

#include <QAbstractScrollArea>
#include <QString>

namespace lexigrove
{

/// A `WordsGrid` as a table in a card: the headings stand, the rows scroll. It changes nothing itself: it tells what
/// was clicked, and its owner gives that to the model and calls `synchronise`.
class WordsView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// `grid` and `theme` outlive the view.
    WordsView(const WordsGrid& grid, const Theme& theme, QWidget* parent = nullptr);

    /// Shows what the grid says now; scrolls to the current row when that has changed, or else to the top when a row
    /// has come in.
    void synchronise();

    /// A quiet text in the middle of a grid without words.
    void setEmptyText(const QString& text);

    /// Where a row is shown, in the viewport's coordinates; row 0 is the headings.
    [[nodiscard]] QRect rowRect(int row) const;
    /// Where a column is shown, 0 to 3: its left edge and width in the viewport.
    [[nodiscard]] QRect columnRect(int column) const;
    /// The row at a place of the viewport, 0 for the headings, -1 beside all rows.
    [[nodiscard]] int rowAt(const QPoint& place) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Whether Enter on a row activates it; otherwise the key goes on to the window.
    bool activatesOnEnter = true;

signals:
    /// The headings were clicked at a horizontal position in the grid's units.
    void headingClicked(int x);
    /// A row, 1 to Rows - 1, was picked with the mouse or the arrow keys.
    void rowPicked(int row);
    /// A row was double-clicked, or Enter was pressed on it.
    void rowActivated(int row);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int rowHeight() const;
    void paintRow(QPainter& painter, int row) const;
    void updateScrollBar();
    void showRow(int row);

    const WordsGrid& grid_;
    const Theme& theme_;
    QString emptyText_;
    std::uint32_t shownRevision_ = 0;
    int shownRows_ = 1;
    int shownCurrent_ = 0;
};

} // namespace lexigrove
