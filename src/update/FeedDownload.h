#pragma once

#include <QObject>
#include <QSslConfiguration>
#include <QUrl>

#include <chrono>

class QNetworkReply;

namespace velvane {

/// Where a feed is and how much is put up with.
struct FeedRequest {
    QUrl address; ///< https
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    qsizetype longest = 256 * 1024; ///< bytes
    int redirects = 3;
    std::chrono::milliseconds timeout{30'000}; ///< from start() to the last byte
};

/// Fetches a feed once, over HTTPS only. Main thread only; destroying it ends the transfer.
///
/// Sends the program's name and version and nothing else that tells users apart: no cookies, no
/// cache, no referrer.
class FeedDownload : public QObject {
    Q_OBJECT
public:
    explicit FeedDownload(FeedRequest request, QObject *parent = nullptr);
    ~FeedDownload() override;

    /// Begins; once.
    void start();

Q_SIGNALS:
    /// The feed as it was sent. Not before start() has returned.
    void received(const QByteArray &feed);
    /// Why there is none, in one sentence. Not before start() has returned.
    void failed(const QString &sentence);

private:
    void limitSize();
    void finish();
    QString failure() const;

    const FeedRequest m_request;
    QNetworkReply *m_reply = nullptr;
    QString m_stopped; ///< why we ended the transfer
};

} // namespace velvane
