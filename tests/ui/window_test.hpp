#pragma once

#include "dictionary/dictionary.hpp"
#include "flow/study.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "settings/options_form.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/ui/script.hpp"
#include "ui/front_end.hpp"

#include <QHeaderView>
#include <QLabel>
#include <QWindow>

#include <map>
#include <optional>

namespace lexigrove
{

/// The real main window over a game in a folder of its own, and a player with mouse and keys.
class WindowTest : public testing::Test
{
public:
    WindowTest()
    {
        for (const char* name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt"})
            folder.write(name, "ACT\r\nCAT\r\nCATS\r\nDO\r\n");
        for (const std::string name : {"Default.sch", "Night.sch"})
            std::filesystem::copy_file(DATA_FOLDER + name, folder.file(name));
    }

    /// A first start, which says that it writes the configuration.
    void SetUp() override
    {
        game.emplace(folder.path());
        script.box("Configuration file:\n" + folder.file("Lexigrove.cfg") +
                   "\nnot found, default file will be created");
        flow().startUp();
        window().resize(900, 640);
    }

    /// Starts a silent game with these letters, by the tile of the first. All other tiles show "V", of which no word is
    /// made, and the drop row shows BFHKMPTY.
    void start(const std::map<int, std::string>& letters, Arrangement arrangement = Arrangement::Square)
    {
        std::string preset = std::string(64, 'V') + "BDFGHJKLMNPRTWYZ" + std::string(20, 'V');
        for (const auto& [tile, text] : letters)
            preset.replace(static_cast<std::size_t>(tile) - 1, text.size(), text);
        chooseOptions([&](OptionsForm& options) {
            options.select(options.Option16);
            options.select(arrangement == Arrangement::Square ? options.s8x8 : options.s7x8);
            options.settings.presetLetters.choose(preset);
        });
        flow().startGame();
    }

    void chooseOptions(const std::function<void(OptionsForm&)>& choose) { Study(flow()).chooseOptions(choose); }

    /// Lets the animations be seen, with this delay.
    void animate(int delay)
    {
        chooseOptions([=](OptionsForm& options) {
            options.select(options.Option10);
            options.settings.dropDelay = delay;
        });
    }

    // Mouse and keys

    void click(int tile, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(&board(), button, modifiers, board().tileRect(tile).center());
    }
    void hover(int tile) { QTest::mouseMove(&board(), board().tileRect(tile).center()); }
    void drop(int col) { QTest::mouseClick(&board(), Qt::LeftButton, {}, board().dropRect(col).center()); }
    void press(const char* button) { QTest::mouseClick(&child(button), Qt::LeftButton); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        window().activateWindow(); // as the desktop does when a window above has closed
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        QTest::keyClick(&window(), key, modifiers);
    }
    void enter(const char* word)
    {
        QTest::keyClicks(&window(), word);
        key(Qt::Key_Return);
    }

    // What is shown

    template <typename Widget = QWidget>
    [[nodiscard]] Widget& child(const char* name)
    {
        auto* const widget = window().findChild<Widget*>(name);
        if (widget == nullptr)
            throw std::runtime_error(std::string("no such widget: ") + name);
        return *widget;
    }
    [[nodiscard]] std::string shown(const char* label) { return child<QLabel>(label).text().toStdString(); }

    /// A part of a widget as it stands on the screen, and a pixel of it.
    [[nodiscard]] static QImage picture(QWidget& widget, const QRect& part)
    {
        QTest::qWait(25); // for the painting of what has changed
        const QPoint place = widget.mapTo(widget.window(), part.topLeft());
        const WId window = widget.window()->winId();
        return widget.screen()->grabWindow(window, place.x(), place.y(), part.width(), part.height()).toImage();
    }
    [[nodiscard]] static QColor painted(QWidget& widget, const QPoint& place)
    {
        return picture(widget, {place, QSize(1, 1)}).pixelColor(0, 0);
    }
    /// Whether a text stands in the widget in this colour.
    [[nodiscard]] static bool writes(QWidget& widget, Colour colour)
    {
        const QImage text = picture(widget, widget.rect()).convertToFormat(QImage::Format_RGB32);
        const auto* const first = reinterpret_cast<const QRgb*>(text.constBits());
        const auto* const last = first + text.sizeInBytes() / 4;
        return std::find(first, last, toQColor(colour).rgb()) != last;
    }
    /// A pixel of a tile that belongs to its face, whatever its letter, its marks and its links.
    [[nodiscard]] QColor paintedFace(const QRect& tile)
    {
        return painted(board(), tile.topLeft() + QPoint(tile.width() * 36 / 100, tile.height() * 78 / 100));
    }
    [[nodiscard]] QColor paintedFace(int tile) { return paintedFace(board().tileRect(tile)); }
    [[nodiscard]] QColor face() { return toQColor(view().scheme.tileFace(1)); }
    [[nodiscard]] QColor selectedFace() { return toQColor(view().scheme.selectedFace()); }
    [[nodiscard]] const WindowColours& colours() { return game->host.theme.colours(); }

    // What the rules say

    [[nodiscard]] std::string word() { return view().selection.word(); }
    [[nodiscard]] std::string letter(int tile)
    {
        return view().board.isVisible(tile) ? view().board.letter(tile) : ".";
    }
    /// The words made, the newest first unless they were sorted.
    [[nodiscard]] std::string wordsMade()
    {
        std::string words;
        for (int row = 1; row < view().state.WordsMade.Rows(); ++row)
            words += (row > 1 ? " " : "") + view().state.WordsMade.row(row).word;
        return words;
    }

    [[nodiscard]] GameFlow& flow() { return game->flow; }
    [[nodiscard]] const GameView& view() { return flow().view(); }
    [[nodiscard]] const GameSettings& settings() { return view().options.settings; }
    [[nodiscard]] MainWindow& window() { return game->window; }
    [[nodiscard]] BoardView& board() { return window().board(); }

    TemporaryFolder folder;
    std::optional<FrontEnd> game;
    Script script;
};

/// The place of a word's cell in its table view.
inline QRect wordCell(const WordsView& words, int row)
{
    return words.visualRect(words.model()->index(row - 1, WordsGrid::wordColumn));
}

inline void clickHeading(const WordsView& words, int column)
{
    const QHeaderView& headings = *words.horizontalHeader();
    const QPoint place(headings.sectionPosition(column) + headings.sectionSize(column) - 3, 5);
    QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, place);
}

} // namespace lexigrove
