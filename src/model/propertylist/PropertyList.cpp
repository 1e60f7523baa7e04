#include "model/propertylist/PropertyList.h"

#include <algorithm>

namespace velvane {

bool PropertyList::operator==(const PropertyList &other) const
{
    return m_value == other.m_value;
}

const PropertyList *find(const PropertyList::Dictionary &dictionary, const QString &key)
{
    const auto entry = std::find_if(dictionary.crbegin(), dictionary.crend(),
                                    [&](const PropertyList::Entry &e) { return e.key == key; });
    return entry == dictionary.crend() ? nullptr : &entry->value;
}

} // namespace velvane
