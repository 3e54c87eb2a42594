#include "ui/machine/qt_clock.hpp"

#include "ui/look/text.hpp"

#include <QDateTime>
#include <QLocale>

#include <chrono>

namespace lexigrove
{

double QtClock::secondsSinceMidnight() const
{
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    const QTime time = QDateTime::fromMSecsSinceEpoch(duration_cast<milliseconds>(now).count()).time();
    const auto belowMillisecond = now - floor<milliseconds>(now); // the toolkit's time has only milliseconds
    return time.msecsSinceStartOfDay() / 1000.0 + duration<double>(belowMillisecond).count();
}

std::string QtClock::shortDate() const
{
    return fromQString(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

std::string QtClock::shortTime() const
{
    return fromQString(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat));
}

} // namespace lexigrove
