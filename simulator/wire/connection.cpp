// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/wire/connection.h"

#include <chrono>
#include <deque>
#include <optional>
#include <type_traits>
#include <utility>

#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>

#include "simulator/wire/frame.h"

namespace simulator::wire {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using boost::system::error_code;
using tcp = asio::ip::tcp;
using TlsStream = asio::ssl::stream<tcp::socket>;

constexpr std::size_t readAtOnce = 64u << 10;

template <class Stream>
constexpr bool isTls = std::is_same_v<Stream, TlsStream>;

HttpRequest plainRequest(const http::request<http::string_body>& parsed) {
    HttpRequest request;
    request.method = std::string(parsed.method_string());
    request.target = std::string(parsed.target());
    for (const auto& field : parsed)
        request.headers.emplace_back(std::string(field.name_string()), std::string(field.value()));
    request.body = parsed.body();
    return request;
}

template <class Stream>
class StreamConnection final : public Connection,
                               public std::enable_shared_from_this<StreamConnection<Stream>> {
public:
    template <class... TlsContext>
    StreamConnection(Exchange& exchange, tcp::socket socket, TlsContext&... context)
        : exchange_(exchange)
        , stream_(std::move(socket), context...) {}

    void start() override {
        error_code ignored;
        socket().set_option(tcp::no_delay(true), ignored);
        if constexpr (isTls<Stream>) {
            const auto self = this->shared_from_this();
            stream_.async_handshake(asio::ssl::stream_base::server, [self](error_code error) {
                if (!error)
                    self->sniff();
            });
        } else {
            sniff();
        }
    }

    void cut() override {
        error_code ignored;
        socket().shutdown(tcp::socket::shutdown_both, ignored);
        socket().close(ignored);
    }

private:
    struct Outgoing {
        std::string bytes;
        bool last;
        std::chrono::milliseconds drip; ///< interval between two bytes; 0 sends all at once
        std::size_t written = 0;
    };

    tcp::socket& socket() {
        if constexpr (isTls<Stream>)
            return stream_.next_layer();
        else
            return stream_;
    }

    std::string_view received() const {
        const auto data = buffer_.data();
        return {static_cast<const char*>(data.data()), data.size()};
    }

    /// Reads until there are `size` bytes, then continues with `next`. Memory grows with the
    /// received bytes, not with the announced ones.
    void readUpTo(std::size_t size, void (StreamConnection::*next)()) {
        const auto self = this->shared_from_this();
        stream_.async_read_some(buffer_.prepare(readAtOnce),
                                [self, size, next](error_code error, std::size_t count) {
                                    if (error)
                                        return;
                                    self->buffer_.commit(count);
                                    if (self->received().size() < size)
                                        self->readUpTo(size, next);
                                    else
                                        ((*self).*next)();
                                });
    }

    /// The first bytes distinguish a client that posts from one that sends frames.
    void sniff() {
        const std::string_view begun = received().substr(0, requestMagic.size());
        if (begun.empty() || (begun.size() < requestMagic.size() && begun.front() == '@'))
            readUpTo(begun.size() + 1, &StreamConnection::sniff);
        else if (begun.front() == '@')
            takeFrames();
        else
            readRequest();
    }

    void takeFrames() {
        try {
            for (;;) {
                const auto parsed = parseRequest(received());
                if (const auto* more = std::get_if<Incomplete>(&parsed))
                    return readUpTo(more->size, &StreamConnection::takeFrames);
                const auto& frame = std::get<RequestFrame>(parsed);
                const CallMessage call{Channel::Stream, std::string(frame.url), frame.message};
                deliver(exchange_.answer(call), frame.id);
                if (!socket().is_open())
                    return;
                buffer_.consume(frame.size);
            }
        } catch (const BadFrame& bad) {
            exchange_.reportViolation(bad.what());
            cut();
        }
    }

    void deliver(Answer answer, std::uint32_t id) {
        if (answer.silent)
            return;
        if (answer.announced)
            return sendLater(responseHead(id, *answer.announced), answer);
        std::string frame = responseFrame(id, answer.message);
        if (answer.wrongMagic)
            frame.replace(0, responseMagic.size(), "@ERR");
        if (answer.wrongChecksum)
            frame.back() = static_cast<char>(frame.back() ^ 1);
        sendLater(std::move(frame), answer);
    }

    void readRequest() {
        parser_.emplace();
        parser_->body_limit(maximumCall);
        const auto self = this->shared_from_this();
        http::async_read(stream_, buffer_, *parser_,
                         [self](error_code error, std::size_t) { self->takeRequest(error); });
    }

    void takeRequest(error_code error) {
        if (error == http::error::end_of_stream || error == asio::error::eof)
            return cut();
        if (error) {
            // Other failures are those of the socket.
            if (error.category() == http::make_error_code(http::error::bad_method).category())
                refuse({400, "Bad Request"}, "neither HTTP nor a frame: " + error.message());
            return;
        }
        const HttpRequest request = plainRequest(parser_->get());
        const bool keepAlive = parser_->get().keep_alive();
        std::optional<Refused> refused = checkRequest(request);
        if (refused)
            return refuse(refused->status, refused->why);
        const std::string scheme = isTls<Stream> ? "https://" : "http://";
        const std::string url = scheme + *request.header("Host") + request.target;
        if (!exchange_.knowsObject(url))
            return refuse({404, "Not Found"}, "no object has the URL " + url);
        const Answer answer = exchange_.answer({Channel::Http, url, request.body});
        if (answer.silent)
            return waitForClose();
        const HttpStatus status = answer.status.value_or(HttpStatus{200, "OK"});
        sendLater(httpResponse(status, answer.status ? "" : answer.message, keepAlive), answer,
                  !keepAlive);
        if (keepAlive)
            readRequest();
    }

    void refuse(const HttpStatus& status, const std::string& why) {
        exchange_.reportViolation(why);
        send({httpResponse(status, why + "\n", false), true, {}});
    }

    /// Keeps the connection open until the peer gives up.
    void waitForClose() { readUpTo(received().size() + 1, &StreamConnection::waitForClose); }

    void sendLater(std::string bytes, const Answer& answer, bool last = false) {
        if (answer.cutAt)
            bytes.resize(std::min(*answer.cutAt, bytes.size()));
        last = last || answer.cutAt || answer.cutBehind;
        after(answer.delay, [self = this->shared_from_this(),
                             reply = Outgoing{std::move(bytes), last, answer.drip}]() mutable {
            self->send(std::move(reply));
        });
    }

    /// Calls `act` after this time; immediately if it is 0.
    template <class Act>
    void after(std::chrono::milliseconds time, Act act) {
        if (time.count() == 0)
            return act();
        const auto timer = std::make_shared<asio::steady_timer>(stream_.get_executor(), time);
        timer->async_wait([timer, act = std::move(act)](error_code error) mutable {
            if (!error)
                act();
        });
    }

    void send(Outgoing next) {
        outgoing_.push_back(std::move(next));
        if (outgoing_.size() == 1)
            writeNext();
    }

    void writeNext() {
        const Outgoing& next = outgoing_.front();
        if (next.bytes.empty())
            return cut();
        const auto rest = asio::buffer(next.bytes) + next.written;
        const auto self = this->shared_from_this();
        asio::async_write(
            stream_, next.drip.count() ? asio::buffer(rest, 1) : rest,
            [self](error_code error, std::size_t size) { self->written(error, size); });
    }

    void written(error_code error, std::size_t size) {
        if (error)
            return cut();
        Outgoing& sent = outgoing_.front();
        sent.written += size;
        if (sent.written < sent.bytes.size())
            return after(sent.drip, [self = this->shared_from_this()] { self->writeNext(); });
        if (sent.last)
            return cut();
        outgoing_.pop_front();
        if (!outgoing_.empty())
            writeNext();
    }

    Exchange& exchange_;
    Stream stream_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::string_body>> parser_;
    std::deque<Outgoing> outgoing_;
};

} // namespace

std::shared_ptr<Connection> makePlainConnection(tcp::socket socket, Exchange& exchange) {
    return std::make_shared<StreamConnection<tcp::socket>>(exchange, std::move(socket));
}

std::shared_ptr<Connection> makeTlsConnection(tcp::socket socket, asio::ssl::context& context,
                                              Exchange& exchange) {
    return std::make_shared<StreamConnection<TlsStream>>(exchange, std::move(socket), context);
}

} // namespace simulator::wire
