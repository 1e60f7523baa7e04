#pragma once

#include "base/CancelCheck.h"

#include <QString>

#include <cstdint>
#include <memory>

struct AVIOContext;

namespace velvane {

/// The bytes of a local, regular file, as libav reads them. Of a recording that was broken off
/// they reach to the end of its last whole fragment. Blocking; one thread at a time.
class MovieBytes {
public:
    MovieBytes();
    ~MovieBytes();
    Q_DISABLE_COPY_MOVE(MovieBytes)

    /// Once. Returns the reason when there is no such file. The check can break off this and all
    /// reading until doNotCancel().
    QString open(const QString &path, const CancelCheck &shouldCancel);
    void doNotCancel() { m_shouldCancel = {}; }
    /// Null when there is no memory for it; owned by the file.
    AVIOContext *io() const { return m_io.get(); }

private:
    struct Free {
        void operator()(AVIOContext *io) const;
    };

    static int read(void *self, std::uint8_t *bytes, int count);
    static std::int64_t seek(void *self, std::int64_t offset, int whence);

    int m_descriptor = -1;
    std::int64_t m_end = 0; ///< no more is read, whatever the file may become meanwhile
    std::int64_t m_position = 0;
    CancelCheck m_shouldCancel;
    std::unique_ptr<AVIOContext, Free> m_io;
};

} // namespace velvane
