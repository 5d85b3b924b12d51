#include "table.h"

#include <csignal>
#include <limits>
#include <thread>

namespace randomuse
{

namespace
{

/// What a life comes to now and then, as \a fault says.
void misbehave(const QByteArray &fault, QWidget *subject)
{
    if (fault == "warn")
        qWarning("told to warn");
    else if (fault == "abort")
        qFatal("told to abort");
    else if (fault == "crash")
        std::raise(SIGSEGV);
    else if (fault == "overflow")
        subject->setProperty("overflow", std::numeric_limits<int>::max() + fault.size());
    else if (fault == "grow")
        new QWidget(subject);
    else if (fault == "hang")
        std::this_thread::sleep_for(std::chrono::hours(1));
}

} // namespace

QVector<Entry> faultyEntries(const QByteArray &fault)
{
    const bool isGrowing = fault == "grow";
    return {
        Table<QWidget>("Faulty", [](Life &life) { return new QWidget(life.parentOrNone()); })
            .call("setToolTip", &QWidget::setToolTip)
            .call("setStatusTip", &QWidget::setStatusTip)
            .act("misbehave",
                 [fault, isGrowing](Life &life, QWidget *subject) {
                     if (isGrowing || life.dice().chance(2))
                         misbehave(fault, subject);
                 }),
    };
}

} // namespace randomuse
