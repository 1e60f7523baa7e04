#include "cli/CommandLine.h"

#include "cli/Json.h"
#include "language/Languages.h"
#include "model/DemoDocument.h"
#include "model/ProjectFile.h"
#include "render/FrameRenderer.h"
#include "timeline/Timeline.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>

namespace velvane::cli {

namespace {

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

Result runWith(const std::vector<std::string> &arguments)
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

void expectOneLine(const std::string &text)
{
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    EXPECT_TRUE(text.ends_with('\n')) << text;
}

} // namespace

TEST_F(CommandLineTest, NewWritesADemoWithTheDefaults)
{
    EXPECT_EQ(runWith({"new", path("a.velvane")}).status, 0);
    const Json demo = Json::parse(runWith({"inspect", "--json", path("a.velvane")}).out);
    EXPECT_EQ(demo["canvasSize"], Json::array({1280.0, 800.0}));
    EXPECT_EQ(demo["steps"].size(), 1U);
    EXPECT_EQ(demo["steps"][0]["summary"], "Switch to app");
}

TEST_F(CommandLineTest, NewReplacesAFileOnlyWhenForced)
{
    write("a.velvane", "precious");
    const Result refused = runWith({"new", path("a.velvane")});
    EXPECT_EQ(refused.status, 1);
    expectOneLine(refused.err);
    QFile file(folder.filePath("a.velvane"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "precious");

    EXPECT_EQ(runWith({"new", "--force", path("a.velvane")}).status, 0);
    EXPECT_EQ(runWith({"inspect", path("a.velvane")}).status, 0);
}

TEST_F(CommandLineTest, InspectGivesEveryFieldAsJson)
{
    const Json demo = Json::parse(runWith({"inspect", sample(), "--json"}).out);
    const auto keys = [](const Json &object) {
        std::vector<std::string> names;
        for (const auto &item : object.items())
            names.push_back(item.key());
        return names;
    };
    EXPECT_EQ(keys(demo), (std::vector<std::string>{"version", "fps", "canvasSize", "startPoint",
                                                    "hasBackground", "hasRecording", "total",
                                                    "steps", "segments"}));
    EXPECT_EQ(demo["total"], 2.0);
    EXPECT_EQ(keys(demo["steps"][0]),
              (std::vector<std::string>{"id", "kind", "point", "text", "duration", "pauseAfter",
                                        "keyCode", "modifiers", "centerWindow", "collapsed",
                                        "recordedOffset", "number", "summary", "shortcutDisplay",
                                        "visible"}));
    EXPECT_EQ(demo["steps"][0]["point"], Json::array({0.1, 40.0}));
    EXPECT_EQ(demo["steps"][0]["recordedOffset"], Json());
    EXPECT_EQ(demo["steps"][1]["number"], Json());
    EXPECT_EQ(demo["steps"][2]["number"], 2);
    EXPECT_EQ(demo["steps"][2]["visible"], false);
    EXPECT_EQ(demo["steps"][2]["recordedOffset"], 2.0);
    EXPECT_EQ(keys(demo["segments"][1]),
              (std::vector<std::string>{"step", "id", "start", "end", "actionDuration", "startPos",
                                        "endPos", "heldEntering"}));
    EXPECT_EQ(demo["segments"][1]["step"], 2);
    EXPECT_EQ(demo["segments"][1]["id"], demo["steps"][2]["id"]);
    EXPECT_EQ(demo["segments"][1]["startPos"], Json::array({0.1, 40.0}));
}

TEST_F(CommandLineTest, InspectPrintsATable)
{
    const std::string table = runWith({"inspect", sample()}).out;
    EXPECT_NE(table.find("64 × 48"), std::string::npos);
    EXPECT_NE(table.find("Move to (0, 40)"), std::string::npos);
    EXPECT_NE(table.find("▸  End"), std::string::npos);
    EXPECT_NE(table.find("   2  Click"), std::string::npos);
}

TEST_F(CommandLineTest, StateGivesAnObjectForEachMoment)
{
    const Json states = Json::parse(runWith({"state", sample(), "--at", "1.5", "--at", "-1"}).out);
    ASSERT_EQ(states.size(), 2U);
    EXPECT_EQ(states[0]["time"], 1.5);
    EXPECT_EQ(states[0]["cursor"], Json::array({0.1, 40.0}));
    EXPECT_EQ(states[0]["ripple"], 0.5);
    EXPECT_EQ(states[0]["press"], 1.0);
    EXPECT_EQ(states[0]["held"], false);
    EXPECT_EQ(states[0]["caption"], Json());
    EXPECT_EQ(states[0]["videoTime"], Json());
    EXPECT_EQ(states[1]["cursor"], Json::array({0.0, 0.0}));
}

TEST_F(CommandLineTest, StateGivesMovieTimesWhenTheLengthIsKnown)
{
    const Json states = Json::parse(
        runWith({"state", sample(), "--at", "1.5", "--at", "0.5", "--video-duration", "4"}).out);
    EXPECT_EQ(states[0]["videoTime"], 3.0);
    EXPECT_EQ(states[1]["videoTime"], Json());
}

TEST_F(CommandLineTest, FrameWritesWhatTheRendererDraws)
{
    ASSERT_EQ(runWith({"frame", sample(), "--at", "1.5", "--output", path("a.png")}).status, 0);
    const auto demo = DemoDocument::read(folder.filePath("sample.velvane"));
    const Snapshot snap = demo->project().snapshot();
    const QImage expected = FrameRenderer::image(snap, Timeline(snap).state(1.5s));
    EXPECT_EQ(QImage(folder.filePath("a.png")).convertToFormat(QImage::Format_RGB32),
              expected.convertToFormat(QImage::Format_RGB32));
}

TEST_F(CommandLineTest, FrameFitsAPictureIntoASize)
{
    const auto frameOfSize = [this](const char *size) {
        const Result result =
            runWith({"frame", sample(), "--at", "0", "--size", size, "--output", path("a.png")});
        EXPECT_EQ(result.status, 0) << result.err;
        return QImage(folder.filePath("a.png")).size();
    };
    EXPECT_EQ(frameOfSize("32"), QSize(32, 24));
    EXPECT_EQ(frameOfSize("1"), QSize(1, 1));
    // A larger one would show no more.
    EXPECT_EQ(frameOfSize("64"), QSize(64, 48));
    EXPECT_EQ(frameOfSize("512"), QSize(64, 48));
}

TEST_F(CommandLineTest, FrameRefusesASizeThatIsNone)
{
    for (const char *size : {"0", "-1", "big", "1e9"}) {
        const Result result =
            runWith({"frame", sample(), "--at", "0", "--size", size, "--output", path("a.png")});
        EXPECT_EQ(result.status, 2) << size;
        expectOneLine(result.err);
        EXPECT_FALSE(exists("a.png"));
    }
}

TEST_F(CommandLineTest, ExportSaysWhereTheMovieIs)
{
    const Result result = runWith({"export", sample(), path("a.mp4")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "Exported to a.mp4.\n");
    EXPECT_TRUE(result.err.starts_with(" 10 %\n")) << result.err;
    EXPECT_TRUE(result.err.ends_with("100 %\n")) << result.err;
    EXPECT_TRUE(exists("a.mp4"));
}

TEST_F(CommandLineTest, ExportReplacesAnExistingFile)
{
    write("a.mp4", QByteArray(1000000, 'x'));
    EXPECT_EQ(runWith({"export", sample(), path("a.mp4")}).status, 0);
    EXPECT_LT(QFile(folder.filePath("a.mp4")).size(), 1000000);
}

TEST_F(CommandLineTest, NothingIsWrittenOverTheDemoItself)
{
    const std::string demo = sample();
    for (const auto &arguments :
         {std::vector<std::string>{"export", demo, demo},
          std::vector<std::string>{"frame", demo, "--at", "0", "--output", demo}}) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 1);
        expectOneLine(result.err);
    }
    EXPECT_EQ(runWith({"inspect", demo}).status, 0);
}

TEST_F(CommandLineTest, ConvertReadsXmlAndWritesBinary)
{
    write("a.xml", R"(<plist version="1.0"><dict><key>version</key><integer>7</integer>
        <key>steps</key><array><dict><key>kind</key><string>wait</string></dict></array>
        <key>startPoint</key><array><real>1</real><integer>2</integer></array>
        <key>canvasSize</key><array><real>30</real><real>20</real></array>
        <key>fps</key><integer>24</integer></dict></plist>)");
    EXPECT_EQ(Json::parse(runWith({"inspect", path("a.xml"), "--json"}).out)["version"], 7);
    ASSERT_EQ(runWith({"convert", path("a.xml"), path("a.velvane")}).status, 0);
    QFile file(folder.filePath("a.velvane"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("bplist00"));
    const Json demo = Json::parse(runWith({"inspect", path("a.velvane"), "--json"}).out);
    EXPECT_EQ(demo["version"], 1);
    EXPECT_EQ(demo["fps"], 24);
    EXPECT_EQ(demo["startPoint"], Json::array({1.0, 2.0}));
}

TEST_F(CommandLineTest, AFaultyDemoIsNamedWithItsFault)
{
    write("bad.velvane", R"(<plist version="1.0"><dict><key>version</key><integer>1</integer>
        <key>steps</key><array><dict><key>kind</key><string>jump</string></dict></array>
        <key>startPoint</key><array><real>1</real><real>2</real></array>
        <key>canvasSize</key><array><real>30</real><real>20</real></array>
        <key>fps</key><integer>24</integer></dict></plist>)");
    const Result result = runWith({"inspect", path("bad.velvane")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, path("bad.velvane") + ": step 1: unknown kind “jump”\n");
}

TEST_F(CommandLineTest, WhatCannotBeReadOrWrittenIsOneLine)
{
    const std::string demo = sample();
    const std::string nowhere = path("no/such/folder/x");
    const std::vector<std::vector<std::string>> faulty{
        {"inspect", path("missing")},
        {"inspect", folder.path().toStdString()},
        {"state", path("missing"), "--at", "0"},
        {"frame", demo, "--at", "0", "--output", nowhere},
        {"export", demo, nowhere},
        {"export", demo, folder.path().toStdString()},
        {"convert", demo, nowhere},
        {"new", nowhere},
    };
    for (const auto &arguments : faulty) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 1) << arguments[0];
        EXPECT_EQ(result.out, "") << arguments[0];
        expectOneLine(result.err);
    }
}

TEST_F(CommandLineTest, WrongUsageIsStatusTwoAndOneLine)
{
    const std::vector<std::vector<std::string>> wrong{
        {"--nonsense"},
        {"inspect"},
        {"state", "x"},
        {"state", "x", "--at", "soon"},
        {"state", "x", "--at", "nan"},
        {"state", "x", "--at", "inf"},
        {"frame", "x", "--at", "1"},
        {"export", "x"},
        {"export", "x", "y", "z"},
        {"new", "x", "--at", "1"},
        {"state", "x", "--at", "1", "--video-duration", "nan"}};
    for (const auto &arguments : wrong) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 2) << arguments[0];
        expectOneLine(result.err);
    }
}

