// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "frame_echo.h"

#include <array>
#include <stdexcept>
#include <thread>
#include <utility>

#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>
#include <boost/endian/conversion.hpp>
#include <zlib.h>

#include "simulator/wire/certificate.h"
#include "transport/frame.h"

namespace bench {

namespace asio = boost::asio;
using asio::ip::tcp;

namespace {

using Stream = asio::ssl::stream<tcp::socket>;
using hessiancln::checksumSize;
using hessiancln::responseHeaderSize;

uLong checksum(uLong start, const char* bytes, std::size_t size) {
    return crc32_z(start, reinterpret_cast<const Bytef*>(bytes), size);
}

/// A message and its checksum, which isn't recomputed for each reply.
struct Message {
    explicit Message(std::string content)
        : bytes(std::move(content))
        , sum(checksum(0, bytes.data(), bytes.size())) {}

    std::string bytes;
    uLong sum;
};

std::array<char, responseHeaderSize> responseHeader(std::uint32_t id, std::uint64_t length) {
    std::array<char, responseHeaderSize> header{'@', 'R', 'S', 'P'};
    auto* const bytes = reinterpret_cast<unsigned char*>(header.data());
    boost::endian::store_big_u32(bytes + 4, id);
    boost::endian::store_big_u64(bytes + 8, length);
    return header;
}

std::array<char, checksumSize> trailer(const std::array<char, responseHeaderSize>& header,
                                       const Message& message) {
    const uLong sum = crc32_combine(checksum(0, header.data() + 4, header.size() - 4), message.sum,
                                    static_cast<z_off_t>(message.bytes.size()));
    std::array<char, checksumSize> bytes{};
    boost::endian::store_big_u32(reinterpret_cast<unsigned char*>(bytes.data()),
                                 static_cast<std::uint32_t>(sum));
    return bytes;
}

void sendReply(Stream& stream, std::uint32_t id, const Message& message) {
    const auto header = responseHeader(id, message.bytes.size());
    const auto end = trailer(header, message);
    if (message.bytes.size() > 4096) {
        const std::array parts{asio::buffer(header), asio::buffer(message.bytes),
                               asio::buffer(end)};
        asio::write(stream, parts);
        return;
    }
    std::string frame(header.data(), header.size());
    frame += message.bytes;
    frame.append(end.data(), end.size());
    asio::write(stream, asio::buffer(frame));
}

template <std::size_t size>
std::array<unsigned char, size> receive(Stream& stream) {
    std::array<unsigned char, size> bytes{};
    asio::read(stream, asio::buffer(bytes));
    return bytes;
}

std::string receive(Stream& stream, std::size_t size) {
    std::string bytes(size, '\0');
    asio::read(stream, asio::buffer(bytes));
    return bytes;
}

void answerOne(Stream& stream, const Message& large) {
    const auto start = receive<12>(stream);
    const std::uint32_t id = boost::endian::load_big_u32(start.data() + 4);
    const std::string url = receive(stream, boost::endian::load_big_u32(start.data() + 8));
    const auto length = receive<8>(stream);
    std::string content = receive(stream, boost::endian::load_big_u64(length.data()));
    receive<checksumSize>(stream);
    if (url.ends_with(largeReplyPath))
        sendReply(stream, id, large);
    else
        sendReply(stream, id, Message(std::move(content)));
}

void serveClient(tcp::socket socket, asio::ssl::context& context, const Message& large) {
    try {
        socket.set_option(tcp::no_delay(true));
        Stream stream(std::move(socket), context);
        stream.handshake(asio::ssl::stream_base::server);
        for (;;)
            answerOne(stream, large);
    } catch (const boost::system::system_error&) {
        // The client has disconnected, as every client finally does.
    }
}

} // namespace

void serveFrames(const ServerProcess::Listening& listening) {
    const Message large(std::string(largeReplySize, 'x'));
    asio::ssl::context context = simulator::wire::selfSignedContext();
    asio::io_context io(1);
    tcp::acceptor acceptor(io, {asio::ip::address_v4::loopback(), 0});
    listening(acceptor.local_endpoint().port());
    for (;;)
        std::thread(serveClient, acceptor.accept(), std::ref(context), std::cref(large)).detach();
}

BareStream::BareStream(std::uint16_t port)
    : context_(asio::ssl::context::sslv23)
    , stream_(io_, context_) {
    stream_.next_layer().connect({asio::ip::address_v4::loopback(), port});
    stream_.next_layer().set_option(tcp::no_delay(true));
    stream_.handshake(asio::ssl::stream_base::client);
}

BareStream::Reply BareStream::call(const std::string& url, const std::string& message) {
    asio::write(stream_, asio::buffer(hessiancln::requestFrame(++lastId_, url, message)));
    hessiancln::ResponseHeader header{};
    asio::read(stream_, asio::buffer(header));
    Reply reply;
    reply.size = hessiancln::responseLength(header);
    reply.bytes = std::make_unique_for_overwrite<char[]>(reply.size + checksumSize);
    asio::read(stream_, asio::buffer(reply.bytes.get(), reply.size + checksumSize));
    return reply;
}

} // namespace bench
