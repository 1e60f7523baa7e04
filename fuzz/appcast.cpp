#include "Check.h"
#include "update/FeedReading.h"
#include "update/FeedSignature.h"

namespace {

void checkSentence(const QString &sentence)
{
    check(sentence.endsWith(u'.') || sentence.isEmpty(), "a sentence that does not end");
    for (const QChar c : sentence)
        check(c.category() != QChar::Other_Control, "a sentence with control characters");
}

void checkRelease(const velvane::Release &release)
{
    check(release.page.scheme() == u"https", "a page that is not secure");
    check(!release.name.isEmpty() && release.name.size() <= 64, "a name that does not fit");
    check(!release.name.contains(u'<'), "a name that is more than plain text");
    const auto again = velvane::ProgramVersion::fromString(release.version.text());
    check(again && *again == release.version, "a version that changes");
}

} // namespace

/// Any bytes, taken for a feed's content and for a whole feed: they are refused in one sentence, or
/// are releases that can be shown; and without its key no feed is believed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto read = velvane::Appcast::parse(bytes);
    if (const auto *error = std::get_if<velvane::UpdateError>(&read)) {
        check(!error->sentence.isEmpty(), "an empty sentence");
        checkSentence(error->sentence);
    } else {
        const auto &feed = std::get<velvane::Appcast>(read);
        check(feed.date.isValid(), "a feed without a date");
        for (const velvane::Release &release : feed.releases) {
            checkRelease(release);
            check(!(feed.newest()->version < release.version), "a version newer than the newest");
        }
    }
    const auto divided = velvane::FeedSignature::divide(bytes);
    check(!divided || bytes.startsWith(divided->content), "content that is not the feed's");
    const velvane::FeedTrust stranger{QByteArray(32, 'k'), {}};
    check(std::holds_alternative<velvane::UpdateError>(velvane::readFeed(bytes, stranger)),
          "a feed that nobody signed");
    return 0;
}
