#include "ui/play/button_panel.hpp"

#include "game/game_state.hpp"
#include "settings/sound_cues.hpp"
#include "ui/look/text.hpp"
#include "ui/look/theme.hpp"

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
        QPushButton* button = add(description);
        rows[static_cast<std::size_t>(description.row)]->addWidget(button, description.width);
        entries_.push_back({description, button});
        if (description.command == Command::EnterWord)
            enterWord_ = button;
        else if (description.command == Command::Pause)
            pause_ = button;
        else if (description.command == Command::Sound)
            sound_ = button;
    }
    enterWord_->setProperty("primary", true);
    QSizePolicy policy = enterWord_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    enterWord_->setSizePolicy(policy);
}

QPushButton* ButtonPanel::add(const PanelButton& description)
{
    auto* button = new QPushButton(description.text, this);
    button->setObjectName(description.name);
    button->setAccessibleName(description.text);
    button->setToolTip(description.toolTip);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard for typing words
    connect(button, &QPushButton::clicked, this, [this, command = description.command] { flow_.perform(command); });
    return button;
}

void ButtonPanel::synchronise()
{
    const GameState& state = flow_.view().state;
    if (isEnabled() == state.computerTurnInProgress)
        setEnabled(!state.computerTurnInProgress);
    for (const Entry& entry : entries_)
        entry.button->setEnabled(flow_.isTime(GameFlow::timeOf(entry.description.command)));
    if (enterWord_->isHidden() == state.showsEnterWord())
        enterWord_->setVisible(state.showsEnterWord());
    const auto setCaption = [](QPushButton* button, const QString& caption) {
        if (button->text() != caption) {
            button->setText(caption);
            button->setAccessibleName(caption);
        }
    };
    setCaption(pause_, flow_.isPaused() ? tr("Resume") : tr("Pause"));
    setCaption(sound_, toQString(flow_.view().sounds.caption()));
}

} // namespace lexigrove
