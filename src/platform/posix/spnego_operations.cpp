// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "platform/posix/spnego_operations.h"

#include <algorithm>
#include <bit>
#include <type_traits>

#include <gssapi/gssapi_ext.h>
#include <gssapi/gssapi_krb5.h>
#include <krb5.h>

#include "platform/posix/der_token.h"
#include "platform/posix/gss_handles.h"

namespace platform {

namespace {

// Kerberos tickets carry the domain's data about the user; this is twice their maximum size.
constexpr std::uint32_t largestToken = 128u << 10;

// Values of these failures on the system where the interface originates.
constexpr auto internalError = static_cast<SecurityStatus>(0x80090304);
constexpr auto invalidToken = static_cast<SecurityStatus>(0x80090308);
constexpr auto noCredentials = static_cast<SecurityStatus>(0x8009030E);
constexpr auto bufferTooSmall = static_cast<SecurityStatus>(0x80090321);

// GSSAPI takes identifiers as non-const, though it only reads them.
char spnegoBytes[] = "\x2b\x06\x01\x05\x05\x02";
gss_OID_desc spnego = {6, spnegoBytes};

SecurityStatus statusOf(OM_uint32 major) {
    switch (GSS_ERROR(major)) {
    case 0:
        return major & GSS_S_CONTINUE_NEEDED ? securityContinueNeeded : securityOk;
    case GSS_S_NO_CRED:
    case GSS_S_DEFECTIVE_CREDENTIAL:
    case GSS_S_CREDENTIALS_EXPIRED:
        return noCredentials;
    case GSS_S_DEFECTIVE_TOKEN:
    case GSS_S_BAD_SIG:
        return invalidToken;
    default:
        return internalError;
    }
}

template <class Handle>
SecurityHandle toHandle(Handle handle) {
    return {std::bit_cast<std::uintptr_t>(handle), 0};
}

template <class Handle>
Handle fromHandle(const SecurityHandle& handle) {
    return std::bit_cast<Handle>(static_cast<std::uintptr_t>(handle.lower));
}

/// Kerberos within SPNEGO only: other mechanisms would use the password. Fails without a valid
/// ticket. If the store includes a client key table, this may ask the KDC for a ticket, and so take
/// as long as the KDC does.
OM_uint32 acquire(gss_const_key_value_set_t store, gss::Credentials& acquired) {
    OM_uint32 minor = 0;
    gss_OID_set_desc negotiation{1, &spnego};
    gss::Credentials credentials;
    OM_uint32 major =
        gss_acquire_cred_from(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE, &negotiation, GSS_C_INITIATE,
                              store, credentials.place(), nullptr, nullptr);
    if (GSS_ERROR(major))
        return major;
    gss_OID_set_desc kerberos{1, gss_mech_krb5};
    major = gss_set_neg_mechs(&minor, credentials.get(), &kerberos);
    if (GSS_ERROR(major))
        return major;
    OM_uint32 lifetime = 0;
    major = gss_inquire_cred(&minor, credentials.get(), nullptr, &lifetime, nullptr, nullptr);
    if (!GSS_ERROR(major) && lifetime == 0)
        return GSS_S_CREDENTIALS_EXPIRED;
    acquired = std::move(credentials);
    return major;
}

bool hasTicket() {
    gss_key_value_element_desc noKeys{"client_keytab", "MEMORY:none"};
    const gss_key_value_set_desc store{1, &noKeys};
    gss::Credentials credentials;
    return !GSS_ERROR(acquire(&store, credentials));
}

/// Whether there is a client key table with a key.
bool hasClientKeys() {
    krb5_context context = nullptr;
    if (krb5_init_context(&context) != 0)
        return false;
    krb5_keytab table = nullptr;
    bool found = false;
    if (krb5_kt_client_default(context, &table) == 0) {
        found = krb5_kt_have_content(context, table) == 0;
        krb5_kt_close(context, table);
    }
    krb5_free_context(context);
    return found;
}

/// Imports the text as a principal name, which no name service may rewrite.
OM_uint32 importName(std::string text, gss::Name& name) {
    OM_uint32 minor = 0;
    gss_buffer_desc bytes{text.size(), text.data()};
    return gss_import_name(&minor, &bytes, GSS_KRB5_NT_PRINCIPAL_NAME, name.place());
}

class SpnegoOperations final : public SecurityOperations {
public:
    bool available() override { return hasTicket() || hasClientKeys(); }

    SecurityStatus queryMaxTokenSize(std::uint32_t& maxTokenSize) override {
        maxTokenSize = largestToken;
        return securityOk;
    }

    SecurityStatus acquireCredentials(SecurityHandle& credentials) override {
        gss::Credentials acquired;
        const OM_uint32 major = acquire(GSS_C_NO_CRED_STORE, acquired);
        if (!GSS_ERROR(major))
            credentials = toHandle(acquired.take());
        return statusOf(major);
    }

    SecurityStatus initializeContext(SecurityHandle& credentials, SecurityHandle& context,
                                     const std::string& targetName, std::span<std::uint8_t> input,
                                     std::span<std::uint8_t> output,
                                     std::uint32_t& outputSize) override {
        if (input.empty())
            releaseContext(context);
        gss::Name target;
        OM_uint32 minor = 0;
        OM_uint32 major = importName(targetName, target);
        if (GSS_ERROR(major))
            return statusOf(major);
        const auto token = derToken(input);
        gss_buffer_desc received{token.size(), token.data()};
        gss::Buffer sent;
        auto held = fromHandle<gss_ctx_id_t>(context);
        major = gss_init_sec_context(&minor, fromHandle<gss_cred_id_t>(credentials), &held,
                                     target.get(), &spnego, GSS_C_CONF_FLAG, 0,
                                     GSS_C_NO_CHANNEL_BINDINGS, &received, nullptr, sent.place(),
                                     nullptr, nullptr);
        // A failed call may have released it.
        context = toHandle(held);
        if (GSS_ERROR(major))
            return statusOf(major);
        if (sent.bytes().size() > output.size())
            return bufferTooSmall;
        std::ranges::copy(sent.bytes(), output.begin());
        outputSize = static_cast<std::uint32_t>(sent.bytes().size());
        return statusOf(major);
    }

    /// Never needed: GSSAPI writes complete tokens only.
    SecurityStatus completeToken(SecurityHandle&, std::span<std::uint8_t>) override {
        return securityOk;
    }

    void release(SecurityHandle& credentials, SecurityHandle& context) override {
        releaseContext(context);
        const gss::Credentials ended(fromHandle<gss_cred_id_t>(credentials));
        credentials = {};
    }

private:
    static void releaseContext(SecurityHandle& context) {
        const gss::Context ended(fromHandle<gss_ctx_id_t>(context));
        context = {};
    }
};

static_assert(std::is_trivially_destructible_v<SpnegoOperations>,
              "An abandoned logon may use them while the process exits");

} // namespace

SecurityOperations& spnegoOperations() {
    static SpnegoOperations operations;
    return operations;
}

} // namespace platform
