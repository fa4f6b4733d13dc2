// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/remote_object.h"

#include <algorithm>

#include "api/auto_releaser.h"
#include "api/remote_call.h"
#include "transport/i_call_dispatcher.h"
#include "transport/invoke_exception.h"
#include "transport/transport_mode.h"

namespace hessiancln {
namespace {

/// Reads up to the start of the result. Returns true, with nothing of the fault consumed, if there
/// is a fault; it may have a reply head or not.
bool reachesFault(hessianser::Cursor& in) {
    if (!hessianser::isFault(in))
        hessianser::readReplyStart(in);
    return hessianser::isFault(in);
}

} // namespace

namespace detail {

std::string startRequest(std::string_view method, std::uint32_t sizeOfArguments) {
    std::string request;
    request.reserve(hessianser::sizeOfCallStart(method) + sizeOfArguments + hessianser::sizeOfEnd);
    hessianser::writeCallStart(method, request);
    return request;
}

void readReplyHead(hessianser::Cursor& in) {
    if (reachesFault(in))
        throw invoke_exception(hessianser::readFault(in).message);
}

void readEmptyReply(hessianser::Cursor& in) {
    if (in.remaining > 1 && in.at('N'))
        hessianser::readNull(in);
    hessianser::readEnd(in);
}

} // namespace detail

RemoteObject::RemoteObject(std::string url, bool autoRelease, std::uint32_t traceLevel,
                           std::string traceFile)
    : RemoteObject(nullptr, std::move(url), autoRelease, traceLevel, std::move(traceFile)) {}

RemoteObject::RemoteObject(boost::shared_ptr<ICallDispatcher> dispatcher, std::string url,
                           bool autoRelease, std::uint32_t traceLevel, std::string traceFile)
    : url_(std::move(url))
    , traceLevel_(traceLevel)
    , traceFile_(std::move(traceFile))
    , autoReleaser_(autoRelease ? boost::make_shared<CAutoReleaser>(url_) : nullptr)
    , dispatcher_(std::move(dispatcher)) {}

RemoteObject::~RemoteObject() {
    if (autoReleaser_)
        autoReleaser_->setDispatcher(dispatcher_);
}

void RemoteObject::sendCall(const std::string& request, std::string& response) {
    if (!dispatcher_)
        dispatcher_ = createCallDispatcher(traceLevel_, traceFile_);
    response = dispatcher_->sendRequest(url_, request);
}

void RemoteObject::setDispatcher(const boost::shared_ptr<ICallDispatcher>& dispatcher) {
    dispatcher_ = dispatcher;
}

std::vector<std::string> RemoteObject::types() {
    return call<std::vector<std::string>>("types");
}

void RemoteObject::Release() {
    if (released_)
        return;
    std::string request = detail::startRequest("Release", 0);
    const std::string response = sendFinished(request);

    hessianser::Cursor in(response);
    if (reachesFault(in)) {
        const hessianser::Fault fault = hessianser::readFault(in);
        throw invoke_exception() << "Fault: " << fault.code << " (" << fault.message << ")";
    }
    detail::readEmptyReply(in);
    released_ = true;
}

void RemoteObject::requireType(std::string_view from, std::string_view to) {
    const std::vector<std::string> names = types();
    if (std::find(names.begin(), names.end(), to) == names.end())
        throw invoke_exception() << "Bad cast from " << from << ": class is NOT of type " << to;
}

void RemoteObject::shareObjectOf(const RemoteObject& source) {
    autoReleaser_ = source.autoReleaser_;
    dispatcher_ = source.dispatcher_;
}

std::string RemoteObject::sendFinished(std::string& request) {
    hessianser::writeEnd(request);
    std::string response;
    sendCall(request, response);
    return response;
}

} // namespace hessiancln
