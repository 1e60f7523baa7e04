#pragma once

#include "cli/CommandLine.h"
#include "model/DemoDocument.h"
#include "model/ProjectFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>

namespace velvane::cli {

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

inline Result runWith(const std::vector<std::string> &arguments)
{
    std::ostringstream out;
    std::ostringstream err;
    std::vector<const char *> argv{"velvane"};
    for (const std::string &argument : arguments)
        argv.push_back(argument.c_str());
    CommandLine line({.out = out, .err = err});
    const auto parsed = line.parse(static_cast<int>(argv.size()), argv.data());
    const int status = parsed ? *parsed : line.run();
    return {status, out.str(), err.str()};
}

class CommandLineTest : public testing::Test {
protected:
    std::string path(const char *name) const { return folder.filePath(name).toStdString(); }

    // A move of one second, then a section, then a click of one second.
    std::string sample() const
    {
        ProjectFile file;
        file.steps = {
            Step{.kind = StepKind::move, .point = {0.1, 40}, .duration = 1s, .pauseAfter = 0s},
            Step{.kind = StepKind::section, .text = "End", .collapsed = true},
            Step{.kind = StepKind::click, .pauseAfter = 1s, .recordedOffset = 2s}};
        file.canvasSize = {64, 48};
        file.fps = 10;
        EXPECT_FALSE(DemoDocument::write(file, folder.filePath("sample.velvane")));
        return path("sample.velvane");
    }

    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    bool exists(const char *name) const { return QFile::exists(folder.filePath(name)); }

    QTemporaryDir folder;
};

inline void expectOneLine(const std::string &text)
{
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    EXPECT_TRUE(text.ends_with('\n')) << text;
}

} // namespace velvane::cli
