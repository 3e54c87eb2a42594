#pragma once

#include "platform/screen.hpp"
#include "ui/machine/host.hpp"

#include <QObject>

#include <chrono>

class QEventLoop;

namespace lexigrove
{

/// The screen as the rules see it: at every yield the main window shows the models, and the toolkit's events run.
///
/// A yield costs nothing if the last one was a moment ago: redrawing every tile yields hundreds of times.
class QtScreen : public QObject, public Screen
{
    Q_OBJECT

public:
    explicit QtScreen(Host& host);

    void yield() override;

    /// A step lasts `rounds` times `roundLength`, spent in the event loop.
    void animationStep(int rounds) override;

    void setBusyPointer(bool busy) override;

    /// While locked, yields do nothing, so that nothing is painted and the player cannot leave half-way.
    void lockBoardUpdates(bool locked) override { locked_ = locked; }

    void waitForAnyInput() override;

    void copyText(const std::string& text) override;
    [[nodiscard]] std::string copiedText() const override;
    void showEnd(const EndOfGame& end) override;
    void happened(Moment moment, int place) override { emit host_.happened(moment, place); }
    void refuse(const std::string& why) override { emit host_.inputRefused(QString::fromStdString(why)); }
    void inputEnded() override { emit host_.inputEnded(); }

    /// 250 rounds, the delay that the game starts with, make a step of ten milliseconds.
    static constexpr std::chrono::microseconds roundLength{40};

    /// What somebody typed or clicked before the wait for any input could be seen does not end it.
    static constexpr std::chrono::milliseconds quietTime{400};

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    using SteadyClock = std::chrono::steady_clock;

    void showAndRunEvents();
    [[nodiscard]] bool consume(QEvent* event);
    void waitIn(QEventLoop& loop);
    void endWait();

    Host& host_;
    bool locked_ = false;
    bool busyPointer_ = false;
    SteadyClock::time_point shown_;   ///< when the models were shown last
    SteadyClock::time_point stepEnd_; ///< when the current step of an animation is over

    // The input that ends a wait is consumed together with its release.
    SteadyClock::time_point waitBegan_;
    QEventLoop* waiting_ = nullptr;
    int consumedKey_ = 0;
    Qt::MouseButton consumedButton_ = Qt::NoButton;
};

} // namespace lexigrove
