#include "media/RecordingWriter.h"

#include "media/H264Encoder.h"
#include "media/H264MovieWriter.h"
#include "media/MovieError.h"
#include "media/MovieFile.h"
#include "media/Mp4Fragments.h"
#include "media/Mp4Index.h"
#include "media/Yuv420Converter.h"

#include <QtDebug>
#include <QtEndian>

#include <cmath>
#include <deque>

namespace velvane {

namespace {

constexpr int mostPerSecond = 60;
constexpr int ticks = 60'000;
constexpr qint64 shortest = ticks / mostPerSecond;

// A box that players skip, as long as the head of the box that it becomes.
constexpr int headBytes = 16;
const QByteArray emptyBox("\0\0\0\x10"
                          "free"
                          "\0\0\0\0\0\0\0\0",
                          headBytes);

// How far the file's first box reaches: its type, which nothing may stand before.
qsizetype firstBox(const QByteArray &file)
{
    return qFromBigEndian<quint32>(file.constData());
}

} // namespace

class RecordingWriter::Impl {
public:
    Impl(const QString &path, QSize size)
        : m_size(size)
        , m_converter(size)
        , m_encoder(size, {.fps = mostPerSecond, .keysOnRequest = true})
        , m_track{size, ticks, m_encoder.configuration()}
        , m_fragments(m_track)
        , m_index(m_track)
        , m_file(path, MovieFile::Existing::refuse)
    {
        QByteArray head = m_fragments.head();
        m_emptyBox = firstBox(head);
        write(head.insert(m_emptyBox, emptyBox));
    }

    void append(const Frame &frame);
    void finish();

private:
    qint64 timeOf(const Frame &frame);
    bool isKeyDue(const Frame &frame, qint64 time) const;
    void writePicture(const EncodedPicture &picture);
    void write(const QByteArray &bytes);
    void addIndex();

    const QSize m_size;
    Yuv420Converter m_converter;
    H264Encoder m_encoder;
    const Mp4Context::Track m_track;
    Mp4Fragments m_fragments;
    Mp4Index m_index;
    MovieFile m_file;
    qsizetype m_emptyBox = 0;   // where it begins
    std::deque<qint64> m_times; // of the pictures not written yet, in ticks
    qint64 m_last = -1;
    qint64 m_lastKey = 0;
    bool m_isFinished = false;
};

qint64 RecordingWriter::Impl::timeOf(const Frame &frame)
{
    if (m_last < 0)
        return m_last = 0;
    return m_last = std::max<qint64>(std::llround(frame.time.count() * ticks), m_last + 1);
}

bool RecordingWriter::Impl::isKeyDue(const Frame &frame, qint64 time) const
{
    return time == 0 || (!frame.changed.isEmpty() && time - m_lastKey >= ticks);
}

void RecordingWriter::Impl::append(const Frame &frame)
{
    if (m_file.hasFailed())
        throw MovieError(MovieError::Cause::writing, m_file.failure());
    const bool isFirst = m_last < 0;
    if (frame.image.size() != m_size && (isFirst || !frame.image.isNull()))
        throw MovieError(MovieError::Cause::writing,
                         QStringLiteral("a picture has another size than the movie"));
    QRegion changed = isFirst ? QRegion(QRect({}, m_size)) : frame.changed;
    if (frame.image.isNull())
        changed = {};
    else
        m_converter.convert(frame.image, changed);
    const qint64 time = timeOf(frame);
    const bool isKey = isKeyDue(frame, time);
    if (isKey)
        m_lastKey = time;
    m_times.push_back(time);
    if (const auto picture = m_encoder.encode(m_converter, changed, time, isKey))
        writePicture(*picture);
}

// The encoder gives out earlier pictures only, so the next one's time is known but for the last.
void RecordingWriter::Impl::writePicture(const EncodedPicture &picture)
{
    m_times.pop_front();
    const qint64 duration = m_times.empty() ? shortest : m_times.front() - picture.index;
    const qint64 before = m_file.size();
    const QByteArray &fragment = m_fragments.fragment(picture, duration);
    write(fragment);
    m_index.add(picture, before + fragment.size() - picture.size, duration);
}

// All of it, or nothing. The head of the first box comes last: a process can be killed between two
// pages of a long write, and then leaves a box without a type, which players pass over.
void RecordingWriter::Impl::write(const QByteArray &bytes)
{
    constexpr qint64 boxHead = 8;
    const qint64 before = m_file.size();
    const auto *data = reinterpret_cast<const quint8 *>(bytes.constData());
    m_file.write(before + boxHead, data + boxHead, bytes.size() - boxHead);
    if (!m_file.hasFailed())
        m_file.write(before, data, boxHead);
    if (!m_file.hasFailed())
        return;
    m_file.cut(before);
    throw MovieError(MovieError::Cause::writing, m_file.failure());
}

void RecordingWriter::Impl::finish()
{
    if (std::exchange(m_isFinished, true))
        return;
    QString failure = m_file.failure();
    try {
        while (const auto picture = m_file.hasFailed() ? std::nullopt : m_encoder.drain())
            writePicture(*picture);
    } catch (const MovieError &error) {
        failure = error.reason();
    }
    if (!m_file.hasFailed() && m_last >= 0)
        addIndex();
    m_file.close();
    if (!failure.isEmpty())
        throw MovieError(MovieError::Cause::writing, failure);
}

// The index stands behind everything else, which then becomes one box of data: writing its head is
// the one step that makes another kind of file of it.
void RecordingWriter::Impl::addIndex()
{
    const qint64 end = m_file.size();
    const QByteArray index = m_index.made(end);
    m_file.write(end, reinterpret_cast<const quint8 *>(index.constData()), index.size());
    if (m_file.hasFailed())
        return m_file.cut(end);
    quint8 head[headBytes]{0, 0, 0, 1, 'm', 'd', 'a', 't'};
    qToBigEndian(quint64(end - m_emptyBox), head + headBytes / 2);
    m_file.write(m_emptyBox, head, headBytes);
}

RecordingWriter::RecordingWriter(const QString &path, QSize size)
    : m_impl((H264MovieWriter::check(size, mostPerSecond), std::make_unique<Impl>(path, size)))
{}

RecordingWriter::~RecordingWriter()
{
    try {
        m_impl->finish();
    } catch (const std::exception &error) {
        qWarning("A recording was closed with an error: %s", error.what());
    }
}

void RecordingWriter::append(const Frame &frame)
{
    m_impl->append(frame);
}

void RecordingWriter::finish()
{
    m_impl->finish();
}

} // namespace velvane
