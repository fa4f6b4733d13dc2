// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
// The half of the connection that writes request frames and reads response frames.
#include "transport/single_stream_connection.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

#include "transport/checksum.h"

namespace hessiancln {

namespace asio = boost::asio;

namespace {

// Messages are read in pieces that fit in the processor's cache, from clearing the memory to
// computing the checksum. Memory is touched only as far as bytes have arrived.
constexpr std::size_t pieceSize = std::size_t(256) * 1024;

/// Rounds up, so that messages of similar sizes can share blocks. Returns the maximum value if the
/// result would overflow.
std::uint64_t blockSize(std::uint64_t messageLength) {
    constexpr std::uint64_t step = 1024;
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    if (messageLength > largest - checksumSize - step)
        return largest;
    return (messageLength + checksumSize + step - 1) / step * step;
}

void reserve(std::string& data, std::uint64_t messageLength) {
    const std::uint64_t size = blockSize(messageLength);
    try {
        // Some systems would grant the memory and kill the process when it is touched.
        if (!isMessageLength(messageLength))
            throw std::length_error("more than a message can be");
        data.reserve(size);
    } catch (const std::exception&) {
        throw invoke_exception() << "Failed to allocate " << size << " bytes for data receiving";
    }
}

} // namespace

void CSingleStreamDispatcherConnection::enqueueSubmitted() {
    while (CallPtr call = takeSubmitted()) {
        try {
            if (call->asynchronous)
                enqueueAsyncSendRequest(call);
            else
                enqueue(call);
        } catch (const std::bad_alloc&) {
            if (!call)
                throw; // its frame is in the queue
            forgetUnwritten();
            call->fail(std::string(outOfMemory));
        } catch (const std::exception& failure) {
            terminate(failure.what());
            if (call)
                call->fail(failure.what());
        }
    }
}

CSingleStreamDispatcherConnection::CallPtr CSingleStreamDispatcherConnection::takeSubmitted() {
    const std::lock_guard lock(stateMutex_);
    if (submitted_.empty())
        return nullptr;
    CallPtr call = std::move(submitted_.front());
    submitted_.pop_front();
    return call;
}

void CSingleStreamDispatcherConnection::enqueueAsyncSendRequest(CallPtr& call) {
    trace_.step("CSingleStreamDispatcherConnection::enqueueAsyncSendRequest ENTER");
    enqueue(call);
    trace_.step("CSingleStreamDispatcherConnection::enqueueAsyncSendRequest LEAVE");
}

void CSingleStreamDispatcherConnection::enqueue(CallPtr& call) {
    // No allocation between the two places where the call is registered.
    std::list<base::Secret> frame;
    frame.push_back(prepareRequest(*call));
    waiting_[nextRequestId_] = std::move(call);
    bool idle = false;
    {
        const std::lock_guard lock(writeMutex_);
        writeQueue_.splice(writeQueue_.end(), frame);
        idle = writeQueue_.size() == 1;
    }
    if (idle)
        startWriting(false);
}

base::Secret CSingleStreamDispatcherConnection::prepareRequest(const Call& call) {
    trace_.step("CSingleStreamDispatcherConnection::prepareRequest ENTER");
    ++nextRequestId_;
    base::Secret frame(requestFrame(nextRequestId_, call.url, call.request.text()));
    trace_.step("CSingleStreamDispatcherConnection::prepareRequest LEAVE");
    return frame;
}

void CSingleStreamDispatcherConnection::startWriting(bool writeCompleted) {
    trace_.step("CSingleStreamDispatcherConnection::startWriting ENTER");
    if (writeCompleted)
        forgetUnwritten();
    const base::Secret* frame = nullptr;
    {
        const std::lock_guard lock(writeMutex_);
        if (writeCompleted)
            writeQueue_.pop_front();
        if (!writeQueue_.empty() && !givenUp_)
            frame = &writeQueue_.front();
    }
    if (frame) {
        connection_->asyncWrite(
            asio::buffer(frame->text()),
            [this, used = connection_](const ErrorCode& error, std::size_t) {
                guarded([&] {
                    if (error)
                        connection_->endReading(); // the pending read ends the stream
                    startWriting(true);
                });
            });
    }
    trace_.step("CSingleStreamDispatcherConnection::startWriting LEAVE");
}

void CSingleStreamDispatcherConnection::readResponseHeader() {
    connection_->asyncRead(asio::buffer(header_),
                           [this, used = connection_](const ErrorCode& error, std::size_t) {
                               guarded([&] { readResponseHeaderComplete(error); });
                           });
}

void CSingleStreamDispatcherConnection::readResponseHeaderComplete(const ErrorCode& error) {
    trace_.step("CSingleStreamDispatcherConnection::readResponseHeaderComplete ENTER");
    if (error) {
        throw invoke_exception() << "Receive failed (header): " << error.message() << " ("
                                 << error.value() << ")";
    }
    if (!hasResponseMagic(header_)) {
        throw invoke_exception() << "Remote side did not send a response back. (" << dump(header_)
                                 << ")";
    }
    responseLength_ = responseLength(header_);
    checksum_ = checksumOf(header_);
    data_.clear();
    reserve(data_, responseLength_);
    readData();
    trace_.step("CSingleStreamDispatcherConnection::readResponseHeaderComplete LEAVE");
}

void CSingleStreamDispatcherConnection::readData() {
    const std::size_t held = data_.size();
    const std::size_t piece = std::min(responseLength_ + checksumSize - held, pieceSize);
    data_.resize(held + piece);
    connection_->asyncRead(asio::buffer(data_.data() + held, piece),
                           [this, held, used = connection_](const ErrorCode& error, std::size_t) {
                               guarded([&] { readDataComplete(error, held); });
                           });
}

void CSingleStreamDispatcherConnection::readDataComplete(const ErrorCode& error,
                                                         std::size_t pieceStart) {
    if (error) {
        throw invoke_exception() << "Receive failed (data): " << error.message() << " ("
                                 << error.value() << ")";
    }
    const std::size_t end = std::min<std::uint64_t>(data_.size(), responseLength_);
    if (pieceStart < end)
        checksum_ = continueChecksum(checksum_, data_.data() + pieceStart, end - pieceStart);
    if (data_.size() < responseLength_ + checksumSize)
        readData();
    else
        takeReply();
}

void CSingleStreamDispatcherConnection::takeReply() {
    const std::uint32_t stored = storedChecksum(data_.data() + responseLength_);
    if (checksum_ != stored) {
        throw invoke_exception() << "Response checksums mismatch: "
                                 << static_cast<std::int32_t>(checksum_)
                                 << " != " << static_cast<std::int32_t>(stored);
    }
    data_.resize(responseLength_);
    if (const auto found = waiting_.find(responseId(header_)); found != waiting_.end()) {
        // Erased only afterwards: a handler that throws ends the stream, and its own call is then
        // notified of the failure like all others.
        found->second->succeed(data_);
        waiting_.erase(found);
    }
    base::wipe(data_); // unless a caller has taken it
    readResponseHeader();
}

} // namespace hessiancln
