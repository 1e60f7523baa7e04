#include "update/FeedDownload.h"

#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslSocket>
#include <QTimer>

namespace velvane {

namespace {

constexpr int httpOk = 200;

QNetworkRequest networkRequest(const FeedRequest &feed)
{
    QNetworkRequest request(feed.address);
    request.setSslConfiguration(feed.tls);
    request.setMaximumRedirectsAllowed(feed.redirects);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Velvane/" VELVANE_VERSION));
    // A compressed feed could be longer than it looks.
    request.setRawHeader("Accept-Encoding", "identity");
    // Qt would name the user's language.
    request.setRawHeader("Accept-Language", "en");
    return request;
}

} // namespace

FeedDownload::FeedDownload(FeedRequest request, QObject *parent)
    : QObject(parent)
    , m_request(std::move(request))
{}

FeedDownload::~FeedDownload()
{
    if (m_reply)
        m_reply->disconnect(this);
}

void FeedDownload::start()
{
    const auto failLater = [this](const QString &sentence) {
        QMetaObject::invokeMethod(
            this, [this, sentence] { Q_EMIT failed(sentence); }, Qt::QueuedConnection);
    };
    if (m_request.address.scheme() != u"https")
        return failLater(tr("The address of the update feed is not secure."));
    if (!QSslSocket::supportsSsl())
        return failLater(tr("This system has no secure connections to check for updates with."));
    auto *manager = new QNetworkAccessManager(this);
    m_reply = manager->get(networkRequest(m_request));
    m_reply->setReadBufferSize(m_request.longest + 1);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &FeedDownload::limitSize);
    connect(m_reply, &QNetworkReply::readyRead, this, &FeedDownload::limitSize);
    connect(m_reply, &QNetworkReply::finished, this, &FeedDownload::finish, Qt::QueuedConnection);
    QTimer::singleShot(m_request.timeout, this, [this] {
        if (m_reply->isFinished())
            return;
        m_stopped = tr("The update server takes too long to answer.");
        m_reply->abort();
    });
}

void FeedDownload::limitSize()
{
    const auto announced = m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (!m_stopped.isEmpty() || std::max(announced, m_reply->bytesAvailable()) <= m_request.longest)
        return;
    m_stopped = tr("The update feed is longer than %1.")
                    .arg(QLocale().formattedDataSize(m_request.longest, 0));
    m_reply->abort();
}

void FeedDownload::finish()
{
    const QString sentence = failure();
    if (sentence.isEmpty())
        Q_EMIT received(m_reply->readAll());
    else
        Q_EMIT failed(sentence);
}

QString FeedDownload::failure() const
{
    if (!m_stopped.isEmpty())
        return m_stopped;
    switch (m_reply->error()) {
    case QNetworkReply::SslHandshakeFailedError:
        return tr("The update server %1 could not prove its identity.").arg(m_reply->url().host());
    case QNetworkReply::TooManyRedirectsError:
        return tr("The update server redirects too often.");
    case QNetworkReply::InsecureRedirectError:
    case QNetworkReply::ProtocolUnknownError:
        return tr("The update server redirects to an address that is not secure.");
    default:
        break;
    }
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 0 && status != httpOk)
        return tr("The update server answered with status %1.").arg(status);
    if (m_reply->error() != QNetworkReply::NoError)
        return tr("The update server %1 could not be reached.").arg(m_reply->url().host());
    return {};
}

} // namespace velvane
