#include "ui/play/button_panel.hpp"

#include "game/game_state.hpp"
#include "settings/sound_cues.hpp"
#include "ui/look/text.hpp"
#include "ui/look/theme.hpp"
#include "ui/play/commands.hpp"

#include <QPushButton>

#include <algorithm>

namespace lexigrove
{

ButtonPanel::ButtonPanel(GameFlow& flow, QWidget* parent) : QWidget(parent), flow_(flow)
{
    setObjectName("Frame3");
    for (const PanelButton& description : panelButtons()) {
        auto* button = new QPushButton(description.text, this);
        button->setObjectName(description.name);
        button->setToolTip(description.toolTip);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard for typing words
        connect(button, &QPushButton::clicked, this, [this, command = description.command] { flow_.perform(command); });
        placed_.push_back({button, description.row, description.width});
        buttons_[description.command] = button;
    }
    QPushButton& enterWord = *buttons_.at(Command::EnterWord);
    enterWord.setProperty("primary", true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ButtonPanel::Rows ButtonPanel::rowsFor(int width) const
{
    Rows rows;
    int rowNumber = -1;
    int used = 0;
    for (const Placed& placed : placed_) {
        const int needed = placed.button->minimumSizeHint().width();
        if (rows.empty() || placed.row != rowNumber || used + needed > width) {
            rows.emplace_back();
            rowNumber = placed.row;
            used = 0;
        }
        rows.back().push_back(placed);
        used += needed + Theme::spacing;
    }
    return rows;
}

int ButtonPanel::heightForWidth(int width) const
{
    const int rows = static_cast<int>(rowsFor(width).size());
    return rows * placed_.front().button->sizeHint().height() + (rows - 1) * Theme::spacing;
}

QSize ButtonPanel::sizeHint() const
{
    int width = 0;
    for (const Placed& placed : placed_)
        width += placed.button->sizeHint().width() + Theme::spacing;
    return {width / 2, heightForWidth(width)};
}

QSize ButtonPanel::minimumSizeHint() const
{
    int width = 0;
    for (const Placed& placed : placed_)
        width = std::max(width, placed.button->minimumSizeHint().width());
    return {width, placed_.front().button->sizeHint().height()};
}

/// The buttons of a row share what their texts leave, by their weights.
void ButtonPanel::place()
{
    const int height = placed_.front().button->sizeHint().height();
    int top = 0;
    for (const std::vector<Placed>& row : rowsFor(width())) {
        int left = 0;
        int free = width() - Theme::spacing * (static_cast<int>(row.size()) - 1);
        int weights = 0;
        for (const Placed& placed : row) {
            free -= placed.button->minimumSizeHint().width();
            weights += placed.weight;
        }
        for (const Placed& placed : row) {
            const int share = free * placed.weight / weights;
            const int buttonWidth = placed.button->minimumSizeHint().width() + share;
            placed.button->setGeometry(left, top, buttonWidth, height);
            left += buttonWidth + Theme::spacing;
            free -= share;
            weights -= placed.weight;
        }
        top += height + Theme::spacing;
    }
}

void ButtonPanel::synchronise()
{
    const GameState& state = flow_.view().state;
    setEnabled(!state.computerTurnInProgress);
    for (const auto& [command, button] : buttons_)
        button->setEnabled(flow_.isTime(GameFlow::timeOf(command)));
    buttons_.at(Command::EnterWord)->setVisible(state.showsEnterWord());
    setText(Command::Pause, flow_.isPaused() ? tr("Resume") : tr("Pause"));
    setText(Command::Sound, toQString(flow_.view().sounds.caption()));
}

void ButtonPanel::setText(Command command, const QString& text)
{
    QPushButton& button = *buttons_.at(command);
    if (button.text() == text)
        return;
    button.setText(text);
    place();
}

} // namespace lexigrove
