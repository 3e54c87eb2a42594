#pragma once

#include "flow/game_flow.hpp"
#include "ui/board/board_view.hpp"
#include "ui/look/words_view.hpp"
#include "ui/play/banner.hpp"
#include "ui/play/button_panel.hpp"
#include "ui/play/clock_view.hpp"
#include "ui/play/pause_cover.hpp"
#include "ui/play/word_box.hpp"

#include <QWidget>

class QLabel;

namespace lexigrove
{

/// Board and drop row on the left, as large as fits; on the right the clock and the numbers, the word being built, the
/// buttons, the words made. The pause covers lie over board and words.
class PlayArea : public QWidget
{
    Q_OBJECT

public:
    PlayArea(GameFlow& flow, Host& host, QWidget* parent);

    void synchronise();

    BoardView* board;
    ClockFrame* clock;
    WordBox* word;
    ButtonPanel* buttons;
    WordsView* words;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildSide();
    void placeCovers();
    void showPause();

    GameFlow& flow_;
    QWidget* side_;
    QLabel* yourScore_;
    QLabel* compScore_;
    QLabel* tilesLeft_;
    Banner* waits_; ///< over the drop row: any key goes on
    Banner* end_;   ///< over the board: why the game is over
    PauseCover* boardCover_;
    PauseCover* wordsCover_;
};

} // namespace lexigrove
