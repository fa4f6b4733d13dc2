// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "session/integrated_logon.h"

#include <memory>
#include <mutex>
#include <utility>

#include "api/client_connection.h"
#include "base/secret.h"
#include "platform/user_name.h"
#include "session/sspi_client_context.h"
#include "session/system_question.h"
#include "session/token_frame.h"
#include "transport/invoke_exception.h"

namespace session {

using hessiancln::ClientConnection;
using platform::SecurityOperations;

namespace {

// The service runs on the user's machine, whatever its address.
const char* const targetName = "OstrandBakSvc/localhost";

/// Wipes a token at the end of the block.
struct WipedAtEnd {
    hessianser::Binary& token;

    ~WipedAtEnd() { base::wipe(token.data(), token.size()); }
};

/// One round. A user who gives up leaves the context to the thread that runs the round.
bool runRound(const std::shared_ptr<SspiClientContext>& context) {
    return askSystem<bool>([context] { return context->runRound(targetName); });
}

} // namespace

std::string currentWindowsUser() {
    static std::mutex mutex;
    static std::string known;
    {
        const std::lock_guard lock(mutex);
        if (!known.empty())
            return known;
    }
    try {
        std::string name = askSystem<std::string>(platform::currentWindowsUser);
        const std::lock_guard lock(mutex);
        return known = std::move(name);
    } catch (const hessiancln::invoke_exception&) {
        return {};
    }
}

bool integratedLogonAvailable() {
    SecurityOperations* const operations = platform::securityOperations();
    return operations && operations->available();
}

bool performIntegratedLogon(boost::shared_ptr<ClientConnection>& connectionOut,
                            ClientConnection& bootstrap, const std::string& url,
                            const std::string& version, SecurityOperations& operations) {
    const auto context = std::make_shared<SspiClientContext>(operations);
    boost::shared_ptr<ClientConnection> root;
    while (!context->done() && runRound(context) && !context->outToken().empty()) {
        hessianser::Binary token = frameToken(context->outToken());
        const WipedAtEnd tokenGuard{token};
        auto answer = bootstrap.sspi_login(url, version, token);
        const WipedAtEnd answerGuard{answer.context};
        root = std::move(answer.conn);
        const auto received = framedToken(answer.context);
        // A round without a token would begin the exchange again, perhaps forever.
        if (!context->done() && received.empty())
            return false;
        context->setInToken(received);
    }
    if (!context->done())
        return false;
    connectionOut = std::move(root);
    return true;
}

} // namespace session
