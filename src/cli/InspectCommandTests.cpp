#include "cli/Columns.h"
#include "cli/CommandLineFixture.h"
#include "cli/Json.h"

namespace velvane::cli {

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

TEST_F(CommandLineTest, TheTablesColumnsStandBelowEachOtherWhateverTheTextsAre)
{
    ProjectFile file;
    for (const QString &text :
         {QStringLiteral("short"), QStringLiteral("画面の上").repeated(8),
          QStringLiteral("👍🏽").repeated(25), QStringLiteral("a\nb\u202Ec")})
        file.steps << Step{.kind = StepKind::type, .text = text};
    ASSERT_FALSE(DemoDocument::write(file, folder.filePath("a.velvane")));
    const QString table = QString::fromStdString(runWith({"inspect", path("a.velvane")}).out);
    const QStringList lines = table.split(u'\n', Qt::SkipEmptyParts);
    const int width = Columns::width(lines.last());
    for (const QString &line : lines.last(5))
        EXPECT_EQ(Columns::width(line), width) << line.toStdString();
    EXPECT_FALSE(table.contains(QChar(0x202E)));
    EXPECT_FALSE(table.contains(QChar::ReplacementCharacter + u'…'));
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

} // namespace velvane::cli
