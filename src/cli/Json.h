#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>

#include <nlohmann/json.hpp>

#include <optional>

namespace velvane::cli {

/// Keeps the order in which keys are added; doubles are written so that reading gives them back.
using Json = nlohmann::ordered_json;

inline Json json(const QString &text)
{
    return text.toStdString();
}

inline Json json(QPointF point)
{
    return Json::array({point.x(), point.y()});
}

inline Json json(QSizeF size)
{
    return Json::array({size.width(), size.height()});
}

/// null when absent.
template <typename Value, typename Convert>
Json jsonOr(const std::optional<Value> &value, Convert convert)
{
    return value ? Json(convert(*value)) : Json();
}

} // namespace velvane::cli
