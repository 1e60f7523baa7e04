#include "model/StepList.h"

#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

Step stepOf(StepKind kind, bool collapsed = false)
{
    Step step;
    step.kind = kind;
    step.collapsed = collapsed;
    return step;
}

// A, section S (collapsed), B, C, section T (expanded), D
const QList<Step> sample{stepOf(StepKind::click),          stepOf(StepKind::section, true),
                         stepOf(StepKind::move),           stepOf(StepKind::wait),
                         stepOf(StepKind::section, false), stepOf(StepKind::type)};

} // namespace

TEST(StepList, CollapsedSectionsHideTheirSteps)
{
    EXPECT_EQ(StepList::visibility(sample), QList<bool>({true, true, false, false, true, true}));
    EXPECT_EQ(StepList::visibleSteps(sample),
              QList<Step>({sample[0], sample[1], sample[4], sample[5]}));
}

TEST(StepList, NumbersCountHiddenStepsAndSkipSections)
{
    using Numbers = QList<std::optional<int>>;
    EXPECT_EQ(StepList::displayNumbers(sample), Numbers({1, {}, 2, 3, {}, 4}));
    for (qsizetype i = 0; i < sample.size(); ++i)
        EXPECT_EQ(StepList::displayNumber(sample, sample[i].id), Numbers({1, {}, 2, 3, {}, 4})[i]);
}

TEST(StepList, AnUnknownStepHasNoNumberAndNoIndex)
{
    EXPECT_FALSE(StepList::displayNumber(sample, QUuid::createUuid()));
    EXPECT_FALSE(StepList::index(sample, QUuid::createUuid()));
}

TEST(StepList, AnEmptyListHasNoRows)
{
    EXPECT_TRUE(StepList::visibility({}).isEmpty());
    EXPECT_TRUE(StepList::visibleSteps({}).isEmpty());
    EXPECT_TRUE(StepList::displayNumbers({}).isEmpty());
}

TEST(StepList, ApplicationsAreTrimmedAndListedOnceInOrderOfAppearance)
{
    QList<Step> steps;
    for (const auto *text : {" Notes ", "Safari", "", "Notes", "  ", "Finder\n"}) {
        steps << stepOf(StepKind::switchApp);
        steps.last().text = QString::fromUtf8(text);
    }
    steps << stepOf(StepKind::type);
    steps.last().text = "Typed";
    EXPECT_EQ(StepList::distinctSwitchApps(steps), QStringList({"Notes", "Safari", "Finder"}));
}

TEST(StepList, SeveralSwitchAppsAreTwoOfDifferentNames)
{
    const auto several = [](const QStringList &names) {
        QList<Step> steps{{.kind = StepKind::type, .text = QStringLiteral("Mail")}};
        for (const QString &name : names)
            steps << Step{.kind = StepKind::switchApp, .text = name};
        return StepList::hasSeveralSwitchApps(steps);
    };
    EXPECT_FALSE(several({}));
    EXPECT_FALSE(several({QStringLiteral("Notes"), {}, QStringLiteral(" Notes ")}));
    EXPECT_TRUE(several({QStringLiteral("Notes"), {}, QStringLiteral("Safari")}));
}

TEST(StepList, SecondsAreNudgedOnTheGridOfTenths)
{
    EXPECT_EQ(StepList::bump(0.25, 0.1, 0), 0.4);
    EXPECT_EQ(StepList::bump(1.0, 0.1, 0), 1.1);
    EXPECT_EQ(StepList::bump(1.23, 1.0, 0), 2.2);
}

TEST(StepList, SecondsAreNotNudgedBelowTheirMinimum)
{
    EXPECT_EQ(StepList::bump(0.1, -0.5, 0.05), 0.05);
    EXPECT_EQ(StepList::bump(0.1, -0.1, 0), 0);
}

TEST(StepList, CoordinatesAreNudgedToWholeNumbersThatAreNotNegative)
{
    EXPECT_EQ(StepList::bumpCoord(0.4, -1), 0);
    EXPECT_EQ(StepList::bumpCoord(12.5, 1), 14);
    EXPECT_EQ(StepList::bumpCoord(12.4, -10), 2);
    EXPECT_FALSE(std::signbit(StepList::bumpCoord(0.7, -1)));
}

} // namespace velvane
