#include "model/ProjectFile.h"
#include "support/DemoRecords.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

Dictionary without(Dictionary dictionary, const char *key)
{
    const QString name = QString::fromUtf8(key);
    dictionary.removeIf([&](const PropertyList::Entry &entry) { return entry.key == name; });
    return dictionary;
}

} // namespace

TEST(ProjectFile, RefusesARootThatIsNoDictionary)
{
    EXPECT_EQ(refusal(Array()), "not a dictionary");
    EXPECT_EQ(refusal(PropertyList()), "not a dictionary");
}

TEST(ProjectFile, RefusesAFileWithoutARequiredKey)
{
    for (const char *key : {"version", "steps", "startPoint", "canvasSize", "fps"}) {
        EXPECT_EQ(refusal(without(rootWith({}), key)),
                  QStringLiteral("missing “%1”").arg(QLatin1String(key)));
    }
    EXPECT_EQ(refusal(rootWith({bareStep, Dictionary()})), "step 2: missing “kind”");
}

TEST(ProjectFile, RefusesUnknownKinds)
{
    EXPECT_EQ(stepRefusal("kind", text("jump")), "step 3: unknown kind “jump”");
    EXPECT_EQ(stepRefusal("kind", text("Move")), "step 3: unknown kind “Move”");
    EXPECT_EQ(stepRefusal("kind", text("")), "step 3: unknown kind “”");
    EXPECT_EQ(stepRefusal("kind", QString(1000, QLatin1Char('x'))),
              QStringLiteral("step 3: unknown kind “%1…”").arg(QString(40, QLatin1Char('x'))));
    EXPECT_EQ(stepRefusal("kind", 1), "step 3: “kind” is not a string");
}

TEST(ProjectFile, RefusesRootValuesOfTheWrongType)
{
    EXPECT_EQ(rootRefusal("version", text("1")), "“version” is not an integer");
    EXPECT_EQ(rootRefusal("version", true), "“version” is not an integer");
    EXPECT_EQ(rootRefusal("version", ~quint64(0)), "“version” is out of range");
    EXPECT_EQ(rootRefusal("steps", Dictionary()), "“steps” is not an array");
    EXPECT_EQ(rootRefusal("steps", Array{1}), "step 1: not a dictionary");
    EXPECT_EQ(rootRefusal("startPoint", 1.0), "“startPoint” is not an array of two numbers");
    EXPECT_EQ(rootRefusal("startPoint", Array{1.0}), "“startPoint” is not an array of two numbers");
    EXPECT_EQ(rootRefusal("canvasSize", Array{1.0, true}),
              "“canvasSize” is not an array of two numbers");
    EXPECT_EQ(rootRefusal("canvasSize", Array{1.0, 2.0, 3.0}),
              "“canvasSize” is not an array of two numbers");
    EXPECT_EQ(rootRefusal("fps", false), "“fps” is not an integer");
    EXPECT_EQ(rootRefusal("fps", PropertyList::Uid{60}), "“fps” is not an integer");
    EXPECT_EQ(rootRefusal("background", text("x")), "“background” is not data");
    EXPECT_EQ(rootRefusal("recordingBookmark", PropertyList()), "“recordingBookmark” is not data");
}

TEST(ProjectFile, RefusesStepValuesOfTheWrongType)
{
    EXPECT_EQ(stepRefusal("point", text("1,2")), "step 3: “point” is not an array of two numbers");
    EXPECT_EQ(stepRefusal("text", 1), "step 3: “text” is not a string");
    EXPECT_EQ(stepRefusal("duration", true), "step 3: “duration” is not a number");
    EXPECT_EQ(stepRefusal("duration", text("1")), "step 3: “duration” is not a number");
    EXPECT_EQ(stepRefusal("pauseAfter", PropertyList::Date{1}),
              "step 3: “pauseAfter” is not a number");
    EXPECT_EQ(stepRefusal("keyCode", true), "step 3: “keyCode” is not an integer");
    EXPECT_EQ(stepRefusal("modifiers", text("0")), "step 3: “modifiers” is not an integer");
    EXPECT_EQ(stepRefusal("centerWindow", 1), "step 3: “centerWindow” is not a boolean");
    EXPECT_EQ(stepRefusal("collapsed", 0.0), "step 3: “collapsed” is not a boolean");
    EXPECT_EQ(stepRefusal("recordedOffset", QByteArray()),
              "step 3: “recordedOffset” is not a number");
}

TEST(ProjectFile, RefusesNumbersThatAreNotFinite)
{
    for (const double number : {infinity, -infinity, notANumber}) {
        EXPECT_EQ(rootRefusal("startPoint", Array{0.0, number}), "“startPoint” is not finite");
        EXPECT_EQ(rootRefusal("canvasSize", Array{number, 0.0}), "“canvasSize” is not finite");
        EXPECT_EQ(stepRefusal("point", Array{number, 0.0}), "step 3: “point” is not finite");
        EXPECT_EQ(stepRefusal("duration", number), "step 3: “duration” is not finite");
        EXPECT_EQ(stepRefusal("pauseAfter", number), "step 3: “pauseAfter” is not finite");
        EXPECT_EQ(stepRefusal("recordedOffset", number), "step 3: “recordedOffset” is not finite");
    }
}

TEST(ProjectFile, ChecksTheRangesOfIntegers)
{
    EXPECT_EQ(stepWith("keyCode", 65535).keyCode, 65535);
    EXPECT_EQ(stepRefusal("keyCode", 65536), "step 3: “keyCode” is out of range");
    EXPECT_EQ(stepRefusal("keyCode", -1), "step 3: “keyCode” is out of range");
    EXPECT_EQ(stepWith("modifiers", ~quint64(0)).modifiers, ~quint64(0));
    EXPECT_EQ(stepRefusal("modifiers", -1), "step 3: “modifiers” is out of range");
    const qint64 largest = std::numeric_limits<int>::max();
    const qint64 smallest = std::numeric_limits<int>::min();
    EXPECT_EQ(ProjectFile::from(with(rootWith({}), "fps", largest)).fps, largest);
    EXPECT_EQ(ProjectFile::from(with(rootWith({}), "fps", smallest)).fps, smallest);
    EXPECT_EQ(rootRefusal("fps", largest + 1), "“fps” is out of range");
    EXPECT_EQ(rootRefusal("fps", smallest - 1), "“fps” is out of range");
    EXPECT_EQ(rootRefusal("fps", ~quint64(0)), "“fps” is out of range");
}

} // namespace velvane
