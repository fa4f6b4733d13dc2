// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <gssapi/gssapi_ext.h>

#include "platform/posix/gss_handles.h"
#include "simulator/logon/accept_logons.h"
#include "simulator/objects/failures.h"

namespace simulator {
namespace {

namespace gss = platform::gss;

std::string textOf(const gss::Buffer& buffer) {
    const auto bytes = buffer.bytes();
    return {bytes.begin(), bytes.end()};
}

/// The text for one of GSSAPI's two status codes, which may consist of several messages.
std::string statusText(OM_uint32 code, int kind) {
    std::string text;
    OM_uint32 more = 0;
    do {
        gss::Buffer piece;
        OM_uint32 minor = 0;
        if (GSS_ERROR(gss_display_status(&minor, code, kind, GSS_C_NO_OID, &more, piece.place())))
            break;
        text += (text.empty() ? "" : ": ") + textOf(piece);
    } while (more != 0);
    return text;
}

std::string failureText(OM_uint32 major, OM_uint32 minor) {
    std::string text = statusText(major, GSS_C_GSS_CODE);
    if (minor != 0)
        text += ": " + statusText(minor, GSS_C_MECH_CODE);
    return text;
}

gss::Credentials keysOf(const std::string& keyTable) {
    gss_key_value_element_desc element{"keytab", keyTable.c_str()};
    const gss_key_value_set_desc store{keyTable.empty() ? 0u : 1u, &element};
    gss::Credentials keys;
    OM_uint32 minor = 0;
    const OM_uint32 major =
        gss_acquire_cred_from(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE, GSS_C_NO_OID_SET,
                              GSS_C_ACCEPT, &store, keys.place(), nullptr, nullptr);
    if (GSS_ERROR(major))
        throw std::runtime_error("no keys to accept logons with: " + failureText(major, minor));
    return keys;
}

/// Splits the name of a Kerberos principal, such as "anna@OFFICE", into user and domain.
void writeUser(const gss::Name& name, LogonStep& step) {
    OM_uint32 minor = 0;
    gss::Buffer buffer;
    const OM_uint32 major = gss_display_name(&minor, name.get(), buffer.place(), nullptr);
    if (GSS_ERROR(major))
        throw Refusal(failureText(major, minor));
    const std::string text = textOf(buffer);
    const std::size_t at = text.rfind('@');
    step.user = text.substr(0, at);
    step.domain = at == std::string::npos ? std::string() : text.substr(at + 1);
}

class Acceptor {
public:
    explicit Acceptor(const std::string& keyTable)
        : keys_(keysOf(keyTable)) {}

    LogonStep accept(std::string token) {
        gss::Context context = begins(token) ? gss::Context() : std::move(waiting_);
        waiting_ = gss::Context();
        gss_buffer_desc received{token.size(), token.data()};
        gss::Name user;
        gss::Buffer answer;
        OM_uint32 minor = 0;
        const OM_uint32 major = gss_accept_sec_context(
            &minor, context.place(), keys_.get(), &received, GSS_C_NO_CHANNEL_BINDINGS,
            user.place(), nullptr, answer.place(), nullptr, nullptr, nullptr);
        if (GSS_ERROR(major))
            throw Refusal(failureText(major, minor));
        LogonStep step;
        step.token = textOf(answer);
        step.loggedIn = (major & GSS_S_CONTINUE_NEEDED) == 0;
        if (step.loggedIn)
            writeUser(user, step);
        else
            waiting_ = std::move(context);
        return step;
    }

private:
    /// Whether it is framed like the first token of a mechanism (RFC 2743, section 3.1).
    static bool begins(std::string_view token) { return token.starts_with('\x60'); }

    gss::Credentials keys_;
    gss::Context waiting_;
};

} // namespace

std::function<LogonStep(const std::string& token)> acceptLogons(const std::string& keyTable) {
    return [acceptor = std::make_shared<Acceptor>(keyTable)](const std::string& token) {
        return acceptor->accept(token);
    };
}

} // namespace simulator
