#include "model/StepKind.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

struct Row {
    StepKind kind;
    const char *id;
    const char *label;
    const char *shortLabel;
    const char *symbol;
    bool hasDuration;
};

class StepKindVocabulary : public testing::TestWithParam<Row> {};

TEST_P(StepKindVocabulary, HasItsWords)
{
    const Row &row = GetParam();
    EXPECT_EQ(id(row.kind), row.id);
    EXPECT_EQ(label(row.kind), row.label);
    EXPECT_EQ(shortLabel(row.kind), row.shortLabel);
    EXPECT_EQ(symbol(row.kind), row.symbol);
    EXPECT_EQ(hasDuration(row.kind), row.hasDuration);
    EXPECT_EQ(stepKind(row.id), row.kind);
}

constexpr Row rows[]{
    {StepKind::move, "move", "Move to", "Move", "arrow.up.left", true},
    {StepKind::click, "click", "Click", "Click", "cursorarrow.click", false},
    {StepKind::rightClick, "rightClick", "Right-click", "Right", "cursorarrow.click.2", false},
    {StepKind::hold, "hold", "Hold (mouse down)", "Hold", "hand.tap.fill", false},
    {StepKind::release, "release", "Release (mouse up)", "Release", "hand.raised.fill", false},
    {StepKind::type, "type", "Type", "Type", "keyboard", true},
    {StepKind::shortcut, "shortcut", "Keyboard shortcut", "Keys", "command", false},
    {StepKind::wait, "wait", "Wait", "Wait", "pause", false},
    {StepKind::switchApp, "switchApp", "Switch app", "Switch", "rectangle.2.swap", false},
    {StepKind::section, "section", "Section", "Section", "text.alignleft", false},
};

INSTANTIATE_TEST_SUITE_P(All, StepKindVocabulary, testing::ValuesIn(rows));

TEST(StepKind, MenusListTheKindsInDeclarationOrder)
{
    ASSERT_EQ(allStepKinds.size(), std::size(rows));
    for (std::size_t i = 0; i < allStepKinds.size(); ++i)
        EXPECT_EQ(allStepKinds.at(i), rows[i].kind);
}

TEST(StepKind, AnUnknownNameIsNoKind)
{
    EXPECT_FALSE(stepKind("jump"));
    EXPECT_FALSE(stepKind("Move"));
    EXPECT_FALSE(stepKind(""));
}

} // namespace velvane
