#include "capture/MovieWorker.h"

#include "support/MovieMaker.h"
#include "support/Print.h"

#include <QSemaphore>

#include <gtest/gtest.h>

namespace velvane {

namespace {

class MovieWorkerTest : public MovieTest {
protected:
    /// Asks for a picture and, while the worker hands it out, so many times more; what comes then.
    MovieWorker::Result afterRequestsInARow(int count)
    {
        const QString path = file("movie.mp4");
        NumberedMovie::write(path, 50, 50);
        QSemaphore arrived;
        QSemaphore taken;
        MovieWorker::Result last;
        MovieWorker worker(MovieReader::open(path).reader, [&](const MovieWorker::Result &result) {
            last = result;
            arrived.release();
            taken.acquire();
        });
        constexpr int patience = 60'000; // milliseconds
        worker.request(0s, 1);
        EXPECT_TRUE(arrived.tryAcquire(1, patience)) << "waited for the first picture";
        for (int i = 1; i <= count; ++i)
            worker.request(Seconds(0.1 * i), 1 + i);
        taken.release();
        EXPECT_TRUE(arrived.tryAcquire(1, patience)) << "waited for the last picture";
        taken.release();
        return last;
    }
};

} // namespace

TEST_F(MovieWorkerTest, TheNewestRequestIsAnswered)
{
    const MovieWorker::Result last = afterRequestsInARow(4);
    EXPECT_EQ(last.generation, 5);
    EXPECT_EQ(last.time, Seconds(0.4));
    EXPECT_FALSE(last.isCarried) << "a newer one would still have ended it";
}

TEST_F(MovieWorkerTest, AfterSeveralInARowOneIsCarriedToItsEnd)
{
    const MovieWorker::Result last = afterRequestsInARow(5);
    EXPECT_EQ(last.generation, 6);
    EXPECT_TRUE(last.isCarried);
}

} // namespace velvane
