#include "ui/play/speaker.hpp"

#include "controls/dc.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "ui/look/text.hpp"

#include <QAccessible>
#include <QCoreApplication>

namespace lexigrove
{

namespace
{

QString spoken(const char* english)
{
    return QCoreApplication::translate("Speaker", english);
}

} // namespace

void Speaker::say(const QString& text)
{
    if (!QAccessible::isActive() || voice_ == nullptr || text.isEmpty() || text == said_)
        return;
    said_ = text;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(voice_, text);
    QAccessible::updateAccessibility(&announcement);
#endif
    voice_->setAccessibleName(text); // which reports that the name has changed
    QAccessibleEvent alert(voice_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Speaker::lookAtGame()
{
    if (!QAccessible::isActive() || flow_.isBusy())
        return;
    const GameState& state = flow_.view().state;
    const int rows = state.WordsMade.Rows();
    if (rows > rows_) {
        const auto& made = state.WordsMade.row(1);
        const bool computers = made.maker == Maker::Computer;
        say((computers ? spoken("The computer made %1 for %2. It has %3 points")
                       : spoken("%1 made for %2. You have %3 points"))
                .arg(toQString(made.word))
                .arg(made.score)
                .arg(computers ? state.compScore : state.yourScore));
    }
    rows_ = rows;
    const QString word = toQString(flow_.view().selection.word());
    if (word != word_ && !word.isEmpty())
        say(spoken("%1, %2").arg(word, toQString(state.currScoreText())));
    word_ = word;
    lookAtClock();
}

void Speaker::lookAtClock()
{
    const bool counts = flow_.inGame() && flow_.view().state.computerGame;
    const int left = counts ? flow_.view().clock.currentValue() : 0;
    for (const int seconds : {60, 30, 10}) {
        if (secondsLeft_ > seconds && left <= seconds && left > 0)
            say(spoken("%1 seconds left").arg(seconds));
    }
    secondsLeft_ = left;
}

} // namespace lexigrove
