#include "app/EndSignals.h"

#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace velvane {

namespace {

/// Sends the signal to this process and says how often it was told of within the next turns of the
/// event loop.
bool isTold(EndSignals &ends, int signal)
{
    QEventLoop loop;
    bool told = false;
    QObject::connect(&ends, &EndSignals::received, &loop, [&] {
        told = true;
        loop.quit();
    });
    constexpr int longEnough = 20'000; // milliseconds
    QTimer::singleShot(longEnough, &loop, &QEventLoop::quit);
    raise(signal);
    loop.exec();
    return told;
}

} // namespace

TEST(EndSignals, TheMainThreadIsToldInsteadOfEnding)
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        EndSignals ends;
        EXPECT_TRUE(isTold(ends, signal)) << signal;
        EXPECT_TRUE(isTold(ends, signal)) << "again";
    }
}

TEST(EndSignals, AfterwardsTheyEndTheProcessAgain)
{
    {
        const EndSignals ends;
    }
    EXPECT_EXIT(raise(SIGTERM), testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignals, WhatWasIgnoredStaysIgnored)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        EndSignals ends;
        EXPECT_TRUE(isTold(ends, SIGTERM));
        raise(SIGHUP);
    }
    raise(SIGHUP);
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

} // namespace velvane
