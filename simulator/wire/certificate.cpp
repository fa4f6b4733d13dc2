// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/wire/certificate.h"

#include <memory>
#include <stdexcept>

#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

namespace simulator::wire {
namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;
using Extension = std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)>;

constexpr long secondsOfTwoYears = 2L * 365 * 24 * 3600;

void need(bool worked, const char* what) {
    if (!worked)
        throw std::runtime_error(std::string("the certificate can't be made: ") + what);
}

const unsigned char* bytes(const char* text) {
    return reinterpret_cast<const unsigned char*>(text);
}

Certificate selfSigned(EVP_PKEY* key) {
    Certificate certificate(X509_new(), &X509_free);
    need(certificate != nullptr, "no memory");
    X509* const x = certificate.get();
    X509_set_version(x, 2);
    ASN1_INTEGER_set(X509_get_serialNumber(x), 1);
    X509_gmtime_adj(X509_getm_notBefore(x), -24L * 3600);
    X509_gmtime_adj(X509_getm_notAfter(x), secondsOfTwoYears);
    X509_set_pubkey(x, key);
    X509_NAME* const name = X509_get_subject_name(x);
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, bytes("tarn-agent-simulator"), -1, -1, 0);
    X509_set_issuer_name(x, name);
    const Extension names(
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1"),
        &X509_EXTENSION_free);
    need(names && X509_add_ext(x, names.get(), -1) == 1, "alternative names");
    need(X509_sign(x, key, EVP_sha256()) != 0, "signature");
    return certificate;
}

} // namespace

boost::asio::ssl::context selfSignedContext() {
    const Key key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
    need(key != nullptr, "key");
    const Certificate certificate = selfSigned(key.get());
    boost::asio::ssl::context context(boost::asio::ssl::context::tls_server);
    SSL_CTX* const native = context.native_handle();
    need(SSL_CTX_use_certificate(native, certificate.get()) == 1, "certificate");
    need(SSL_CTX_use_PrivateKey(native, key.get()) == 1, "private key");
    return context;
}

} // namespace simulator::wire
