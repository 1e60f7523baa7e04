#include "model/ProjectFile.h"

#include "base/Geometry.h"
#include "support/DemoRecords.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velvane {

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

QStringList keysOf(const PropertyList &record)
{
    QStringList keys;
    for (const PropertyList::Entry &entry : *record.as<Dictionary>())
        keys << entry.key;
    return keys;
}

PropertyList written(const Step &step)
{
    ProjectFile file;
    file.steps << step;
    const PropertyList root = file.toPropertyList();
    return find(*root.as<Dictionary>(), QStringLiteral("steps"))->as<Array>()->constFirst();
}

Step fullStep()
{
    return {.id = QUuid("{0123abcd-0123-4567-89ab-0123456789ab}"),
            .kind = StepKind::shortcut,
            .point = {0.1, -2.5},
            .text = QStringLiteral("né 👍"),
            .duration = 1.25s,
            .pauseAfter = 0.1s,
            .keyCode = 65535,
            .modifiers = ~quint64(0),
            .centerWindow = true,
            .collapsed = true,
            .recordedOffset = 12.5s};
}

} // namespace

TEST(ProjectFile, AStepOfOnlyItsKindHasTheDefaults)
{
    const Step step = readStep(bareStep);
    EXPECT_EQ(step.kind, StepKind::click);
    EXPECT_TRUE(identical(step.point, QPointF(0, 0)));
    EXPECT_EQ(step.text, QString());
    EXPECT_EQ(step.duration.count(), 1.0);
    EXPECT_EQ(step.pauseAfter.count(), 0.3);
    EXPECT_EQ(step.keyCode, 0);
    EXPECT_EQ(step.modifiers, 0U);
    EXPECT_FALSE(step.centerWindow);
    EXPECT_FALSE(step.collapsed);
    EXPECT_EQ(step.recordedOffset, std::nullopt);
}

TEST(ProjectFile, AStepWithoutIdHasANewOneEachTimeItIsRead)
{
    const PropertyList root(rootWith({bareStep, bareStep}));
    const ProjectFile once = ProjectFile::from(root);
    const ProjectFile again = ProjectFile::from(root);
    EXPECT_FALSE(once.steps[0].id.isNull());
    EXPECT_NE(once.steps[0].id, once.steps[1].id);
    EXPECT_NE(once.steps[0].id, again.steps[0].id);
}

TEST(ProjectFile, EveryKindIsReadAndWrittenByItsName)
{
    for (const StepKind kind : allStepKinds) {
        EXPECT_EQ(stepWith("kind", id(kind)).kind, kind);
        const PropertyList record = written(Step::withDefaults(kind, {}));
        EXPECT_EQ(*find(*record.as<Dictionary>(), QStringLiteral("kind")), PropertyList(id(kind)));
    }
}

TEST(ProjectFile, AnyVersionIsReadAndOneIsWritten)
{
    for (const qint64 version : {qint64(7), qint64(-1), std::numeric_limits<qint64>::max()}) {
        const ProjectFile file = ProjectFile::from(with(rootWith({}), "version", version));
        EXPECT_EQ(file.version, version);
        const PropertyList root = file.toPropertyList();
        EXPECT_EQ(*find(*root.as<Dictionary>(), QStringLiteral("version")), PropertyList(1));
    }
}

TEST(ProjectFile, WritesFiveKeysWithoutBackgroundAndRecording)
{
    EXPECT_EQ(keysOf(ProjectFile().toPropertyList()),
              QStringList({"version", "steps", "startPoint", "canvasSize", "fps"}));
}

TEST(ProjectFile, WritesSevenKeysWithBackgroundAndRecording)
{
    ProjectFile file;
    file.background = QByteArray("picture");
    file.recordingBookmark = QByteArray();
    EXPECT_EQ(keysOf(file.toPropertyList()),
              QStringList({"version", "steps", "startPoint", "canvasSize", "fps", "background",
                           "recordingBookmark"}));
}

TEST(ProjectFile, WritesTheKeysOfAStepInOrder)
{
    EXPECT_EQ(keysOf(written(fullStep())),
              QStringList({"id", "kind", "point", "text", "duration", "pauseAfter", "keyCode",
                           "modifiers", "centerWindow", "collapsed", "recordedOffset"}));
}

TEST(ProjectFile, WritesRealsAsRealsAndIntegersAsIntegers)
{
    Step step;
    step.id = QUuid("{0123abcd-0123-4567-89ab-0123456789ab}");
    step.point = {1, 2};
    const Dictionary expected{
        {QStringLiteral("id"), text("0123ABCD-0123-4567-89AB-0123456789AB")},
        {QStringLiteral("kind"), text("move")},
        {QStringLiteral("point"), Array{1.0, 2.0}},
        {QStringLiteral("text"), text("")},
        {QStringLiteral("duration"), 1.0},
        {QStringLiteral("pauseAfter"), 0.3},
        {QStringLiteral("keyCode"), 0},
        {QStringLiteral("modifiers"), 0},
        {QStringLiteral("centerWindow"), false},
        {QStringLiteral("collapsed"), false},
    };
    EXPECT_EQ(written(step), PropertyList(expected));
}

TEST(ProjectFile, AStepWithoutRecordedOffsetWritesNone)
{
    EXPECT_FALSE(keysOf(written(Step())).contains(QStringLiteral("recordedOffset")));
}

