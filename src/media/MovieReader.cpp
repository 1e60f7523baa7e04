#include "media/MovieReader.h"

#include <QCoreApplication>

namespace velvane {

namespace {

constexpr Seconds tolerance = 0.05s;
// A picture's own moment, worked out in another way, may come out a little before it.
constexpr Seconds rounding = 1e-6s;

} // namespace

MovieOpening MovieReader::open(const QString &path, const CancelCheck &shouldCancel)
{
    MovieOpening opening;
    std::unique_ptr<MovieInput> input = MovieInput::open(path, shouldCancel, opening.error);
    if (!input)
        return opening;
    std::unique_ptr<PictureDecoder> decoder = PictureDecoder::open(input->codec(), opening.error);
    if (!decoder)
        return opening;
    std::unique_ptr<MovieReader> reader(new MovieReader(std::move(input), std::move(decoder)));
    if (reader->picture(Seconds(0), shouldCancel))
        opening.reader = std::move(reader);
    else
        opening.error = QCoreApplication::translate(
            "MovieReader", "The movie has no picture that can be decoded.");
    return opening;
}

MovieReader::MovieReader(std::unique_ptr<MovieInput> input, std::unique_ptr<PictureDecoder> decoder)
    : m_input(std::move(input))
    , m_decoder(std::move(decoder))
    , m_shape(m_input->shape())
{}

MovieReader::~MovieReader() = default;

std::optional<MoviePicture> MovieReader::picture(Seconds at, const CancelCheck &shouldCancel)
{
    // Written so that what is no number becomes 0.
    at = at > Seconds(0) ? std::min(at, duration()) + rounding : Seconds(0);
    if (isBehind(at) && !seek(at, shouldCancel))
        return {};
    if (!advanceTo(at, shouldCancel))
        return {};
    return m_current;
}

// Is decoding on from here no way, or a longer one than from a key picture?
bool MovieReader::isBehind(Seconds at) const
{
    if (!m_current)
        return true;
    if (at < m_current->time())
        return m_current->time() - at > tolerance;
    const bool isHere = m_isAtEnd || (m_next && at < m_next->time());
    return !isHere && m_input->hasKeyBefore(at);
}

// A file may point to a later picture than the one asked for: then from further back, at last from
// the start, before whose first picture there is none.
bool MovieReader::seek(Seconds at, const CancelCheck &shouldCancel)
{
    constexpr Seconds furtherBack[]{0s, 1s, 10s, 60s, 600s};
    const auto tryFrom = [&](Seconds from) {
        m_current = m_next = {};
        m_isAtEnd = false;
        m_decoder->flush();
        m_input->seek(from);
        m_current = decodeNext(shouldCancel);
        return m_current.has_value();
    };
    for (const Seconds back : furtherBack) {
        if (at > back && tryFrom(at - back) && m_current->time() - at <= tolerance)
            return true;
        if (shouldCancel && shouldCancel())
            return false;
    }
    return tryFrom(Seconds(0));
}

bool MovieReader::advanceTo(Seconds at, const CancelCheck &shouldCancel)
{
    for (;;) {
        if (m_isAtEnd || m_current->time() > at || (m_next && at < m_next->time()))
            return true;
        if (m_next)
            m_current = std::exchange(m_next, {});
        m_next = decodeNext(shouldCancel);
        if (shouldCancel && shouldCancel())
            return false;
        m_isAtEnd = !m_next;
    }
}

std::optional<MoviePicture> MovieReader::decodeNext(const CancelCheck &shouldCancel)
{
    bool isEnd = false;
    for (;;) {
        if (auto decoded = m_decoder->receive())
            return MoviePicture(std::move(decoded->planes), m_shape,
                                m_input->timeOf(decoded->ticks));
        if (isEnd || (shouldCancel && shouldCancel()))
            return {};
        // The last pictures come once the decoder knows that no more packets follow.
        const AVPacket *packet = m_input->next();
        m_decoder->send(packet);
        isEnd = !packet;
    }
}

} // namespace velvane
