#pragma once

#include "controls/words_grid.hpp"
#include "ui/look/theme.hpp"

#include <QString>
#include <QTableView>

namespace lexigrove
{

class WordsModel;

/// A `WordsGrid` as a table: the headings stand, the rows scroll. It changes nothing itself: it tells what was clicked,
/// and its owner gives that to the grid and calls `synchronise`.
class WordsView : public QTableView
{
    Q_OBJECT

public:
    /// `grid` and `theme` outlive the view. The colour of the headings is one that reads on the card.
    WordsView(const WordsGrid& grid, const Theme& theme, QWidget* parent = nullptr,
              Colour WindowColours::*headings = &WindowColours::cardQuietText);

    /// Shows what the grid says now; scrolls to the current row when that has changed, or else to the top when a row
    /// has come in.
    void synchronise();

    /// A quiet text in the middle of a grid without words.
    void setEmptyText(const QString& text);

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
    void showCurrent();

    const WordsGrid& grid_;
    const Theme& theme_;
    WordsModel* model_;
    QString emptyText_;
    std::uint32_t shownRevision_ = 0;
};

} // namespace lexigrove
