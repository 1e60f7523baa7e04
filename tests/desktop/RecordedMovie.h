#pragma once

#include "support/MovieProbe.h"

#include <QColor>
#include <QRect>

#include <array>

namespace velvane {

/// A recorded movie, decoded anew for each question.
class RecordedMovie {
public:
    explicit RecordedMovie(const QString &path) : m_path(path) {}

    /// What a place looks like from a moment on.
    struct Change {
        double time = 0; ///< seconds
        std::array<int, 3> yuv{};

        bool shows(const QColor &color) const;
    };

    QSize size() const { return MovieProbe(m_path).size(); }
    /// Seconds.
    double duration() const;
    /// What a pixel shows first, and each time that it clearly becomes another colour.
    std::vector<Change> changesAt(QPoint place) const;
    /// Is any pixel of the area of another colour in the last picture?
    bool differs(const QRect &area, const QColor &color) const;
    /// Is any pixel of any picture of that colour?
    bool everShows(const QColor &color) const;

private:
    QString m_path;
};

} // namespace velvane
