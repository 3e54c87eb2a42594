#include "ui/play/speaker.hpp"

#include "controls/dc.hpp"
#include "game/board.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "ui/look/text.hpp"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

#include <utility>

namespace lexigrove
{

namespace
{

QString spoken(const char* english)
{
    return QCoreApplication::translate("Speaker", english);
}

/// A notification to assistive tools, which read one aloud wherever the focus is; of a label they would not.
class Voice : public QWidget
{
public:
    explicit Voice(QWidget* window) : QWidget(window)
    {
        setObjectName("Voice");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(1, 1);
        lower();
        hide(); // it appears with its first words
    }
};

QAccessibleInterface* voiceInterface(const QString& /*className*/, QObject* object)
{
    if (object->objectName() != "Voice") // a dynamic_cast would crash on the web engine's objects, which lack RTTI
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Notification);
}

} // namespace

Speaker::Speaker(const GameFlow& flow) : flow_(flow)
{
    constexpr int moment = 50; // milliseconds
    moment_.setSingleShot(true);
    moment_.setInterval(moment);
    QObject::connect(&moment_, &QTimer::timeout, &moment_, [this] { speak(); });
}

void Speaker::speakFrom(QWidget* window)
{
    QAccessible::installFactory(voiceInterface);
    voice_ = new Voice(window);
}

void Speaker::say(const QString& text)
{
    if (!QAccessible::isActive() || text.isEmpty() || texts_.contains(text))
        return;
    texts_.append(text);
    moment_.start();
}

void Speaker::sayStatus(const QString& text)
{
    if (!QAccessible::isActive())
        return;
    const int tile = flow_.view().state.hoveredTile;
    if (tile == 0 || text != toQString(flow_.view().board.hoverCaption(tile)))
        say(text);
}

void Speaker::speak()
{
    const QString text = texts_.join(". ");
    texts_.clear();
    if (voice_ == nullptr)
        return;
    voice_->setAccessibleName(text); // which reports that the name has changed
    voice_->show();
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(voice_, text);
    QAccessible::updateAccessibility(&announcement);
#else
    QAccessibleEvent shown(voice_, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
#endif
}

void Speaker::lookAtGame()
{
    if (!QAccessible::isActive() || flow_.isBusy())
        return;
    const int rows = rows_;
    lookAtWords();
    const GameState& state = flow_.view().state;
    if (std::exchange(prompt_, state.prompt) != state.prompt && state.prompt == Prompt::YourMove)
        say(toQString(flow_.view().selection.wordTried()));
    const QString word = toQString(flow_.view().selection.word());
    if (word != word_ && !word.isEmpty())
        say(spoken("%1, %2").arg(word, toQString(state.currScoreText())));
    else if (word != word_ && rows == rows_ && flow_.inGame())
        say(spoken("Word cleared"));
    word_ = word;
    if (flow_.isPaused() != paused_) {
        paused_ = !paused_;
        say(paused_ ? spoken("Paused") : spoken("The game goes on"));
    }
    lookAtClock();
}

void Speaker::lookAtWords()
{
    const GameState& state = flow_.view().state;
    const int rows = state.WordsMade.Rows();
    if (state.begun != begun_)
        rows_ = rows; // the words of a game that was kept are no news
    begun_ = state.begun;
    for (int row = rows - rows_; row > 0; --row) {
        const WordsRow& made = state.WordsMade.row(row);
        const bool computers = made.maker == Maker::Computer;
        say((computers ? spoken("The computer made %1 for %2. It has %3 points")
                       : spoken("%1 made for %2. You have %3 points"))
                .arg(toQString(made.word))
                .arg(made.score)
                .arg(computers ? state.compScore : state.yourScore));
    }
    rows_ = rows;
}

void Speaker::lookAtComputersWord()
{
    if (!QAccessible::isActive())
        return;
    const QStringList status = std::exchange(texts_, {}); // which says how to go on
    lookAtWords();                                        // the player's own came just before
    say(spoken("The computer's word is %1").arg(toQString(flow_.view().selection.word())));
    texts_ += status;
    word_.clear();
}

void Speaker::lookAtClock()
{
    const bool counts = flow_.inGame() && flow_.view().state.computerGame;
    const int left = counts ? flow_.view().clock.currentValue() : 0;
    for (const int seconds : {60, 30, 10}) {
        if (secondsLeft_ > seconds && left <= seconds && left > 0)
            say(spoken("%1 seconds left").arg(left));
    }
    secondsLeft_ = left;
}

} // namespace lexigrove