TEST(ProjectFile, ARecordedOffsetOfZeroIsWritten)
{
    Step step;
    step.recordedOffset = 0s;
    const PropertyList record = written(step);
    const PropertyList *value = find(*record.as<Dictionary>(), QStringLiteral("recordedOffset"));
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, PropertyList(0.0));
    EXPECT_EQ(readStep(*record.as<Dictionary>()).recordedOffset, 0s);
}

TEST(ProjectFile, WhatIsWrittenIsReadBackEqualFieldByField)
{
    ProjectFile file;
    file.steps = {fullStep(), Step(), Step::withDefaults(StepKind::section, {})};
    file.startPoint = {-0.5, 1e300};
    file.canvasSize = {0.1, 0.2};
    file.fps = std::numeric_limits<int>::min();
    file.background = QByteArray("\0picture", 8);
    file.recordingBookmark = QByteArray();
    const ProjectFile again = ProjectFile::from(file.toPropertyList());
    EXPECT_EQ(again.version, 1);
    EXPECT_EQ(again.steps, file.steps);
    EXPECT_TRUE(identical(again.startPoint, file.startPoint));
    EXPECT_TRUE(identical(again.canvasSize, file.canvasSize));
    EXPECT_EQ(again.fps, file.fps);
    EXPECT_EQ(again.background, file.background);
    EXPECT_EQ(again.recordingBookmark, file.recordingBookmark);
}

TEST(ProjectFile, KeysMayComeInAnyOrder)
{
    const PropertyList ordered = written(fullStep());
    Dictionary step = *ordered.as<Dictionary>();
    std::reverse(step.begin(), step.end());
    Dictionary root = rootWith({step});
    std::reverse(root.begin(), root.end());
    EXPECT_EQ(ProjectFile::from(root).steps, QList<Step>{fullStep()});
}

TEST(ProjectFile, UnknownKeysAreIgnoredAndNotKept)
{
    const Dictionary step = with(bareStep, "speed", Array{Dictionary()});
    const ProjectFile file = ProjectFile::from(with(rootWith({step}), "author", text("x")));
    EXPECT_EQ(keysOf(file.toPropertyList()).size(), 5);
    EXPECT_FALSE(keysOf(written(file.steps.constFirst())).contains(QStringLiteral("speed")));
}

TEST(ProjectFile, IntegersServeAsReals)
{
    EXPECT_EQ(stepWith("duration", 2).duration, 2s);
    EXPECT_EQ(stepWith("pauseAfter", -1).pauseAfter, -1s);
    EXPECT_EQ(stepWith("recordedOffset", ~quint64(0)).recordedOffset, Seconds(0x1p64));
    EXPECT_TRUE(identical(stepWith("point", Array{1, 2.5}).point, QPointF(1, 2.5)));
}

TEST(ProjectFile, RealsWithoutFractionServeAsIntegers)
{
    EXPECT_EQ(stepWith("keyCode", 65535.0).keyCode, 65535);
    EXPECT_EQ(stepWith("modifiers", 0x1p63).modifiers, quint64(1) << 63);
    EXPECT_EQ(ProjectFile::from(with(rootWith({}), "fps", 30.0)).fps, 30);
    EXPECT_EQ(stepRefusal("keyCode", 1.5), "step 3: “keyCode” is not an integer");
    EXPECT_EQ(stepRefusal("modifiers", 0x1p64), "step 3: “modifiers” is out of range");
    EXPECT_EQ(stepRefusal("modifiers", -1.0), "step 3: “modifiers” is out of range");
    EXPECT_EQ(rootRefusal("fps", 1e300), "“fps” is out of range");
    EXPECT_EQ(rootRefusal("fps", notANumber), "“fps” is not an integer");
    EXPECT_EQ(rootRefusal("fps", infinity), "“fps” is out of range");
}

TEST(ProjectFile, UuidsAreReadInAnyCase)
{
    const QUuid id("{0123abcd-0123-4567-89ab-0123456789ab}");
    EXPECT_EQ(stepWith("id", text("0123ABCD-0123-4567-89AB-0123456789AB")).id, id);
    EXPECT_EQ(stepWith("id", text("0123abcd-0123-4567-89aB-0123456789Ab")).id, id);
    EXPECT_EQ(stepWith("id", text("00000000-0000-0000-0000-000000000000")).id, QUuid());
}

TEST(ProjectFile, RefusesOtherSpellingsOfUuids)
{
    for (const char *id :
         {"", "0123abcd0123456789ab0123456789ab", "{0123abcd-0123-4567-89ab-0123456789ab}",
          "0123abcd-0123-4567-89ab-0123456789a", "0123abcd-0123-4567-89ab-0123456789abc",
          "0123abcd-0123-4567-89ab-0123456789ag", "0123abcd-01234567--89ab-0123456789ab",
          "0123abcd-0123-4567-89ab-0123456789é"}) {
        EXPECT_TRUE(
            stepRefusal("id", text(id)).startsWith(QStringLiteral("step 3: “id” is not a UUID")))
            << id;
    }
    EXPECT_EQ(stepRefusal("id", text("x\ny")), "step 3: “id” is not a UUID: “x␊y”");
    EXPECT_EQ(stepRefusal("id", 5), "step 3: “id” is not a string");
}

} // namespace velvane
