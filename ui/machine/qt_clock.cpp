#include "ui/machine/qt_clock.hpp"

#include "ui/look/text.hpp"

#include <QDateTime>
#include <QLocale>

namespace lexigrove
{

std::string QtClock::shortDate() const
{
    return fromQString(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

std::string QtClock::shortTime() const
{
    return fromQString(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat));
}

} // namespace lexigrove
