#include "tfclock.h"

namespace {
std::function<QDateTime()> &source()
{
    static std::function<QDateTime()> function;
    return function;
}
} // namespace

QDateTime TFClock::now()
{
    return source() ? source()() : QDateTime::currentDateTime();
}

void TFClock::setNow(std::function<QDateTime()> now)
{
    source() = std::move(now);
}
