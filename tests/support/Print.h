#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>

#include <ostream>

// How GoogleTest shows Qt values in a failure.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << bytes.left(200).toStdString();
}

inline void PrintTo(const QPointF &point, std::ostream *out)
{
    *out << '(' << point.x() << ", " << point.y() << ')';
}
