#include "model/propertylist/PropertyList.h"

#include <gtest/gtest.h>

namespace velvane {

TEST(PropertyList, IntegersAreSignedWhereverThatHoldsThem)
{
    EXPECT_NE(PropertyList(7).as<qint64>(), nullptr);
    EXPECT_NE(PropertyList(7U).as<qint64>(), nullptr);
    EXPECT_NE(PropertyList(std::numeric_limits<qint64>::min()).as<qint64>(), nullptr);
    EXPECT_NE(PropertyList(quint64(1) << 63).as<quint64>(), nullptr);
    EXPECT_EQ(PropertyList(quint64(7)), PropertyList(7));
}

TEST(PropertyList, BooleansIntegersAndRealsAreDifferentValues)
{
    EXPECT_FALSE(PropertyList(true) == PropertyList(1));
    EXPECT_FALSE(PropertyList(1.0) == PropertyList(1));
    EXPECT_NE(PropertyList(true).as<bool>(), nullptr);
}

TEST(PropertyList, OfEntriesWithTheSameKeyTheLastOneCounts)
{
    const auto key = QStringLiteral("a");
    const PropertyList::Dictionary dictionary{{key, 1}, {QStringLiteral("b"), 2}, {key, 3}};
    ASSERT_NE(find(dictionary, key), nullptr);
    EXPECT_EQ(*find(dictionary, key), PropertyList(3));
    EXPECT_EQ(find(dictionary, QStringLiteral("c")), nullptr);
}

TEST(PropertyList, ACopySharesItsParts)
{
    const PropertyList array(PropertyList::Array{1, 2, 3});
    const PropertyList copy = array; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.as<PropertyList::Array>()->constData(),
              array.as<PropertyList::Array>()->constData());
}

} // namespace velvane
