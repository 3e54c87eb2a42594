#include "ui/machine/event_gate.hpp"

#include "platform/leaving.hpp"

#include <QDialog>
#include <QEventLoop>

#include <algorithm>
#include <utility>

namespace lexigrove
{

void EventGate::requestLeaving()
{
    leaving_ = true;
    closeAll();
}

void EventGate::closeAll()
{
    std::for_each(dialogs_.rbegin(), dialogs_.rend(), [](QDialog* dialog) { dialog->done(QDialog::Rejected); });
    for (QEventLoop* loop : loops_)
        loop->quit();
}

bool EventGate::takeRequest()
{
    return std::exchange(leaving_, false);
}

void EventGate::checkpoint()
{
    if (thrown_)
        std::rethrow_exception(std::exchange(thrown_, nullptr));
    if (takeRequest())
        throw Leaving();
}

int EventGate::exec(QDialog& dialog)
{
    checkpoint();
    dialogs_.push_back(&dialog);
    const int result = dialog.exec();
    dialogs_.pop_back();
    checkpoint();
    return result;
}

void EventGate::exec(QEventLoop& loop)
{
    checkpoint();
    loops_.push_back(&loop);
    loop.exec();
    loops_.pop_back();
    checkpoint();
}

} // namespace lexigrove
