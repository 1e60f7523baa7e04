#pragma once

#include <QSslCertificate>
#include <QSslKey>

#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <memory>

/// A certificate that vouches for "localhost" itself, made for this run and never stored.
struct Certificate {
    QSslCertificate certificate;
    QSslKey key;

    static Certificate forLocalhost()
    {
        const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(
            EVP_PKEY_Q_keygen(nullptr, nullptr, "EC", "P-256"), &EVP_PKEY_free);
        const std::unique_ptr<X509, decltype(&X509_free)> x509(X509_new(), &X509_free);
        X509_set_version(x509.get(), X509_VERSION_3);
        ASN1_INTEGER_set(X509_get_serialNumber(x509.get()), 1);
        constexpr long hour = 3600;
        X509_gmtime_adj(X509_getm_notBefore(x509.get()), -hour);
        X509_gmtime_adj(X509_getm_notAfter(x509.get()), hour);
        X509_set_pubkey(x509.get(), key.get());
        X509_NAME *name = X509_get_subject_name(x509.get());
        X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                                   reinterpret_cast<const unsigned char *>("localhost"), -1, -1, 0);
        X509_set_issuer_name(x509.get(), name);
        X509_EXTENSION *names =
            X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, "DNS:localhost");
        X509_add_ext(x509.get(), names, -1);
        X509_EXTENSION_free(names);
        X509_sign(x509.get(), key.get(), EVP_sha256());
        return {QSslCertificate(pem([&](BIO *out) { PEM_write_bio_X509(out, x509.get()); })),
                QSslKey(pem([&](BIO *out) {
                            PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0, nullptr,
                                                     nullptr);
                        }),
                        QSsl::Ec)};
    }

private:
    template <typename Write>
    static QByteArray pem(const Write &write)
    {
        const std::unique_ptr<BIO, decltype(&BIO_free)> out(BIO_new(BIO_s_mem()), &BIO_free);
        write(out.get());
        char *data = nullptr;
        const long length = BIO_get_mem_data(out.get(), &data);
        return {data, qsizetype(length)};
    }
};
