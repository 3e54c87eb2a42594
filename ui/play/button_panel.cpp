#include "ui/play/button_panel.hpp"

#include "game/game_state.hpp"
#include "settings/sound_cues.hpp"
#include "ui/look/text.hpp"
#include "ui/look/theme.hpp"
#include "ui/play/commands.hpp"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace lexigrove
{

ButtonPanel::ButtonPanel(GameFlow& flow, QWidget* parent) : QWidget(parent), flow_(flow)
{
    setObjectName("Frame3");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::spacing);
    std::array<QHBoxLayout*, 2> rows{};
    for (QHBoxLayout*& row : rows) {
        row = new QHBoxLayout;
        row->setSpacing(Theme::spacing);
        column->addLayout(row);
    }
    for (const PanelButton& description : panelButtons()) {
        auto* button = new QPushButton(description.text, this);
        button->setObjectName(description.name);
        button->setToolTip(description.toolTip);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard for typing words
        connect(button, &QPushButton::clicked, this, [this, command = description.command] { flow_.perform(command); });
        rows[static_cast<std::size_t>(description.row)]->addWidget(button, description.width);
        buttons_[description.command] = button;
    }
    QPushButton& enterWord = *buttons_.at(Command::EnterWord);
    enterWord.setProperty("primary", true);
    QSizePolicy policy = enterWord.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    enterWord.setSizePolicy(policy);
}

void ButtonPanel::synchronise()
{
    const GameState& state = flow_.view().state;
    setEnabled(!state.computerTurnInProgress);
    for (const auto& [command, button] : buttons_)
        button->setEnabled(flow_.isTime(GameFlow::timeOf(command)));
    buttons_.at(Command::EnterWord)->setVisible(state.showsEnterWord());
    buttons_.at(Command::Pause)->setText(flow_.isPaused() ? tr("Resume") : tr("Pause"));
    buttons_.at(Command::Sound)->setText(toQString(flow_.view().sounds.caption()));
}

} // namespace lexigrove