TEST_F(CommandLineTest, HelpOfEverySubcommandIsAResult)
{
    for (const char *name : {"new", "inspect", "state", "frame", "export", "convert", "doctor"}) {
        const Result result = runWith({name, "--help"});
        EXPECT_EQ(result.status, 0) << name;
        EXPECT_GT(result.out.size(), 200U) << name;
        EXPECT_EQ(result.err, "") << name;
    }
    EXPECT_EQ(runWith({"--version"}).out, "velvane " VELVANE_VERSION "\n");
}

TEST_F(CommandLineTest, HelpInAnotherLanguageHasOneGroupOfOptions)
{
    Languages::choose("de");
    const std::string help = runWith({"doctor", "--help"}).out;
    Languages::choose("en");
    EXPECT_EQ(help.find("Options:"), std::string::npos) << help;
    const std::size_t group = help.find("Optionen:");
    ASSERT_NE(group, std::string::npos) << help;
    EXPECT_LT(group, help.find("--help"));
    EXPECT_LT(group, help.find("--json"));
}

TEST_F(CommandLineTest, ACanvasThatCannotBeDrawnIsRefused)
{
    ProjectFile file;
    for (const QSizeF canvas : {QSizeF(0.9, 500), QSizeF(1e6, 1e6), QSizeF(-5, 5)}) {
        file.canvasSize = canvas;
        ASSERT_FALSE(DemoDocument::write(file, folder.filePath("odd.velvane")));
        write("keep.mp4", "precious");
        for (const auto &arguments :
             {std::vector<std::string>{"frame", path("odd.velvane"), "--at", "0", "-o",
                                       path("odd.png")},
              std::vector<std::string>{"export", path("odd.velvane"), path("keep.mp4")}}) {
            const Result result = runWith(arguments);
            EXPECT_EQ(result.status, 1);
            expectOneLine(result.err);
        }
        EXPECT_EQ(QFile(folder.filePath("keep.mp4")).size(), 8) << "refused before it is removed";
    }
}

TEST_F(CommandLineTest, DoctorReportsALineForEachCapability)
{
    const Result result = runWith({"doctor"});
    EXPECT_EQ(result.status, 0);
    for (const char *what : {"Display server", "H.264 encoder", "Caption font", "Emoji"})
        EXPECT_NE(result.out.find(what), std::string::npos) << what;
}

TEST_F(CommandLineTest, WithoutASubcommandTheArgumentsAreDemosToOpen)
{
    CommandLine line;
    const std::array<const char *, 3> argv{"velvane", "a.velvane", "b.velvane"};
    EXPECT_FALSE(line.parse(3, argv.data()));
    EXPECT_FALSE(line.hasCommand());
    EXPECT_EQ(line.demos(), (std::vector<std::string>{"a.velvane", "b.velvane"}));
}

} // namespace velvane::cli
