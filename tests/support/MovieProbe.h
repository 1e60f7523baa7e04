#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

namespace velvane {

/// Reads a movie back, picture after picture. Throws std::runtime_error with what libav says.
class MovieProbe {
public:
    /// A decoded picture: I420 planes without gaps between rows.
    struct Picture {
        QSize size;
        QByteArray luma;
        QByteArray cb;
        QByteArray cr;
        /// The exact time: ticks × timeBase seconds.
        qint64 ticks = 0;
        bool isKey = false;
    };

    /// Numbers as H.264 has them.
    struct Tags {
        int primaries = 0;
        int transfer = 0;
        int matrix = 0;
        bool isLimitedRange = false;
        bool isChromaLeft = false;
    };

    explicit MovieProbe(const QString &path);
    ~MovieProbe();
    MovieProbe(MovieProbe &&) noexcept;

    QSize size() const;
    /// Ticks per second.
    qint64 timeScale() const;
    /// Of the movie, in ticks.
    qint64 duration() const;
    QByteArray codec() const;
    Tags tags() const;

    /// The next picture; none after the last.
    std::optional<Picture> next();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// The types of a movie file's outermost boxes, in order.
QList<QByteArray> movieBoxes(const QString &path);

} // namespace velvane
