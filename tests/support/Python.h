#pragma once

#include <QByteArray>
#include <QProcess>

#include <gtest/gtest.h>

/// What a Python program prints when it is given this input; fails the test when it fails.
inline QByteArray pythonOutput(const QString &program, const QByteArray &input = {})
{
    QProcess python;
    python.start(QStringLiteral("python3"), {QStringLiteral("-c"), program});
    python.write(input);
    python.closeWriteChannel();
    EXPECT_TRUE(python.waitForFinished());
    EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    return python.readAllStandardOutput();
}
