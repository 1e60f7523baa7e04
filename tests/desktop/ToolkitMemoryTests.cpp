#include "platform/ToolkitMemory.h"

#include <QCoreApplication>
#include <QRasterWindow>

#include <gtest/gtest.h>

#include <malloc.h>

namespace velvane {

namespace {

constexpr int titles = 5000;
// Bytes; less than the toolkit's smallest note of a request.
constexpr double mostForEach = 8;

double bytesInUse()
{
    return double(mallinfo2().uordblks);
}

void changeTitle(QWindow &window)
{
    for (int i = 0; i < titles; ++i) {
        window.setTitle(QString::number(i));
        QCoreApplication::processEvents();
    }
}

} // namespace

TEST(ToolkitMemory, DoesNotGrowWithTheTitlesThatAWindowHad)
{
    QRasterWindow window;
    window.show();
    changeTitle(window);
    returnToolkitMemory();
    const double before = bytesInUse();
    changeTitle(window);
    returnToolkitMemory();
    EXPECT_LT(bytesInUse() - before, mostForEach * titles);
}

} // namespace velvane
