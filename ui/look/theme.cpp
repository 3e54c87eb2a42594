#include "ui/look/theme.hpp"

#include "settings/readable_colours.hpp"

#include <QApplication>
#include <QFontInfo>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace lexigrove
{

namespace
{

Colour fromQColor(const QColor& colour)
{
    return rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
               static_cast<unsigned>(colour.blue()));
}

/// A palette by system colour number.
SystemPalette systemColoursOf(const QPalette& palette)
{
    SystemPalette result;
    const auto set = [&](std::size_t index, QPalette::ColorRole role) {
        result.entries[index] = fromQColor(palette.color(QPalette::Active, role));
    };
    set(0, QPalette::Window);
    set(1, QPalette::Window);
    set(2, QPalette::Highlight);
    set(4, QPalette::Window);
    set(5, QPalette::Base);
    set(6, QPalette::Shadow);
    set(7, QPalette::WindowText);
    set(8, QPalette::Text);
    set(9, QPalette::HighlightedText);
    set(10, QPalette::Mid);
    set(11, QPalette::Mid);
    set(12, QPalette::Mid);
    set(13, QPalette::Highlight);
    set(14, QPalette::HighlightedText);
    set(15, QPalette::Button);
    set(16, QPalette::Mid);
    set(18, QPalette::ButtonText);
    set(20, QPalette::Light);
    set(21, QPalette::Dark);
    set(22, QPalette::Midlight);
    set(23, QPalette::ToolTipText);
    set(24, QPalette::ToolTipBase);
    result.entries[17] = fromQColor(palette.color(QPalette::Disabled, QPalette::Text));
    return result;
}

QPalette palette(const WindowColours& colours)
{
    QPalette result;
    const auto set = [&](QPalette::ColorRole role, Colour colour) { result.setColor(role, toQColor(colour)); };
    set(QPalette::Window, colours.background);
    set(QPalette::WindowText, colours.text);
    set(QPalette::Base, colours.card);
    set(QPalette::AlternateBase, mixed(colours.card, colours.cardSelection, 0.5));
    set(QPalette::Text, colours.cardText);
    set(QPalette::PlaceholderText, colours.cardQuietText);
    set(QPalette::Button, colours.button);
    set(QPalette::ButtonText, colours.buttonText);
    set(QPalette::BrightText, colours.accentText);
    set(QPalette::Highlight, colours.accent);
    set(QPalette::HighlightedText, colours.accentText);
    set(QPalette::Link, colours.accent);
    set(QPalette::LinkVisited, colours.accent);
    set(QPalette::ToolTipBase, colours.card);
    set(QPalette::ToolTipText, colours.cardText);
    for (const auto edge : {QPalette::Light, QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow})
        set(edge, colours.line);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        result.setColor(QPalette::Disabled, role, toQColor(colours.buttonDisabledText));
    return result;
}

QString styleSheet(const WindowColours& colours)
{
    QString sheet = QStringLiteral(R"(
QPushButton { background: @button; color: @buttonText; border: 1px solid @line; border-radius: 6px;
    padding: 7px 8px; }
QPushButton:hover { background: @buttonHover; }
QPushButton:pressed { background: @buttonPressed; }
QPushButton:focus { border: 2px solid @text; padding: 6px 7px; }
QPushButton:disabled { color: @disabled; }
QPushButton[link="true"] { background: transparent; border: none; padding: 1px 0; text-align: left; color: @text; }
QPushButton[link="true"]:hover, QPushButton[link="true"]:focus { text-decoration: underline; }
QPushButton[primary="true"] { background: @accent; color: @accentText; border-color: @accent; font-weight: bold; }
QPushButton[primary="true"]:hover { background: @accentHover; }
QPushButton[primary="true"]:pressed { background: @accentPressed; }
QPushButton[primary="true"]:focus { border: 6px double @accentText; padding: 2px 3px; }
QPushButton[link="true"]:focus { border: 2px solid @text; padding: 0; }
QPushButton[primary="true"]:disabled { background: @strip; color: @disabled; border-color: @line; }
QDialogButtonBox QPushButton { min-width: 64px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMenuBar { background: @background; color: @text; border-bottom: 1px solid @line; padding: 2px 8px; }
QMenuBar::item { background: transparent; padding: 5px 10px; border-radius: 4px; }
QMenuBar::item:selected { background: @selection; color: @selectionText; }
QMenu { background: @card; color: @cardText; border: 1px solid @line; padding: 4px; }
QMenu::item { padding: 6px 24px 6px 20px; border-radius: 4px; }
QMenu::item:selected { background: @accent; color: @accentText; }
QMenu::item:disabled { color: @cardDisabled; background: transparent; }
QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }
QToolTip { background: @card; color: @cardText; border: 1px solid @line; padding: 4px; }
QFrame[card="true"] { background: @card; color: @cardText; border: 1px solid @line; border-radius: 6px; }
QLabel[quiet="true"] { color: @quietText; }
QLabel[quiet="true"]:disabled { color: @disabled; }
QLabel#CompScore { color: @computerText; }
QLineEdit, QListView, QListWidget, QPlainTextEdit { background: @card; color: @cardText; border: 1px solid @line;
    border-radius: 4px; padding: 3px; selection-background-color: @accent; selection-color: @accentText; }
QLineEdit:focus, QListView:focus, QListWidget:focus { border: 2px solid @cardText; padding: 2px; }
QLineEdit:disabled { color: @disabled; background: @background; }
QTableView, QTreeView { background: @card; border: 1px solid @line; border-radius: 6px; padding: 4px 1px; }
QTableView:focus, QTreeView:focus { border: 2px solid @cardText; padding: 3px 0; }
QHeaderView { background: @card; border: none; }
QHeaderView::section { background: @card; border: none; border-bottom: 1px solid @line; padding: 0 7px; }
QHeaderView::section:vertical { border: none; }
QTableCornerButton::section { background: @card; border: none; border-bottom: 1px solid @line; }
QTreeView { selection-background-color: @accent; selection-color: @accentText; }
QTreeView QHeaderView::section { color: @cardQuietText; padding: 4px 7px; }
QFileDialog { min-width: 640px; min-height: 420px; }
QFileDialog QToolButton { border: none; border-radius: 4px; padding: 3px; }
QFileDialog QToolButton:hover, QFileDialog QToolButton:checked { background: @selection; }
QGroupBox { border: 1px solid @line; border-radius: 6px; margin-top: @titleRoom; padding: 4px 6px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; padding: 0 1px 4px 1px; color: @quietText; }
QGroupBox::title:disabled { color: @disabled; }
QRadioButton, QCheckBox { spacing: 7px; border: 2px solid transparent; border-radius: 4px; }
QRadioButton::indicator, QCheckBox::indicator { width: @indicator; height: @indicator; border: 1px solid @quietText; background: @card; }
QRadioButton::indicator { border-radius: @round; }
QCheckBox::indicator { border-radius: 4px; }
QRadioButton::indicator:hover, QCheckBox::indicator:hover { border-color: @accent; }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
    stop: 0 @accent, stop: 0.5 @accent, stop: 0.6 @card, stop: 1 @card); }
QCheckBox::indicator:checked { background: @accent; background-clip: content; padding: 2px; width: @mark; height: @mark;
    border-radius: 3px; }
QRadioButton::indicator:disabled, QCheckBox::indicator:disabled { border-color: @line; }
QRadioButton::indicator:checked:disabled { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
    stop: 0 @disabled, stop: 0.5 @disabled, stop: 0.6 @card, stop: 1 @card); }
