// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/auto_releaser.h"

#include <exception>
#include <utility>

#include "api/remote_object.h"

namespace hessiancln {

CAutoReleaser::CAutoReleaser(std::string url)
    : url_(std::move(url)) {}

CAutoReleaser::~CAutoReleaser() {
    try {
        RemoteObject(dispatcher_, url_, false, 0, "").Release();
    } catch (const std::exception&) {
        // The owner of a proxy has no use for the error, and a session must end on a dead agent.
    }
}

void CAutoReleaser::setDispatcher(const boost::shared_ptr<ICallDispatcher>& dispatcher) {
    dispatcher_ = dispatcher;
}

} // namespace hessiancln
