#pragma once

#include "model/ProjectFile.h"
#include "model/propertylist/PropertyList.h"
#include "support/Print.h"
#include "support/Refusal.h"

#include <limits>

// Records of demo files for tests, value by value.

namespace velvane {

inline PropertyList text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// The dictionary with a key set to another value.
inline PropertyList::Dictionary with(PropertyList::Dictionary dictionary, const char *key,
                                     const PropertyList &value)
{
    const QString name = QString::fromUtf8(key);
    dictionary.removeIf([&](const PropertyList::Entry &entry) { return entry.key == name; });
    dictionary.append({name, value});
    return dictionary;
}

inline PropertyList::Dictionary rootWith(const PropertyList::Array &steps)
{
    return {{QStringLiteral("version"), 1},
            {QStringLiteral("steps"), steps},
            {QStringLiteral("startPoint"), PropertyList::Array{640.0, 400.0}},
            {QStringLiteral("canvasSize"), PropertyList::Array{1280.0, 800.0}},
            {QStringLiteral("fps"), 60}};
}

inline const PropertyList::Dictionary bareStep{{QStringLiteral("kind"), text("click")}};

inline Step readStep(const PropertyList::Dictionary &step)
{
    return ProjectFile::from(rootWith({step})).steps.constFirst();
}

inline Step stepWith(const char *key, const PropertyList &value)
{
    return readStep(with(bareStep, key, value));
}

inline QString refusal(const PropertyList &root)
{
    return refusalOf([&] { ProjectFile::from(root); });
}

inline QString rootRefusal(const char *key, const PropertyList &value)
{
    return refusal(with(rootWith({}), key, value));
}

inline QString stepRefusal(const char *key, const PropertyList &value)
{
    return refusal(rootWith({bareStep, bareStep, with(bareStep, key, value)}));
}

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace velvane