QRadioButton:focus, QCheckBox:focus { border-color: @text; }
QComboBox { combobox-popup: 0; color: @cardText; border: 1px solid @line; border-radius: 4px; padding: 5px 8px;
    background: palette(base); }
QComboBox:focus, QComboBox:on { border: 2px solid @cardText; padding: 4px 7px; }
QComboBox QAbstractItemView { background: @card; color: @cardText; border: 1px solid @line; padding: 4px;
    selection-background-color: @accent; selection-color: @accentText; outline: none; }
QComboBox QAbstractItemView::item { min-height: @item; }
QComboBox QAbstractItemView::item:selected { background: @accent; color: @accentText; border-radius: 4px; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 1px; }
QScrollBar::handle:vertical { background: @line; border-radius: 4px; min-height: 24px; }
QScrollBar::handle:vertical:hover { background: @quietText; }
QScrollBar:horizontal { background: transparent; height: 10px; margin: 1px; }
QScrollBar::handle:horizontal { background: @line; border-radius: 4px; min-width: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)");
    const std::array<std::pair<const char*, Colour>, 21> colourNames{{
        {"@buttonText", colours.buttonText}, // a name must come before its own prefixes
        {"@buttonHover", colours.buttonHover},
        {"@buttonPressed", mixed(colours.button, colours.buttonText, 0.15)},
        {"@button", colours.button},
        {"@accentText", colours.accentText},
        {"@accentHover", lifted(colours.accent, colours.accentText)},
        {"@accentPressed", mixed(colours.accent, rgb(0, 0, 0), 0.15)},
        {"@accent", colours.accent},
        {"@disabled", mixed(colours.text, colours.background, 0.55)},
        {"@cardDisabled", mixed(colours.cardText, colours.card, 0.55)},
        {"@cardText", colours.cardText},
        {"@cardQuietText", colours.cardQuietText},
        {"@card", colours.card},
        {"@selectionText", colours.cardSelectionText},
        {"@selection", colours.cardSelection},
        {"@quietText", colours.quietText},
        {"@strip", colours.strip},
        {"@line", colours.line},
        {"@text", colours.text},
        {"@computerText", colours.computerText},
        {"@background", colours.background},
    }};
    const int indicator = Theme::scaled(14);
    const std::array<std::pair<const char*, int>, 5> measures{{
        {"@titleRoom", Theme::scaled(20)},
        {"@indicator", indicator},
        {"@round", indicator / 2 + 1}, // with its border; a larger radius would leave it square
        {"@mark", indicator - 4},
        {"@item", Theme::scaled(26)},
    }};
    for (const auto& [name, measure] : measures)
        sheet.replace(QLatin1String(name), QString::number(measure) + "px");
    for (const auto& [name, colour] : colourNames)
        sheet.replace(QLatin1String(name), toQColor(colour).name());
    return sheet;
}

} // namespace

