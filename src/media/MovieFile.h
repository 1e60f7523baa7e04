#pragma once

#include <QString>

#include <algorithm>

namespace velvane {

/// The file that a movie is written to, at any position.
///
/// The first failure is remembered. After it, what lies inside the room claimed so far is still
/// written: a full disk must not keep the movie's index from its place.
class MovieFile {
public:
    /// What becomes of a file that has the name.
    enum class Existing {
        /// A file or link is removed first, and if it cannot be, it is written over, unless it is a
        /// link that another user planted in a shared folder.
        replace,
        refuse, ///< it stays, and that is the error
    };

    /// Creates the file. Throws MovieError with the system's reason.
    explicit MovieFile(const QString &path, Existing existing = Existing::replace);
    ~MovieFile();
    Q_DISABLE_COPY_MOVE(MovieFile)

    /// Makes sure that there is room up to `end` (in bytes). False when there is none, or when
    /// something failed before.
    bool claim(qint64 end);

    /// Writes as much as can be written; a failure is remembered.
    void write(qint64 position, const quint8 *bytes, qint64 count);

    /// Returns the number of bytes read, 0 at the end, negative on failure.
    qint64 read(qint64 position, quint8 *bytes, qint64 count);

    /// Gives up what was written behind `end`; the file is cut when it is closed.
    void cut(qint64 end) { m_size = std::min(m_size, end); }

    /// How far the file reaches, without room that was claimed but not written.
    qint64 size() const { return m_size; }

    /// Cuts off unused room and closes. A failure is remembered; that the file was removed or
    /// replaced meanwhile is one.
    void close();

    bool hasFailed() const { return m_error != 0; }
    /// The system's words for the first failure.
    QString failure() const;

private:
    void fail(int error);

    int m_file = -1;
    bool m_isRegular = false;
    bool m_hasName = false;
    qint64 m_claimed = 0;
    qint64 m_size = 0;
    int m_error = 0;
};

} // namespace velvane