QColor toQColor(Colour colour)
{
    return {static_cast<int>(redOf(colour)), static_cast<int>(greenOf(colour)), static_cast<int>(blueOf(colour))};
}

Theme::Theme() : desktop_(systemColoursOf(QApplication::palette()))
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) // pictures: a drawing would load a library at every start
        icon.addFile(QString(":/icon/%1.png").arg(size));
    QApplication::setWindowIcon(icon);
}

void Theme::apply(const ColourScheme& scheme)
{
    if (scheme_ == &scheme && shown_ == scheme.entries())
        return;
    scheme_ = &scheme;
    shown_ = scheme.entries();
    colours_ = deriveWindowColours(scheme);
    const QPalette shown = palette(colours_);
    systemColours_ = systemColoursOf(shown);
    QApplication::setPalette(shown);
    qApp->setStyleSheet(styleSheet(colours_));
    emit changed();
}

QColor Theme::colour(Colour colour) const
{
    return toQColor(systemColours_.resolve(colour));
}

double Theme::textScale()
{
    constexpr double tenPoints = 10 * 96 / 72.0;
    const double scale = QFontInfo(QApplication::font()).pixelSize() / tenPoints;
    return scale < 1.1 ? 1 : scale;
}

bool Theme::showsAnimations()
{
    static const bool filesAgree = [] {
        const std::pair<const char*, const char*> choices[] = {
            {"kdeglobals", "KDE/AnimationDurationFactor"}, {"gtk-3.0/settings.ini", "Settings/gtk-enable-animations"}};
        return std::all_of(std::begin(choices), std::end(choices), [](const auto& choice) {
            const QString file = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, choice.first);
            const QString value = QSettings(file, QSettings::IniFormat).value(choice.second, "1").toString();
            return file.isEmpty() || !(value == "0" || value.toLower() == "false");
        });
    }();
    return filesAgree && QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

QFont Theme::font(double pixelSize, bool bold)
{
    return fontOfSize(pixelSize * textScale(), bold);
}

int Theme::scaled(int measure)
{
    return static_cast<int>(std::lround(measure * textScale()));
}

QFont Theme::fontOfSize(double pixelSize, bool bold)
{
    QFont font = QApplication::font();
    font.setPixelSize(std::max(smallestText, static_cast<int>(std::lround(pixelSize))));
    font.setBold(bold);
    return font;
}

void Theme::paintCard(QPainter& painter, const QRectF& place, Colour face, Colour line, double lineWidth)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(toQColor(face));
    painter.setPen(QPen(toQColor(line), lineWidth));
    const double half = lineWidth / 2;
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), radius, radius);
    painter.restore();
}

} // namespace lexigrove
